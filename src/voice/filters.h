#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>

namespace loquitor {

/// Samples per second of all sound.
constexpr int VoiceSampleRate = 16000;

/// The amplitude factor of `zDecibels`.
inline double FromDecibels(double zDecibels) {
  return std::pow(10.0, zDecibels / 20.0);
}

/// A pair of poles: the digital resonator of D. H. Klatt, "Software for a cascade/parallel formant
/// synthesizer", J. Acoust. Soc. Am. 67 (1980), with a gain of 1 at 0 Hz. Passes its input on
/// unchanged until it is tuned.
class Resonator {
 public:
  /// Sets the frequency, below half the sample rate, and the bandwidth, both in hertz. What rings
  /// in it goes on ringing.
  void Tune(double zFrequency, double zBandwidth) {
    const double radius = std::exp(-std::numbers::pi * zBandwidth / VoiceSampleRate);
    c_ = -radius * radius;
    b_ = 2 * radius * std::cos(2 * std::numbers::pi * zFrequency / VoiceSampleRate);
    a_ = 1 - b_ - c_;
  }

  /// The output sample for the next input sample.
  double Next(double zInput) {
    const double output = a_ * zInput + b_ * last_ + c_ * beforeLast_;
    beforeLast_ = last_;
    last_ = output;
    return output;
  }

  /// Forgets what rings in it.
  void Silence() { last_ = beforeLast_ = 0; }

  /// The gain at `zFrequency` in hertz.
  double GainAt(double zFrequency) const {
    const double angle = 2 * std::numbers::pi * zFrequency / VoiceSampleRate;
    const double real = 1 - b_ * std::cos(angle) - c_ * std::cos(2 * angle);
    const double imaginary = b_ * std::sin(angle) + c_ * std::sin(2 * angle);
    return std::abs(a_) / std::hypot(real, imaginary);
  }

 private:
  friend class AntiResonator;
  double a_ = 1;
  double b_ = 0;
  double c_ = 0;
  double last_ = 0;
  double beforeLast_ = 0;
};

/// A pair of zeros: the inverse of the Resonator with the same frequency and bandwidth.
class AntiResonator {
 public:
  void Tune(double zFrequency, double zBandwidth) { pole_.Tune(zFrequency, zBandwidth); }
  double Next(double zInput) {
    const double output =
        (zInput - pole_.b_ * pole_.last_ - pole_.c_ * pole_.beforeLast_) / pole_.a_;
    pole_.beforeLast_ = pole_.last_;
    pole_.last_ = zInput;
    return output;
  }
  void Silence() { pole_.Silence(); }

 private:
  Resonator pole_;  ///< remembers inputs, where a Resonator remembers outputs
};

/// White noise, evenly distributed between -1 and 1, the same in every run. Source: the linear
/// congruential generator of W. H. Press et al., "Numerical Recipes", modulo 2^32.
class NoiseSource {
 public:
  /// The next sample.
  double Next() {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<double>(static_cast<std::int32_t>(state_)) / 2147483648.0;
  }

 private:
  std::uint32_t state_ = 1;
};

}  // namespace loquitor
