#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "files/profile_file.h"

namespace loquitor {

/// The settings file (Loquitor.ini). Every call reads or writes the file itself: nothing is kept in
/// memory that could be stale. All texts are bytes in Windows-1252.
class SettingsFile {
 public:
  /// `zFolder` is the folder of the program's files.
  explicit SettingsFile(const std::filesystem::path& zFolder) : file_(zFolder / "Loquitor.ini") {}

  /// The value under `zSection`, `zKey`, as ProfileFile::ReadSetting gives it.
  std::string GetIniValue(std::string_view zSection, std::string_view zKey,
                          std::string_view zDefault) const {
    return file_.ReadSetting(zSection, zKey, zDefault);
  }

  /// Stores `zValue` under `zSection`, `zKey`, by ProfileFile::Write. A failure is not reported.
  void SaveIniValue(std::string_view zSection, std::string_view zKey,
                    std::string_view zValue) const {
    static_cast<void>(file_.Write(zSection, zKey, zValue));
  }

  /// The same for other types. A number is stored in decimal, a truth value as True or False.
  void SaveIniValue(std::string_view zSection, std::string_view zKey, int zValue) const;
  void SaveIniValue(std::string_view zSection, std::string_view zKey, bool zValue) const;
  void SaveIniValue(std::string_view zSection, std::string_view zKey, const char* zValue) const;

  /// Stores many values of `zSection` in one change of the file: all of them or none. A failure is
  /// not reported.
  void SaveIniValues(std::string_view zSection, std::span<const ProfileValue> zValues) const {
    static_cast<void>(file_.Write(zSection, zValues));
  }

  /// The path of the file.
  const std::filesystem::path& File() const { return file_.Path(); }

  /// The folder given to the constructor.
  std::filesystem::path Folder() const { return file_.Path().parent_path(); }

 private:
  ProfileFile file_;
};

/// What GetIniValue returns for `zValue` after it was saved, with two differences: this result is
/// not cut to ProfileFile::MaxSetting bytes, and the empty text is not replaced by a default.
std::string ValueAfterSaving(std::string_view zValue);

/// The truth value that a stored text means. The word True (any letter case) and a number other
/// than 0 are true, everything else is false. Numbers are read by NumberAtStart.
bool IsTrueText(std::string_view zText);

/// Whether the setting "Serial", "FlowControl" asks for hardware flow control. It does unless it is
/// the number 0 or 2 (2 is a greyed check box).
bool WantsFlowControl(const SettingsFile& zSettings);

}  // namespace loquitor
