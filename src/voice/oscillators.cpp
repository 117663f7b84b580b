#include "voice/oscillators.h"

#include <algorithm>
#include <cmath>

namespace loquitor {

namespace {

constexpr int TonesEnveloped = 64;
constexpr int NoisesHalfEnveloped = 128;
constexpr double EnvelopeHertz = 0.125;  // per step of its register
constexpr double VolumeLimit = synth::ToneVolumeLimit;
constexpr double GainGlide = 1.0 / 48;  // time constant of 3 ms
constexpr double UsualVolume = 96;

/// The highest value of a register, 0 for one that is not used.
int HighestOf(int zRegister) {
  switch (zRegister) {
    case synth::EnvelopeFrequencyRegister:
      return synth::MaxEnvelopeFrequency;
    case synth::DistortionRegister:
      return synth::MaxDistortion;
    case synth::MasterVolumeRegister:
      return synth::MaxMasterVolume;
    case synth::EnvelopeControlRegister:
      return 255;
    default:
      break;
  }
  if (zRegister <= synth::FrequencyRegister(synth::OscillatorCount)) {
    return synth::MaxFrequency;
  }
  return zRegister >= synth::VolumeRegister(1) ? synth::MaxVolume : 0;
}

}  // namespace

void Oscillators::SetRegister(int zRegister, int zValue) {
  if (zRegister >= 0 && zRegister < synth::RegisterCount) {
    registers_[static_cast<std::size_t>(zRegister)] = std::clamp(zValue, 0, HighestOf(zRegister));
  }
}

void Oscillators::Reset() {
  oscillators_ = {};
  registers_.fill(0);
  for (const auto& [number, value] : synth::QuietState) {
    SetRegister(number, value);
  }
}

bool Oscillators::IsSounding() const {
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    if (Register(synth::VolumeRegister(i)) > 0 && Register(synth::FrequencyRegister(i)) > 0) {
      return true;
    }
  }
  return false;
}

double Oscillators::MasterGain() const {
  return Register(synth::MasterVolumeRegister) / UsualVolume;
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
  const double drive = 1 + Register(synth::DistortionRegister) / 16.0;
  return std::tanh(drive * zOscillator.level) / std::tanh(drive);
}

/// Between 0 and 1.
double Oscillators::Envelope() {
  static constexpr std::array waves{Wave::Saw, Wave::Sine, Wave::Triangle, Wave::Square};
  envelopePhase_ += Register(synth::EnvelopeFrequencyRegister) * EnvelopeHertz / VoiceSampleRate;
  envelopePhase_ -= std::floor(envelopePhase_);
  const auto type = static_cast<std::size_t>(Register(synth::EnvelopeControlRegister) & 3);
  return 0.5 + 0.5 * WaveAt(waves[type], envelopePhase_);
}

double Oscillators::Next() {
  const double envelope = Envelope();
  const int control = Register(synth::EnvelopeControlRegister);
  const double toneGain = (control & TonesEnveloped) != 0 ? envelope : 1;
  const double noiseGain = (control & NoisesHalfEnveloped) != 0 ? 0.5 + 0.5 * envelope : 1;
  double sum = 0;
  for (int i = 1; i <= synth::OscillatorCount; ++i) {
    Oscillator& oscillator = oscillators_[static_cast<std::size_t>(i - 1)];
    const double hertz = Register(synth::FrequencyRegister(i));
    const bool isNoise = i > synth::ToneCount;
    const double volume = hertz > 0 ? Register(synth::VolumeRegister(i)) / VolumeLimit : 0;
    oscillator.gain += (volume * (isNoise ? noiseGain : toneGain) - oscillator.gain) * GainGlide;
    sum += oscillator.gain * (isNoise ? HeldNoise(oscillator, hertz) : Tone(oscillator, hertz));
  }
  return sum;
}

}  // namespace loquitor
