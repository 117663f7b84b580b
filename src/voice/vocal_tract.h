#pragma once

#include <array>
#include <cstddef>

#include "voice/filters.h"

namespace loquitor {

/// The place in the mouth where noise is made. Each has its own spectrum.
enum class NoisePlace { None, Lips, LipsTeeth, Teeth, Gum, GumRound, Palate, SoftFront, SoftBack };

/// What the vocal tract does during one frame. Frequencies and bandwidths are in hertz; amplitudes
/// are factors, 1 for a vowel's voice.
struct TractFrame {
  std::array<double, 3> formants{500, 1500, 2500};
  std::array<double, 3> bandwidths{60, 90, 150};
  double voice = 0;   ///< amplitude of the vocal folds
  double breath = 0;  ///< amplitude of the noise of the open vocal folds, through all formants
  double noise = 0;   ///< amplitude of the noise made in the mouth
  NoisePlace place = NoisePlace::None;  ///< of `noise`; None keeps the last place
  double nasality = 0;                  ///< 0 for the mouth only, 1 for the murmur of a nasal
};

/// A cascade and parallel formant synthesizer, which turns frames into samples. docs/voice.md
/// describes it. The same frames give the same samples.
class VocalTract {
 public:
  static constexpr int FrameMs = 2;  ///< duration of a frame
  static constexpr std::size_t FrameSamples = VoiceSampleRate * FrameMs / 1000;
  using Samples = std::array<double, FrameSamples>;

  VocalTract();

  /// The samples of one frame. `zPitch` is in hertz; 0 whispers. Amplitudes change smoothly from
  /// one frame to the next, so that nothing clicks.
  Samples Speak(const TractFrame& zFrame, double zPitch);

  /// Silences the tract at once: nothing rings on.
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
  double phase_ = 0;    ///< in the glottal cycle, 0 to 1
  double stretch_ = 1;  ///< jitter of this cycle: a factor of its pitch
  double tilt_ = 0;
  double voice_ = 0;
  double breath_ = 0;
  double mouth_ = 0;
};

}  // namespace loquitor
