#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "voice/code_player.h"
#include "voice/oscillators.h"

namespace loquitor {

/// What the chip does when an input changes, from a byte of its event configuration
/// (docs/wire-format.md).
struct EventAction {
  bool saysPhrase;
  int phrase;         ///< 0 to 15
  bool isCall;        ///< the phrase goes before the queue, not after it
  bool emptiesQueue;  ///< before the phrase is added
  bool restarts;      ///< ends a Wait
};

/// Decodes an event byte. Every byte is valid.
EventAction DecodeEvent(std::uint8_t zEvent);

/// The sound of the chip: the voice with its effects, and the synthesizer. It stands in for the
/// chip's own sound; docs/voice.md describes it. The same calls give the same samples.
class ChipSound {
 public:
  /// The arguments are those of CodePlayer.
  explicit ChipSound(PhraseLookup zPhrase, int zPatienceMs = 0);

  /// Adds codes to the end of the queue. A code and its value may come in different calls.
  void Say(std::string_view zCodes) { player_.Add(zCodes); }

  /// Writes a register of the synthesizer; see Oscillators::SetRegister.
  void SetRegister(int zRegister, int zValue) { oscillators_.SetRegister(zRegister, zValue); }

  /// Silences the chip: empties the queue, ends a Wait, and returns the voice and the synthesizer
  /// to their defaults.
  void Reset();

  /// Does what the event asks for, in this order: empties the queue, ends a Wait, says the phrase.
  void RunEvent(const EventAction& zEvent);

  /// True while codes are being said or are queued. False while a Wait holds them.
  bool IsSpeaking() const { return !player_.IsIdle(); }

  /// True when nothing sounds except the end of a fade, and nothing will until another call changes
  /// that. Also true during a Wait.
  bool IsQuiet() const;

  /// Renders the next samples, VoiceSampleRate per second.
  void Render(std::span<std::int16_t> zSamples);

 private:
  void RenderFrame();
  void FadeLastSample();

  const PhraseLookup phrase_;
  CodePlayer player_;
  Oscillators oscillators_;
  VocalTract::Samples frame_{};
  std::size_t nextSample_ = VocalTract::FrameSamples;
  double last_ = 0;  // the last sample before the limiter
  double tail_ = 0;  // the fading rest of a sound that was cut off
};

}  // namespace loquitor
