#include "link/trimmed_profile.h"

#include "link/profile_file.h"

namespace loquitor {

std::string_view TrimSpacesAndNuls(std::string_view zText) {
  while (!zText.empty() && zText.front() == ' ') {
    zText.remove_prefix(1);
  }
  while (!zText.empty() && (zText.back() == ' ' || zText.back() == '\0')) {
    zText.remove_suffix(1);
  }
  return zText;
}

std::string ReadTrimmedValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile) {
  return std::string(
      TrimSpacesAndNuls(ReadProfileValue(zSection, zKey, zDefault, zBufferLength, zFile)));
}

std::string ReadSettingValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, const std::filesystem::path& zFile) {
  std::string value = ReadTrimmedValue(zSection, zKey, zDefault, MaxSettingValue + 1, zFile);
  return value.empty() ? std::string(zDefault) : value;
}

}  // namespace loquitor
