#include "voice/vocal_tract.h"

#include <algorithm>

namespace loquitor {

namespace {

/// The formants above the third hardly differ among sounds. These are those of a tube of 17 cm.
struct Pole {
  double frequency;
  double bandwidth;
};
constexpr std::array<Pole, 5> UpperFormants{
    {{3400, 250}, {4400, 300}, {5400, 450}, {6400, 600}, {7400, 700}}};

constexpr double OpenQuotient = 0.6;  // of the glottal cycle
/// The amplitude to which everything fades. Some processors need a hundred times as long for a
/// multiplication of numbers that have faded to less than 1e-307.
constexpr double Inaudible = 1e-20;
constexpr double Jitter = 0.006;     // largest random change of a cycle's pitch
constexpr double TiltCutoff = 2600;  // hertz; the folds do not close abruptly
constexpr double MouthGain = 1.5;
constexpr double NasalPole = 270;      // hertz
constexpr double NasalZeroRise = 190;  // hertz, for a full murmur
constexpr double NasalBandwidth = 100;

struct Band {
  double frequency;
  double bandwidth;
  double decibels;  // at its peak
};
struct NoiseSpectrum {
  std::array<Band, 3> bands;
  double flatDecibels;
};
constexpr double Off = -200;
constexpr Band NoBand{1000, 1000, Off};

/// Measured spectra, as three bands and a flat part, in the order of NoisePlace. Sources: A.
/// Jongman, R. Wayland, S. Wong, "Acoustic characteristics of English fricatives", J. Acoust. Soc.
/// Am. 108 (2000), and for the bursts K. N. Stevens, "Acoustic Phonetics" (1998), chapter 7.
constexpr std::array<NoiseSpectrum, 9> Spectra{{
    {{NoBand, NoBand, NoBand}, Off},
    {{{{500, 500, 0}, {1400, 900, -5}, NoBand}}, -16},
    {{{{1500, 1500, -12}, {4500, 3000, -7}, {7300, 2000, -3}}}, -14},
    {{{{1600, 1500, -14}, {5500, 2500, -6}, {7400, 1600, 0}}}, -14},
    {{{{4300, 700, -9}, {5800, 1200, 0}, {7300, 1200, -1}}}, -24},
    {{{{3900, 700, -7}, {5300, 1200, 0}, {7000, 1400, -4}}}, -24},
    {{{{2500, 400, -3}, {3400, 700, 0}, {4900, 1200, -5}}}, -24},
    {{{{2500, 450, 0}, {3600, 800, -8}, {5200, 1500, -14}}}, -24},
    {{{{1350, 300, 0}, {2400, 700, -12}, {4000, 1200, -12}}}, -26},
}};

const NoiseSpectrum& SpectrumOf(NoisePlace zPlace) {
  return Spectra.at(static_cast<std::size_t>(zPlace));
}

/// The correction of a sample that is `zDistance` (0 to 1) samples away from a unit step. It is
/// added to the sample before the step and subtracted from the sample after it. So tones above half
/// the sample rate do not alias (PolyBLEP).
double StepRest(double zDistance) {
  return 0.5 * (1 - zDistance) * (1 - zDistance);
}

}  // namespace

VocalTract::VocalTract() {
  for (std::size_t i = 0; i < UpperFormants.size(); ++i) {
    formants_[i + 3].Tune(UpperFormants[i].frequency, UpperFormants[i].bandwidth);
  }
  nasalPole_.Tune(NasalPole, NasalBandwidth);
}

void VocalTract::Silence() {
  for (Resonator& resonator : formants_) {
    resonator.Silence();
  }
  for (Resonator& band : bands_) {
    band.Silence();
  }
  nasalPole_.Silence();
  nasalZero_.Silence();
  tilt_ = voice_ = breath_ = mouth_ = 0;
}

void VocalTract::TuneNoise(NoisePlace zPlace) {
  if (zPlace == place_ || zPlace == NoisePlace::None) {
    return;  // the last noise still fades
  }
  place_ = zPlace;
  const NoiseSpectrum& spectrum = SpectrumOf(zPlace);
  for (std::size_t i = 0; i < BandCount; ++i) {
    bands_[i].Tune(spectrum.bands[i].frequency, spectrum.bands[i].bandwidth);
    const double sign = i % 2 == 0 ? 1 : -1;  // neighbours do not cancel between their peaks
    bandGains_[i] = sign * FromDecibels(spectrum.bands[i].decibels) /
                    bands_[i].GainAt(spectrum.bands[i].frequency);
  }
  flatGain_ = FromDecibels(spectrum.flatDecibels);
}

void VocalTract::Tune(const TractFrame& zFrame) {
  for (std::size_t i = 0; i < zFrame.formants.size(); ++i) {
    formants_[i].Tune(std::clamp(zFrame.formants[i], 100.0, 7000.0), zFrame.bandwidths[i]);
  }
  nasalZero_.Tune(NasalPole + NasalZeroRise * zFrame.nasality, NasalBandwidth);
  TuneNoise(zFrame.place);
}

/// The next sample of the derivative of the glottal flow. Source: the polynomial pulse of D. H.
/// Klatt and L. C. Klatt, J. Acoust. Soc. Am. 87 (1990), here with its closing smoothed.
double VocalTract::NextPulse(double zPitch) {
  if (zPitch <= 0) {
    return 0;
  }
  const double step = zPitch * stretch_ / VoiceSampleRate;
  double output = 0;
  const double before = phase_;
  phase_ += step;
  if (before < OpenQuotient && phase_ >= OpenQuotient) {  // just past the step from -1 to 0
    output -= StepRest((phase_ - OpenQuotient) / step);
  }
  if (phase_ >= 1) {
    phase_ -= 1;
    stretch_ = 1 + Jitter * noise_.Next();
  }
  if (phase_ < OpenQuotient) {
    const double x = phase_ / OpenQuotient;
    output += 2 * x - 3 * x * x;
    if (phase_ + step >= OpenQuotient) {  // just before the step
      output += StepRest((OpenQuotient - phase_) / step);
    }
  }
  return output;
}

double VocalTract::Cascade(double zSource) {
  double sound = nasalZero_.Next(nasalPole_.Next(zSource));
  for (auto formant = formants_.rbegin(); formant != formants_.rend(); ++formant) {
    sound = formant->Next(sound);
  }
  return sound;
}

double VocalTract::MouthNoise(double zSource) {
  double sound = flatGain_ * zSource;
  for (std::size_t i = 0; i < BandCount; ++i) {
    sound += bandGains_[i] * bands_[i].Next(zSource);
  }
  return sound;
}

VocalTract::Samples VocalTract::Speak(const TractFrame& zFrame, double zPitch) {
  Tune(zFrame);
  static const double tiltShare =
      1 - std::exp(-2 * std::numbers::pi * TiltCutoff / VoiceSampleRate);
  constexpr double voiceGlide = 1.0 / 80;  // time constants of 5, 3 and 1.5 ms
  constexpr double breathGlide = 1.0 / 48;
  constexpr double mouthGlide = 1.0 / 24;
  const bool isWhispered = zPitch <= 0;
  const double voiceTarget = Inaudible + (isWhispered ? 0 : zFrame.voice);
  const double breathTarget = Inaudible + zFrame.breath + (isWhispered ? 0.15 * zFrame.voice : 0);
  const double mouthTarget = Inaudible + zFrame.noise;
  Samples samples;
  for (double& sample : samples) {
    voice_ += (voiceTarget - voice_) * voiceGlide;
    breath_ += (breathTarget - breath_) * breathGlide;
    mouth_ += (mouthTarget - mouth_) * mouthGlide;
    const double noise = noise_.Next();
    const double pulse = NextPulse(zPitch);
    const bool isOpen = phase_ < OpenQuotient;
    // Air flows, and makes noise, mainly while the folds are open.
    const double flow = isOpen ? 1 : 1 - 0.5 * std::min(1.0, 2 * voice_);
    tilt_ += (voice_ * pulse + 1.5 * breath_ * noise * flow - tilt_) * tiltShare;
    sample = Cascade(tilt_) + MouthGain * mouth_ * MouthNoise(noise * flow);
  }
  return samples;
}

}  // namespace loquitor
