#pragma once

#include <array>
#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <vector>

#include "sim/virtual_chip.h"
#include "voice/chip_sound.h"

namespace loquitor {

/// The sound of a virtual chip while bytes arrive. Safe to use by several threads at once: one can
/// report what arrives while another takes the samples.
class LiveSound {
 public:
  LiveSound();

  /// Makes the sound of `zEvent`, the last event that `zChip` has returned.
  void Hear(const ChipEvent& zEvent, const VirtualChip& zChip);

  /// Does what the event of an input asks for; see ChipSound::RunEvent.
  void RunEvent(const EventAction& zEvent);

  /// Renders the next samples, VoiceSampleRate per second. Never ends: gives silence when nothing
  /// sounds.
  void Render(std::span<std::int16_t> zSamples);

  /// From now on, keeps what Render gives for TakeRecorded. Of a silence it keeps half a second.
  void Record();

  /// Returns the samples that were kept, and forgets them.
  std::vector<std::int16_t> TakeRecorded();

  /// True until half a second of silence has been rendered after the last sound.
  bool IsSounding() const;

  /// True while codes are being said or are queued.
  bool IsSpeaking() const;

 private:
  mutable std::mutex mutex_;  // guards everything below
  std::array<std::string, eeprom::PhraseCount> phrases_;
  ChipSound sound_;
  bool isRecording_ = false;
  std::vector<std::int16_t> recorded_;
  std::size_t silence_;  // samples since the last sound
};

}  // namespace loquitor
