#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "sim/audio_device.h"
#include "sim/live_sound.h"
#include "voice/wav_file.h"

namespace loquitor {

/// Where the sound of the virtual Orvatone goes: to the system's sound output, into a WAV file, or
/// both. Without a sound output the file is filled by the clock.
class SoundOutput {
 public:
  /// `zWavFile`: the file's path, or empty for none; throws std::system_error when it cannot be
  /// written. A sound output that cannot be had is told once on standard error.
  SoundOutput(bool zIsSpoken, const std::string& zWavFile);

  LiveSound& Sound() { return sound_; }

  /// True while Tick has something to do every few milliseconds.
  bool NeedsTicks() const { return file_.has_value() && sound_.IsSounding(); }

  /// Writes to the file what has sounded since the last call. A file that cannot be written any
  /// more is told once on standard error and given up.
  void Tick();

  /// What is still to be said goes into the file, unless it would have been heard as well.
  void Finish();

 private:
  using Clock = std::chrono::steady_clock;
  void RenderUpTo(Clock::time_point zNow);
  void WriteRecorded();

  LiveSound sound_;
  std::optional<WavFile> file_;
  std::optional<AudioDevice> device_;  // after what its thread uses
  std::optional<Clock::time_point> renderedUpTo_;
};

}  // namespace loquitor
