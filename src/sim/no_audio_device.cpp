// Replaces audio_device.cpp where PortAudio is missing.

#include <stdexcept>

#include "sim/audio_device.h"

namespace loquitor {

struct AudioDevice::Stream {};

AudioDevice::AudioDevice(std::function<void(std::span<std::int16_t>)>) {
  throw std::runtime_error("this program was built without sound output (PortAudio was missing)");
}

AudioDevice::~AudioDevice() = default;

}  // namespace loquitor
