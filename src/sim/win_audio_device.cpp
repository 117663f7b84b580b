// Replaces audio_device.cpp on Windows.

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// After windows.h, which it needs.
#include <mmsystem.h>

#include <array>
#include <atomic>
#include <stdexcept>
#include <thread>
#include <utility>

#include "sim/audio_device.h"
#include "text/wide_text.h"
#include "voice/filters.h"

namespace loquitor {

namespace {

constexpr std::size_t BufferCount = 4;
constexpr std::size_t SamplesPerBuffer = VoiceSampleRate / 50;  // 20 ms

void Check(MMRESULT zResult) {
  if (zResult == MMSYSERR_BADDEVICEID || zResult == MMSYSERR_NODRIVER) {
    throw std::runtime_error("no sound output was found");
  }
  if (zResult != MMSYSERR_NOERROR) {
    std::array<wchar_t, MAXERRORLENGTH> text{};
    waveOutGetErrorTextW(zResult, text.data(), text.size());
    throw std::runtime_error(Utf8Text(text.data()));
  }
}

WAVEFORMATEX Format() {
  constexpr WORD sampleBytes = 2;
  return {.wFormatTag = WAVE_FORMAT_PCM,
          .nChannels = 1,
          .nSamplesPerSec = VoiceSampleRate,
          .nAvgBytesPerSec = VoiceSampleRate * sampleBytes,
          .nBlockAlign = sampleBytes,
          .wBitsPerSample = 8 * sampleBytes,
          .cbSize = 0};
}

}  // namespace

/// The output, the buffers that it plays in turn, and the thread that fills them.
struct AudioDevice::Stream {
  explicit Stream(std::function<void(std::span<std::int16_t>)> zRender)
      : render(std::move(zRender)), played(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
    const WAVEFORMATEX format = Format();
    const MMRESULT result = waveOutOpen(&output, WAVE_MAPPER, &format,
                                        reinterpret_cast<DWORD_PTR>(played), 0, CALLBACK_EVENT);
    if (result != MMSYSERR_NOERROR) {
      CloseHandle(played);
      Check(result);
    }
    for (Buffer& buffer : buffers) {
      buffer.header.lpData = reinterpret_cast<char*>(buffer.samples.data());
      buffer.header.dwBufferLength = sizeof buffer.samples;
      waveOutPrepareHeader(output, &buffer.header, sizeof buffer.header);
    }
    thread = std::thread([this] { Fill(); });
  }
  ~Stream() {
    isEnding = true;
    SetEvent(played);
    thread.join();
    waveOutReset(output);
    for (Buffer& buffer : buffers) {
      waveOutUnprepareHeader(output, &buffer.header, sizeof buffer.header);
    }
    waveOutClose(output);
    CloseHandle(played);
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  struct Buffer {
    std::array<std::int16_t, SamplesPerBuffer> samples{};
    WAVEHDR header{};
  };

  /// Hands over every buffer that the output does not have. A write that fails is not tried again
  /// before the next buffers are due: the output may be gone.
  void Fill() {
    constexpr DWORD longestWait = 100;  // milliseconds
    while (!isEnding) {
      for (Buffer& buffer : buffers) {
        if ((buffer.header.dwFlags & WHDR_INQUEUE) == 0) {
          render(buffer.samples);
          waveOutWrite(output, &buffer.header, sizeof buffer.header);
        }
      }
      WaitForSingleObject(played, longestWait);
    }
  }

  std::function<void(std::span<std::int16_t>)> render;
  HANDLE played;  // an event, set when the output is done with a buffer
  HWAVEOUT output = nullptr;
  std::array<Buffer, BufferCount> buffers;
  std::atomic<bool> isEnding = false;
  std::thread thread;
};

AudioDevice::AudioDevice(std::function<void(std::span<std::int16_t>)> zRender)
    : stream_(std::make_unique<Stream>(std::move(zRender))) {}

AudioDevice::~AudioDevice() = default;

}  // namespace loquitor
