#pragma once

#include <array>
#include <cstddef>

#include "core/synth_registers.h"
#include "voice/effects.h"
#include "voice/filters.h"

namespace loquitor {

/// The five oscillators of the chip's synthesizer, played by its registers (docs/wire-format.md).
class Oscillators {
 public:
  Oscillators() { Reset(); }

  /// Sets register `zRegister` (0 to 15) to `zValue`. A value outside the register's range counts
  /// as the nearest one in it. Other registers are ignored.
  void SetRegister(int zRegister, int zValue);

  /// Returns to the quiet state at once: no oscillator sounds, and the master volume is 96.
  void Reset();

  /// True when an oscillator has both a volume and a frequency above 0.
  bool IsSounding() const;

  /// The factor that the master volume applies to all sound, the voice too: 1 at 96.
  double MasterGain() const;

  /// The next sample, without the master volume. Volumes that add up to 63 give an amplitude of 1.
  double Next();

 private:
  struct Oscillator {
    double phase = 0;
    double gain = 0;   // approaches the volume slowly, so that nothing clicks
    double level = 0;  // the present value of noise, held for half a period
  };
  int Register(int zRegister) const { return registers_[static_cast<std::size_t>(zRegister)]; }
  double Tone(Oscillator& zOscillator, double zHertz);
  double HeldNoise(Oscillator& zOscillator, double zHertz);
  double Envelope();

  std::array<int, synth::RegisterCount> registers_{};
  std::array<Oscillator, synth::OscillatorCount> oscillators_{};
  double envelopePhase_ = 0;
  NoiseSource noise_;
};

}  // namespace loquitor
