#pragma once

#include <array>
#include <string_view>

#include "files/sound_library.h"
#include "ui/synth/synth_values.h"

namespace loquitor {

/// What the sound library stores under one name: the five oscillators, oscillator 1 first.
struct Sound {
  std::array<int, synth::OscillatorCount> frequencies{};  ///< 0 to synth::MaxFrequency
  std::array<int, synth::OscillatorCount> volumes{};      ///< 0 to synth::MaxVolume
};

/// The sound of that name. A value that is missing reads as 0, one that is out of range as the
/// nearest one in range.
Sound ReadSound(const SoundLibrary& zLibrary, std::string_view zName);

/// Stores the sound in one change of the file. When the file cannot be written it stays as it is,
/// and there is no message.
void SaveSound(const SoundLibrary& zLibrary, std::string_view zName, const Sound& zSound);

/// Why `zName` cannot be the name of a sound, as a message to the user. Empty when it can. A name
/// is the name of a section of the sound library: it is not empty and has no blanks at its ends, no
/// closing bracket and no control character.
std::string_view FaultOfSoundName(std::string_view zName);

}  // namespace loquitor
