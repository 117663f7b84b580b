#include "link/sound_library.h"

#include <utility>

#include "link/fresh_profile.h"
#include "link/trimmed_profile.h"

namespace loquitor {

SoundLibrary::SoundLibrary(std::filesystem::path zFolder) : folder_(std::move(zFolder)) {}

std::filesystem::path SoundLibrary::File() const {
  return folder_ / "OTSounds.txt";
}

std::string SoundLibrary::GetSoundValue(std::string_view zSection, std::string_view zKey,
                                        std::string_view zDefault) const {
  return ReadSettingValue(zSection, zKey, zDefault, File());
}

bool SoundLibrary::SaveSoundValue(std::string_view zSection, std::string_view zKey,
                                  int zValue) const {
  return WriteProfileValue(zSection, zKey, std::to_string(zValue), File());
}

bool SoundLibrary::SaveSoundValues(std::string_view zSection,
                                   std::span<const ProfileValue> zEntries) const {
  return WriteProfileValues(zSection, zEntries, File());
}

std::vector<std::string> SoundLibrary::SoundNames() const {
  const auto index = FreshIndexOf(File());
  if (!index) {
    return {};
  }
  const auto names = index->SectionNames();
  return {names.begin(), names.end()};
}

}  // namespace loquitor
