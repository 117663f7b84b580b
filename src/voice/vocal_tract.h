#pragma once

#include <array>
#include <cstddef>

#include "voice/filters.h"

namespace loquitor {

/// The spectra of noise that is made in the mouth, by place.
enum class NoisePlace { None, Lips, LipsTeeth, Teeth, Gum, GumRound, Palate, SoftFront, SoftBack };

/// What the vocal tract does during one frame. Frequencies and bandwidths are in hertz; amplitudes
/// are factors, 1 for a vowel's voice.
struct TractFrame {
  std::array<double, 3> formants{500, 1500, 2500};
  std::array<double, 3> bandwidths{60, 90, 150};
  double voice = 0;   ///< of the vocal folds
  double breath = 0;  ///< noise of the open vocal folds, through all formants
  double noise = 0;   ///< noise made in the mouth
  NoisePlace place = NoisePlace::None;
  double nasality = 0;  ///< 0 mouth only, 1 the murmur of a nasal
};

/// A cascade and parallel formant synthesizer: one frame of movement in, samples out.
/// docs/voice.md describes it. The same frames give the same samples.
class VocalTract {
 public:
  static constexpr std::size_t FrameSamples = VoiceSampleRate / 500;  ///< 2 ms
  using Samples = std::array<double, FrameSamples>;

  VocalTract();

  /// The samples of one frame. `zPitch` in hertz; 0 whispers. Amplitudes glide from one frame to
  /// the next, so that nothing clicks.
  Samples Speak(const TractFrame& zFrame, double zPitch);

  /// Forgets what still rings.
  void Silence();

 private:
  void Tune(const TractFrame& zFrame);
  void TuneNoise(NoisePlace zPlace);
  double NextPulse(double zPitch);
  double Cascade(double zSource);
  double MouthNoise(double zSource);

  static constexpr std::size_t FormantCount = 8;
  static constexpr std::size_t BandCount = 3;

  std::array<Resonator, FormantCount> formants_;
  Resonator nasalPole_;
  AntiResonator nasalZero_;
  std::array<Resonator, BandCount> bands_;
  std::array<double, BandCount> bandGains_{};
  double flatGain_ = 0;
  NoisePlace place_ = NoisePlace::None;
  NoiseSource noise_;
  double phase_ = 0;    ///< of the glottal cycle, 0 to 1
  double stretch_ = 1;  ///< of this cycle, by jitter
  double tilt_ = 0;
  double voice_ = 0;
  double breath_ = 0;
  double mouth_ = 0;
};

}  // namespace loquitor
