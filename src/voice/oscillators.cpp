#include "voice/oscillators.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace loquitor {

namespace {

constexpr std::size_t EnvelopeFrequency = 0;
constexpr std::size_t Distortion = 6;
constexpr std::size_t MasterVolume = 7;
constexpr std::size_t EnvelopeControl = 8;
constexpr std::size_t FirstVolume = 11;
constexpr std::array<int, Oscillators::RegisterCount> Highest{
    255, 3999, 3999, 3999, 3999, 3999, 255, 127, 255, 0, 0, 31, 31, 31, 31, 31};
constexpr int TonesEnveloped = 64;
constexpr int NoisesHalfEnveloped = 128;
constexpr int FirstNoise = 3;            // oscillators 4 and 5
constexpr double EnvelopeHertz = 0.125;  // per step of its register
constexpr double VolumeLimit = 63;
constexpr double GainGlide = 1.0 / 48;  // time constant of 3 ms
constexpr double UsualVolume = 96;

}  // namespace

void Oscillators::SetRegister(int zRegister, int zValue) {
  if (zRegister >= 0 && zRegister < RegisterCount) {
    const auto index = static_cast<std::size_t>(zRegister);
    registers_[index] = std::clamp(zValue, 0, Highest[index]);
  }
}

void Oscillators::Reset() {
  oscillators_ = {};
  registers_.fill(0);
  registers_[EnvelopeFrequency] = 88;
  registers_[MasterVolume] = 96;
}

bool Oscillators::IsSounding() const {
  for (std::size_t i = 0; i < OscillatorCount; ++i) {
    if (registers_[FirstVolume + i] > 0 && registers_[i + 1] > 0) {
      return true;
    }
  }
  return false;
}

double Oscillators::MasterGain() const {
  return registers_[MasterVolume] / UsualVolume;
}

double Oscillators::Tone(Oscillator& zOscillator, double zHertz) {
  zOscillator.phase += zHertz / VoiceSampleRate;
  zOscillator.phase -= std::floor(zOscillator.phase);
  return WaveAt(Wave::Sine, zOscillator.phase);
}

double Oscillators::HeldNoise(Oscillator& zOscillator, double zHertz) {
  constexpr double newLevelsInAPeriod = 2;
  zOscillator.phase += newLevelsInAPeriod * zHertz / VoiceSampleRate;
  if (zOscillator.phase >= 1) {
    zOscillator.phase -= std::floor(zOscillator.phase);
    zOscillator.level = noise_.Next();
  }
  const double drive = 1 + registers_[Distortion] / 16.0;
  return std::tanh(drive * zOscillator.level) / std::tanh(drive);
}

/// Between 0 and 1.
double Oscillators::Envelope() {
  static constexpr std::array waves{Wave::Saw, Wave::Sine, Wave::Triangle, Wave::Square};
  envelopePhase_ += registers_[EnvelopeFrequency] * EnvelopeHertz / VoiceSampleRate;
  envelopePhase_ -= std::floor(envelopePhase_);
  const auto type = static_cast<std::size_t>(registers_[EnvelopeControl] & 3);
  return 0.5 + 0.5 * WaveAt(waves[type], envelopePhase_);
}

double Oscillators::Next() {
  const double envelope = Envelope();
  const int control = registers_[EnvelopeControl];
  const double toneGain = (control & TonesEnveloped) != 0 ? envelope : 1;
  const double noiseGain = (control & NoisesHalfEnveloped) != 0 ? 0.5 + 0.5 * envelope : 1;
  double sum = 0;
  for (std::size_t i = 0; i < OscillatorCount; ++i) {
    Oscillator& oscillator = oscillators_[i];
    const double hertz = registers_[i + 1];
    const bool isNoise = i >= FirstNoise;
    const double volume = hertz > 0 ? registers_[FirstVolume + i] / VolumeLimit : 0;
    oscillator.gain += (volume * (isNoise ? noiseGain : toneGain) - oscillator.gain) * GainGlide;
    sum += oscillator.gain * (isNoise ? HeldNoise(oscillator, hertz) : Tone(oscillator, hertz));
  }
  return sum;
}

}  // namespace loquitor
