#include "link/settings_file.h"

#include <charconv>
#include <system_error>
#include <utility>

#include "link/profile_edit.h"
#include "link/profile_lines.h"
#include "link/trimmed_profile.h"

namespace loquitor {

SettingsFile::SettingsFile(std::filesystem::path zFolder) : folder_(std::move(zFolder)) {}

std::filesystem::path SettingsFile::File() const {
  return folder_ / "Loquitor.ini";
}

std::string SettingsFile::GetIniValue(std::string_view zSection, std::string_view zKey,
                                      std::string_view zDefault) const {
  return ReadSettingValue(zSection, zKey, zDefault, File());
}

bool SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                std::string_view zValue) const {
  return WriteProfileValue(zSection, zKey, zValue, File());
}

bool SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                int zValue) const {
  return SaveIniValue(zSection, zKey, std::string_view(std::to_string(zValue)));
}

bool SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                bool zValue) const {
  return SaveIniValue(zSection, zKey, std::string_view(zValue ? "True" : "False"));
}

bool SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                const char* zValue) const {
  return SaveIniValue(zSection, zKey, std::string_view(zValue));
}

bool SettingsFile::SaveIniValues(std::string_view zSection,
                                 std::span<const ProfileValue> zEntries) const {
  return WriteProfileValues(zSection, zEntries, File());
}

std::string SavedForm(std::string_view zValue) {
  const std::string line = InOneLine(zValue);
  return std::string(TrimSpacesAndNuls(WithoutQuotes(TrimBlanks(line))));
}

bool IsTrueText(std::string_view zText) {
  const std::string_view text = TrimBlanks(zText);
  if (EqualNames(text, "true")) {
    return true;
  }
  if (text.find_first_of("0123456789") == std::string_view::npos) {
    return false;  // the conversion below would take words like "inf"
  }
  const std::string_view number = text.front() == '+' && text[1] != '-' ? text.substr(1) : text;
  const char* const end = number.data() + number.size();
  double value = 0;
  const auto [stop, error] = std::from_chars(number.data(), end, value);
  const bool isNumber = stop == end && error != std::errc::invalid_argument;
  return isNumber && (value != 0 || error == std::errc::result_out_of_range);
}

bool IsFlowControlStored(const SettingsFile& zSettings) {
  const std::string stored = zSettings.GetIniValue("Serial", "FlowControl", "1");
  const char* const end = stored.data() + stored.size();
  int value = 1;
  const bool isNumber = std::from_chars(stored.data(), end, value).ptr == end;
  return !isNumber || (value != 0 && value != 2);
}

}  // namespace loquitor
