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
  int phrase;   ///< 0 to 15
  bool isCall;  ///< the phrase comes before what waits in the queue, not after it
  bool emptiesQueue;
  bool restarts;  ///< goes on after a Wait
};
EventAction DecodeEvent(std::uint8_t zEvent);

/// Everything that the chip makes heard: the voice and its effects, and the synthesizer. A stand-in
/// for the chip's own sound, described in docs/voice.md. The same calls give the same samples.
class ChipSound {
 public:
  /// See CodePlayer.
  explicit ChipSound(PhraseLookup zPhrase, int zPatienceMs = 0);

  /// Puts codes into the queue. A code and its value may come in different calls.
  void Say(std::string_view zCodes) { player_.Add(zCodes); }

  /// Writes a register of the synthesizer; it sounds until it is changed.
  void SetRegister(int zRegister, int zValue) { oscillators_.SetRegister(zRegister, zValue); }

  /// Silence: the queue is empty, the voice and the synthesizer are at their defaults.
  void Reset();

  /// Empties the queue, restarts and says the phrase, in this order, as far as the event asks for
  /// it.
  void RunEvent(const EventAction& zEvent);

  /// True while codes are being said or wait to be said; not while a Wait holds them.
  bool IsSpeaking() const { return !player_.IsIdle(); }

  /// True when nothing sounds and nothing will until the next call: also while a Wait holds.
  bool IsQuiet() const;

  /// The next samples, 16000 a second.
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
  double tail_ = 0;  // what fades of a sound that was cut off
};

}  // namespace loquitor
