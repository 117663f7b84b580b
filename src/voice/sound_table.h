#pragma once

#include <cstdint>
#include <span>

#include "voice/vocal_tract.h"

namespace loquitor {

/// How a sound is made. Each kind has its own rules in articulation.cpp.
enum class SoundKind { Vowel, Glide, Nasal, Breath, Fricative, Stop };

/// The first three formants in hertz.
struct Formants {
  double f1;
  double f2;
  double f3;
};

/// The transition between a sound and its neighbour. The sound with the higher rank decides. At the
/// border the formants are its own, moved toward those of its neighbour by its pulls: 0 does not
/// move them, 1 moves them all the way.
struct Border {
  int rank;
  double f1Pull;     ///< for the first formant
  double pull;       ///< for the second and third formant
  double insideMs;   ///< duration of the transition within the sound
  double outsideMs;  ///< and within its neighbour
};

/// The targets of one sound at the default speed. Decibels are relative to the voice of a vowel.
struct VoiceSound {
  std::uint8_t code;
  SoundKind kind;
  double ms;      ///< duration; of a vowel at the end of a phrase, of a stop its noise alone
  Formants from;  ///< at the start
  Formants to;    ///< at the end; differs from `from` in diphthongs
  Border border;
  bool isVoiced = true;
  double voiceDecibels = 0;
  NoisePlace place = NoisePlace::None;
  double noiseDecibels = 0;  ///< of the steady noise
  double closureMs = 0;      ///< of stops and affricates, as all below
  double burstMs = 0;
  double burstDecibels = 0;
  double breathMs = 0;  ///< of the aspiration after the burst
};

/// The sounds of the codes 128 to 199, in this order.
std::span<const VoiceSound> SoundTable();

/// The sound of a code from 128 to 199; null for every other code.
const VoiceSound* FindSound(std::uint8_t zCode);

}  // namespace loquitor
