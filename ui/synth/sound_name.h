#pragma once

#include <string_view>

namespace loquitor {

/// What is wrong with `zName` as the name of a sound, as a message to the user; empty when nothing
/// is. A name is the name of a section of the sound library: not empty, no blanks at its ends, no
/// closing bracket, no control character.
std::string_view FaultOfSoundName(std::string_view zName);

}  // namespace loquitor
