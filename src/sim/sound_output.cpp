#include "sim/sound_output.h"

#include <cstddef>
#include <exception>
#include <iostream>
#include <vector>

#include "text/path_text.h"
#include "voice/filters.h"

namespace loquitor {

SoundOutput::SoundOutput(bool zIsSpoken, const std::string& zWavFile) {
  if (!zWavFile.empty()) {
    file_.emplace(PathFrom(zWavFile));
    sound_.Record();
  }
  if (!zIsSpoken) {
    return;
  }
  try {
    device_.emplace([this](std::span<std::int16_t> zSamples) { sound_.Render(zSamples); });
  } catch (const std::exception& error) {
    std::cerr << "virtual-orvatone: nothing can be heard: " << error.what() << std::endl;
  }
}

void SoundOutput::RenderUpTo(Clock::time_point zNow) {
  using std::chrono::duration_cast;
  using std::chrono::nanoseconds;
  constexpr nanoseconds perSample(1'000'000'000 / VoiceSampleRate);
  if (!sound_.IsSounding()) {
    renderedUpTo_.reset();
    return;
  }
  const Clock::time_point since = renderedUpTo_.value_or(zNow);
  const auto due = duration_cast<nanoseconds>(zNow - since) / perSample;
  std::vector<std::int16_t> samples(static_cast<std::size_t>(due));
  sound_.Render(samples);
  renderedUpTo_ = since + due * perSample;
}

void SoundOutput::WriteRecorded() {
  const std::vector<std::int16_t> samples = sound_.TakeRecorded();
  if (!file_ || samples.empty()) {
    return;
  }
  try {
    file_->Write(samples);
  } catch (const std::exception& error) {
    std::cerr << "virtual-orvatone: the recording ends: " << error.what() << std::endl;
    file_.reset();
  }
}

void SoundOutput::Tick() {
  if (file_ && !device_) {
    RenderUpTo(Clock::now());
  }
  WriteRecorded();
}

void SoundOutput::Finish() {
  constexpr int longestSeconds = 60;  // stored phrases that play each other never end
  Tick();
  if (!file_ || device_) {
    return;
  }
  std::vector<std::int16_t> samples(VoiceSampleRate / 50);
  for (int i = 0; i < longestSeconds * 50 && sound_.IsSpeaking(); ++i) {
    sound_.Render(samples);
  }
  sound_.Render(samples);  // the end of the last sound
  WriteRecorded();
}

}  // namespace loquitor
