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

/// The sound of a virtual chip while it listens. One thread tells it what arrives, another may take
/// the samples.
class LiveSound {
 public:
  LiveSound();

  /// Sounds as `zChip` would, which has just told of `zEvent`.
  void Hear(const ChipEvent& zEvent, const VirtualChip& zChip);

  /// Does what an input asks for.
  void RunEvent(const EventAction& zEvent);

  /// The next samples. Silence goes on for ever.
  void Render(std::span<std::int16_t> zSamples);

  /// Keeps from now on what Render gives, for TakeRecorded. Silence is kept for half a second only.
  void Record();

  /// What has been kept since the last call.
  std::vector<std::int16_t> TakeRecorded();

  /// True when Render would give something to keep.
  bool IsSounding() const;

  /// True while codes are being said or wait for it.
  bool IsSpeaking() const;

 private:
  mutable std::mutex mutex_;  // of everything below
  std::array<std::string, VirtualChip::PhraseCount> phrases_;
  ChipSound sound_;
  bool isRecording_ = false;
  std::vector<std::int16_t> recorded_;
  std::size_t silence_;  // samples since the last sound
};

}  // namespace loquitor
