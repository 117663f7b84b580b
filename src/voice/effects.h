#pragma once

#include <cstdint>

#include "voice/filters.h"

namespace loquitor {

enum class Wave : std::uint8_t { Sine, Square, Saw, Triangle, Noise };

/// One value of a wave of height 1 at `zPhase` (0 to 1). `Noise` has no value of its own and gives
/// 0.
double WaveAt(Wave zWave, double zPhase);

/// The recipe of a sound effect: a tone or noise that moves, by itself or in repeated strokes.
struct Effect {
  std::uint8_t code;
  Wave wave;
  double startHz;  ///< at the beginning of each stroke
  double endHz;    ///< at its end; the way is even in pitch
  double strokeMs;
  double ms;                 ///< the whole effect
  double soundingShare = 1;  ///< of each stroke; the rest is silent
  double fadeMs = 0;         ///< time constant of the decay in each stroke; 0 does not decay
  double wobbleHz = 0;       ///< vibrato
  double wobbleShare = 0;    ///< of the frequency, up and down
  double ringHz = 0;         ///< multiplied with a sine of this frequency; 0 is off
  double secondHz = 0;       ///< a second, steady sine in place of half the loudness; 0 is off
  double filterStartHz = 0;  ///< of a resonance that moves through each stroke; 0 is off
  double filterEndHz = 0;
};

/// The row of an effect code, 200 to 254, or nothing for every other code.
const Effect* FindEffect(std::uint8_t zCode);

/// Plays one effect.
class EffectPlayer {
 public:
  /// Starts from the beginning. `zTempo` divides its times, `zLoudness` is its height.
  void Start(const Effect& zEffect, double zTempo, double zLoudness);

  bool IsOver() const { return at_ >= length_; }

  /// The next sample, between minus and plus the loudness.
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
