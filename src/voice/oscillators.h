#pragma once

#include <array>

#include "voice/effects.h"
#include "voice/filters.h"

namespace loquitor {

/// The five oscillators of the chip's synthesizer, played by its registers (docs/wire-format.md).
class Oscillators {
 public:
  static constexpr int RegisterCount = 16;

  Oscillators() { Reset(); }

  /// A value outside the register's range counts as the nearest one inside. Registers that do not
  /// exist are ignored.
  void SetRegister(int zRegister, int zValue);

  /// The quiet state, at once: no oscillator sounds, master volume 96.
  void Reset();

  /// True when an oscillator has a volume and a frequency.
  bool IsSounding() const;

  /// The factor that the master volume asks for everything that sounds: 1 at 96.
  double MasterGain() const;

  /// The next sample; a sum of volumes of 63, the limit of the tone generators, has the height 1.
  double Next();

 private:
  struct Oscillator {
    double phase = 0;
    double gain = 0;   // glides to the volume, so that nothing clicks
    double level = 0;  // of noise, held for half a period
  };
  double Tone(Oscillator& zOscillator, double zHertz);
  double HeldNoise(Oscillator& zOscillator, double zHertz);
  double Envelope();

  static constexpr int OscillatorCount = 5;
  std::array<int, RegisterCount> registers_{};
  std::array<Oscillator, OscillatorCount> oscillators_{};
  double envelopePhase_ = 0;
  NoiseSource noise_;
};

}  // namespace loquitor
