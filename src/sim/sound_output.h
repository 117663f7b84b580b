#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "sim/audio_device.h"
#include "sim/live_sound.h"
#include "voice/wav_file.h"

namespace loquitor {

/// Plays the sound of the virtual Orvatone on the system's sound output, records it in a WAV file,
/// or does both. Without a sound output the recording follows the clock.
class SoundOutput {
 public:
  /// `zIsSpoken`: whether to play the sound. A sound output that cannot be used is reported on
  /// standard error. `zWavFile`: the path of the recording as PathFrom takes it, or empty for none.
  /// Throws std::system_error when it cannot be written.
  SoundOutput(bool zIsSpoken, const std::string& zWavFile);

  /// The sound to play and to record.
  LiveSound& Sound() { return sound_; }

  /// True while Tick must be called often, because something that is recorded sounds.
  bool NeedsTicks() const { return file_.has_value() && sound_.IsSounding(); }

  /// Records what has sounded since the last call. If that fails, says so on standard error and
  /// ends the recording.
  void Tick();

  /// Ends the recording. Without a sound output it first records what is still to be said, up to a
  /// minute.
  void Finish();

 private:
  using Clock = std::chrono::steady_clock;
  void RenderUpTo(Clock::time_point zNow);
  void WriteRecorded();

  LiveSound sound_;
  std::optional<WavFile> file_;
  std::optional<AudioDevice> device_;  // declared after everything that its thread uses
  std::optional<Clock::time_point> renderedUpTo_;
};

}  // namespace loquitor
