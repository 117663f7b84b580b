#include "sim/audio_device.h"

#include <fcntl.h>
#include <portaudio.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

#include "voice/filters.h"

namespace loquitor {

namespace {

/// While one lives, nothing reaches standard error. The system's sound libraries complain there
/// about every output that a machine lacks.
class QuietErrors {
 public:
  QuietErrors() : kept_(dup(STDERR_FILENO)) {
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (kept_ >= 0 && nowhere >= 0) {
      dup2(nowhere, STDERR_FILENO);
    }
    if (nowhere >= 0) {
      close(nowhere);
    }
  }
  ~QuietErrors() {
    if (kept_ >= 0) {
      dup2(kept_, STDERR_FILENO);
      close(kept_);
    }
  }
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

 private:
  int kept_;
};

void Check(PaError zError) {
  if (zError != paNoError) {
    throw std::runtime_error(Pa_GetErrorText(zError));
  }
}

}  // namespace

/// PortAudio's library and the stream that was opened with it.
struct AudioDevice::Stream {
  explicit Stream(std::function<void(std::span<std::int16_t>)> zRender)
      : render(std::move(zRender)) {
    Check(Pa_Initialize());
  }
  ~Stream() {
    const QuietErrors quiet;
    if (stream != nullptr) {
      Pa_AbortStream(stream);
      Pa_CloseStream(stream);
    }
    Pa_Terminate();
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  static int Fill(const void*, void* zOutput, unsigned long zFrames,
                  const PaStreamCallbackTimeInfo*, PaStreamCallbackFlags, void* zStream) {
    static_cast<Stream*>(zStream)->render({static_cast<std::int16_t*>(zOutput), zFrames});
    return paContinue;
  }

  void Start() {
    constexpr double latency = 0.005;  // seconds; a device that needs more takes it
    const PaDeviceIndex device = Pa_GetDefaultOutputDevice();
    if (device == paNoDevice) {
      throw std::runtime_error("no sound output was found");
    }
    const PaStreamParameters output{device, 1, paInt16, latency, nullptr};
    Check(Pa_OpenStream(&stream, nullptr, &output, VoiceSampleRate, paFramesPerBufferUnspecified,
                        paNoFlag, Fill, this));
    Check(Pa_StartStream(stream));
  }

  std::function<void(std::span<std::int16_t>)> render;
  PaStream* stream = nullptr;
};

AudioDevice::AudioDevice(std::function<void(std::span<std::int16_t>)> zRender) {
  const QuietErrors quiet;
  stream_ = std::make_unique<Stream>(std::move(zRender));
  stream_->Start();
}

AudioDevice::~AudioDevice() = default;

}  // namespace loquitor
