#pragma once

#include <vector>

#include "voice/sound_table.h"
#include "voice/vocal_tract.h"

namespace loquitor {

/// What is around a sound. A missing neighbour is silence.
struct SoundContext {
  const Sound* before = nullptr;
  const Sound* after = nullptr;
  bool isLastVowel = true;           ///< no other vowel follows in this phrase
  const TractFrame* from = nullptr;  ///< the last frame of `before`, from which to move on
};

/// How a sound is said: the modifiers and controls that hold for it.
struct Manner {
  double tempo = 1;     ///< its duration is divided by this
  double loudness = 1;  ///< a factor
  bool isSoft = false;  ///< breathy
};

/// The movement of a sound, frame by frame: targets, duration and the ways to and from its
/// neighbours. At least one frame.
std::vector<TractFrame> Articulate(const Sound& zSound, const SoundContext& zContext,
                                   const Manner& zManner);

/// True for the sounds that a syllable is built around.
bool IsVowel(const Sound& zSound);

}  // namespace loquitor
