#pragma once

#include <cstdint>

#include "voice/filters.h"

namespace loquitor {

/// The form of an oscillation.
enum class Wave : std::uint8_t { Sine, Square, Saw, Triangle, Noise };

/// The value of a wave with amplitude 1 at `zPhase` (0 to 1). 0 for `Noise`, which is not a
/// function of the phase.
double WaveAt(Wave zWave, double zPhase);

/// The recipe of a sound effect: a tone or noise in one stroke, or in several that repeat.
struct Effect {
  std::uint8_t code;
  Wave wave;
  double startHz;            ///< at the start of each stroke
  double endHz;              ///< at the end of each stroke; the pitch changes evenly
  double strokeMs;           ///< duration of a stroke
  double ms;                 ///< duration of the whole effect
  double soundingShare = 1;  ///< share of each stroke that sounds; the rest is silent
  double fadeMs = 0;         ///< time constant of the decay in each stroke; 0 does not decay
  double wobbleHz = 0;       ///< rate of a vibrato
  double wobbleShare = 0;    ///< depth of the vibrato, as a share of the frequency
  double ringHz = 0;         ///< frequency of a sine that multiplies the wave; 0 is off
  double secondHz = 0;       ///< frequency of a steady sine that makes up half the sound; 0 is off
  double filterStartHz = 0;  ///< a resonance's frequency at the start of each stroke; 0 is off
  double filterEndHz = 0;    ///< and at its end
};

/// The effect of a code from 200 to 254; null for every other code.
const Effect* FindEffect(std::uint8_t zCode);

/// Plays one effect.
class EffectPlayer {
 public:
  /// Starts an effect from its beginning. Its durations are divided by `zTempo`. `zLoudness` is its
  /// amplitude.
  void Start(const Effect& zEffect, double zTempo, double zLoudness);

  /// True when the effect has been played to its end, and before the first Start.
  bool IsOver() const { return at_ >= length_; }

  /// The next sample, between minus and plus the loudness. There must have been a Start.
  double Next();

 private:
  double Filter(double zSound, double zStrokeShare);

  Effect effect_{};
  double tempo_ = 1;
  double loudness_ = 1;
  std::int64_t at_ = 0;
  std::int64_t length_ = 0;
  double phase_ = 0;
  NoiseSource noise_;
  Resonator filter_;
};

}  // namespace loquitor
