#pragma once

#include <cstdint>
#include <span>

#include "voice/vocal_tract.h"

namespace loquitor {

/// How a sound is made; the rules of articulation.h differ by it.
enum class SoundKind { Vowel, Glide, Nasal, Breath, Fricative, Stop };

/// The first three formants in hertz.
struct Formants {
  double f1;
  double f2;
  double f3;
};

/// How a sound and its neighbour share the way between their formants. At the border the formants
/// are those of the sound with the higher rank, moved by its pulls (0 to 1, for F1 and for F2 and
/// F3) toward its neighbour's.
struct Border {
  int rank;
  double f1Pull;
  double pull;
  double insideMs;   ///< of the way within the sound
  double outsideMs;  ///< within its neighbour
};

/// The targets of one sound at the usual speed.
struct Sound {
  std::uint8_t code;
  SoundKind kind;
  double ms;  ///< vowel: at the end of a phrase; obstruent: its noise
  Formants from;
  Formants to;  ///< differs from `from` in diphthongs
  Border border;
  bool isVoiced = true;
  double voiceDecibels = 0;  ///< below a vowel's
  NoisePlace place = NoisePlace::None;
  double noiseDecibels = 0;  ///< of the steady noise, against a vowel's voice
  double closureMs = 0;      ///< stops and affricates
  double burstMs = 0;
  double burstDecibels = 0;
  double breathMs = 0;  ///< aspiration after the burst
};

/// The sounds 128 to 199, in code order.
std::span<const Sound> SoundTable();

/// The row of a code, or nothing for a code that is no sound of the voice.
const Sound* FindSound(std::uint8_t zCode);

}  // namespace loquitor
