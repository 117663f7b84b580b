#pragma once

#include <vector>

#include "voice/sound_table.h"
#include "voice/vocal_tract.h"

namespace loquitor {

/// The neighbours of a sound. A null neighbour is silence.
struct SoundContext {
  const VoiceSound* before = nullptr;
  const VoiceSound* after = nullptr;
  bool isLastVowel = true;           ///< no other vowel follows in this phrase
  const TractFrame* from = nullptr;  ///< the last frame of `before`; null when that is null
};

/// How a sound is said: the effect of the modifiers and controls that apply to it.
struct Manner {
  double tempo = 1;     ///< the duration is divided by this
  double loudness = 1;  ///< a factor
  bool isSoft = false;  ///< breathy
};

/// The movement of a sound, one frame for each 2 ms: its targets, and the transitions from and to
/// its neighbours. At least one frame. docs/voice.md describes the rules.
std::vector<TractFrame> Articulate(const VoiceSound& zSound, const SoundContext& zContext,
                                   const Manner& zManner);

/// True for vowels and diphthongs.
bool IsVowel(const VoiceSound& zSound);

}  // namespace loquitor
