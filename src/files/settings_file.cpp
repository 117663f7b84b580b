#include "files/settings_file.h"

#include <charconv>

#include "files/profile_lines.h"
#include "text/number_text.h"
#include "text/words.h"

namespace loquitor {

void SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                int zValue) const {
  SaveIniValue(zSection, zKey, std::string_view(std::to_string(zValue)));
}

void SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                bool zValue) const {
  SaveIniValue(zSection, zKey, std::string_view(zValue ? "True" : "False"));
}

void SettingsFile::SaveIniValue(std::string_view zSection, std::string_view zKey,
                                const char* zValue) const {
  SaveIniValue(zSection, zKey, std::string_view(zValue));
}

std::string ValueAfterSaving(std::string_view zValue) {
  const std::string line = InOneLine(zValue);
  return std::string(TrimSpacesAndNuls(WithoutQuotes(TrimBlanks(line))));
}

bool IsTrueText(std::string_view zText) {
  return EqualNames(TrimBlanks(zText), "true") || NumberAtStart(zText) != 0;
}

bool WantsFlowControl(const SettingsFile& zSettings) {
  const std::string stored = zSettings.GetIniValue("Serial", "FlowControl", "1");
  const char* const end = stored.data() + stored.size();
  int value = 1;
  const bool isNumber = std::from_chars(stored.data(), end, value).ptr == end;
  return !isNumber || (value != 0 && value != 2);
}

}  // namespace loquitor
