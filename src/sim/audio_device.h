#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace loquitor {

/// Plays sound on the default output of the system for as long as this object lives.
class AudioDevice {
 public:
  /// `zRender` must fill its argument with the next samples, VoiceSampleRate per second. It is
  /// called on a thread of the device. Throws std::runtime_error with the cause when there is no
  /// output or it cannot be used.
  explicit AudioDevice(std::function<void(std::span<std::int16_t>)> zRender);
  ~AudioDevice();
  AudioDevice(const AudioDevice&) = delete;
  AudioDevice& operator=(const AudioDevice&) = delete;

 private:
  struct Stream;
  std::unique_ptr<Stream> stream_;
};

}  // namespace loquitor
