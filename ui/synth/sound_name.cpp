#include "ui/synth/sound_name.h"

#include <algorithm>

namespace loquitor {

namespace {

bool IsBlank(char zCharacter) {
  return zCharacter == ' ' || zCharacter == '\t';
}

bool IsControl(char zCharacter) {
  return static_cast<unsigned char>(zCharacter) < ' ';
}

}  // namespace

std::string_view FaultOfSoundName(std::string_view zName) {
  if (std::all_of(zName.begin(), zName.end(), IsBlank)) {
    return "Type the name of the sound into the Sound box first.";
  }
  if (IsBlank(zName.front()) || IsBlank(zName.back())) {
    return "The name of a sound cannot begin or end with a blank. Remove the blank and try again.";
  }
  if (zName.find(']') != std::string_view::npos ||
      std::any_of(zName.begin(), zName.end(), IsControl)) {
    return "The name of a sound cannot hold a closing bracket ( ] ) or a control character. "
           "Choose another name and try again.";
  }
  return {};
}

}  // namespace loquitor
