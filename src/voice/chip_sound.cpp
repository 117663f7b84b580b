#include "voice/chip_sound.h"

#include <cmath>
#include <utility>

#include "core/eeprom.h"

namespace loquitor {

namespace {

constexpr double VoiceGain = 0.2;
constexpr double OscillatorGain = 0.5;

/// Leaves amplitudes below the knee as they are and compresses higher ones, so that the result is
/// always below 1.
double Limit(double zSound) {
  constexpr double knee = 0.7;
  const double excess = (std::abs(zSound) - knee) / (1 - knee);
  if (excess <= 0) {
    return zSound;
  }
  return std::copysign(knee + (1 - knee) * excess / (1 + excess), zSound);
}

}  // namespace

EventAction DecodeEvent(std::uint8_t zEvent) {
  return {.saysPhrase = (zEvent & event_bit::NoPlay) == 0,
          .phrase = zEvent & event_bit::Phrase,
          .isCall = (zEvent & event_bit::Call) != 0,
          .emptiesQueue = (zEvent & event_bit::NoClear) == 0,
          .restarts = (zEvent & event_bit::NoRestart) == 0};
}

ChipSound::ChipSound(PhraseLookup zPhrase, int zPatienceMs)
    : phrase_(zPhrase), player_(std::move(zPhrase), zPatienceMs) {}

/// Lets the present sound fade out within a few milliseconds, so that cutting it off does not
/// click.
void ChipSound::FadeLastSample() {
  tail_ = last_;
  nextSample_ = VocalTract::FrameSamples;
}

void ChipSound::Reset() {
  FadeLastSample();
  player_.Reset();
  oscillators_.Reset();
}

void ChipSound::RunEvent(const EventAction& zEvent) {
  if (zEvent.emptiesQueue) {
    FadeLastSample();
    player_.Clear();
  }
  if (zEvent.restarts) {
    player_.Restart();
  }
  if (!zEvent.saysPhrase) {
    return;
  }
  const std::string codes = phrase_(zEvent.phrase);
  if (zEvent.isCall) {
    player_.AddFirst(codes);
  } else {
    player_.Add(codes);
  }
}

bool ChipSound::IsQuiet() const {
  return player_.IsIdle() && (player_.IsWaiting() || !oscillators_.IsSounding());
}

void ChipSound::RenderFrame() {
  const bool wasWaiting = player_.IsWaiting();
  frame_ = player_.Next();
  if (player_.IsWaiting() && !wasWaiting) {
    FadeLastSample();
  }
  const double gain = oscillators_.MasterGain();
  for (double& sample : frame_) {
    const double tones = oscillators_.Next();
    sample = player_.IsWaiting() ? 0 : gain * (VoiceGain * sample + OscillatorGain * tones);
  }
  nextSample_ = 0;
}

void ChipSound::Render(std::span<std::int16_t> zSamples) {
  constexpr double tailFade = 0.94;  // a time constant of 1 ms
  constexpr double highest = 32767;
  for (std::int16_t& sample : zSamples) {
    if (nextSample_ == frame_.size()) {
      RenderFrame();
    }
    last_ = frame_[nextSample_++] + tail_;
    tail_ *= tailFade;
    sample = static_cast<std::int16_t>(std::lround(highest * Limit(last_)));
  }
}

}  // namespace loquitor
