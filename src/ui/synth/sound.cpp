#include "ui/synth/sound.h"

#include <algorithm>
#include <string>
#include <vector>

#include "files/profile_lines.h"

namespace loquitor {

namespace {

std::string FrequencyKey(std::size_t zPlace) {
  return "Freq" + std::to_string(zPlace + 1);
}

std::string VolumeKey(std::size_t zPlace) {
  return "Vol" + std::to_string(zPlace + 1);
}

bool IsControl(char zCharacter) {
  return static_cast<unsigned char>(zCharacter) < ' ';
}

}  // namespace

Sound ReadSound(const SoundLibrary& zLibrary, std::string_view zName) {
  const auto read = [&](const std::string& zKey, int zMaximum) {
    return WholeNumberInRange(zLibrary.GetSoundValue(zName, zKey, "0"), zMaximum);
  };
  Sound sound;
  for (std::size_t i = 0; i < synth::OscillatorCount; ++i) {
    sound.frequencies[i] = read(FrequencyKey(i), synth::MaxFrequency);
    sound.volumes[i] = read(VolumeKey(i), synth::MaxVolume);
  }
  return sound;
}

void SaveSound(const SoundLibrary& zLibrary, std::string_view zName, const Sound& zSound) {
  std::vector<ProfileValue> values;
  for (std::size_t i = 0; i < synth::OscillatorCount; ++i) {
    values.push_back({FrequencyKey(i), std::to_string(zSound.frequencies[i])});
    values.push_back({VolumeKey(i), std::to_string(zSound.volumes[i])});
  }
  zLibrary.SaveSoundValues(zName, values);
}

std::string_view FaultOfSoundName(std::string_view zName) {
  if (TrimBlanks(zName).empty()) {
    return "Type the name of the sound into the Sound box first.";
  }
  if (TrimBlanks(zName) != zName) {
    return "The name of a sound cannot begin or end with a blank. Remove the blank and try again.";
  }
  if (UnstorableInSection(zName) || std::any_of(zName.begin(), zName.end(), IsControl)) {
    return "The name of a sound cannot contain a closing bracket ( ] ) or a control character. "
           "Choose another name and try again.";
  }
  return {};
}

}  // namespace loquitor
