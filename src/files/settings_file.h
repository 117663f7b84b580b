#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "files/profile_file.h"

namespace loquitor {

/// The settings file (Loquitor.ini) in the folder of the program's files. Every call goes to the
/// file as it is then. All texts are bytes in Windows-1252.
class SettingsFile {
 public:
  /// `zFolder` is the folder of the program's files.
  explicit SettingsFile(const std::filesystem::path& zFolder) : file_(zFolder / "Loquitor.ini") {}

  /// The value under `zSection`, `zKey`, as ProfileFile::ReadSetting gives it.
  std::string GetIniValue(std::string_view zSection, std::string_view zKey,
                          std::string_view zDefault) const {
    return file_.ReadSetting(zSection, zKey, zDefault);
  }

  /// Writes the value under `zSection`, `zKey`. A value that cannot be stored is not reported.
  void SaveIniValue(std::string_view zSection, std::string_view zKey,
                    std::string_view zValue) const {
    static_cast<void>(file_.Write(zSection, zKey, zValue));
  }

  /// Whole numbers are written in decimal, truth values as the words True and False.
  void SaveIniValue(std::string_view zSection, std::string_view zKey, int zValue) const;
  void SaveIniValue(std::string_view zSection, std::string_view zKey, bool zValue) const;
  void SaveIniValue(std::string_view zSection, std::string_view zKey, const char* zValue) const;

  /// Writes many values of `zSection`, each as SaveIniValue would, in one change of the file: all
  /// of them or none.
  void SaveIniValues(std::string_view zSection, std::span<const ProfileValue> zValues) const {
    static_cast<void>(file_.Write(zSection, zValues));
  }

  /// The folder given to the constructor.
  std::filesystem::path Folder() const { return file_.Path().parent_path(); }

 private:
  ProfileFile file_;
};

/// What GetIniValue returns of `zValue` after it was saved, except that this is not cut to
/// ProfileFile::MaxSetting bytes, and that GetIniValue returns its default for the empty text.
std::string ValueAfterSaving(std::string_view zValue);

/// A stored truth value: the word True, in any letter case, and a number other than 0 are true;
/// everything else is false. Numbers are read as in text boxes.
bool IsTrueText(std::string_view zText);

/// Whether hardware flow control is stored as wanted ("Serial", "FlowControl"): the numbers 0 and 2
/// (a greyed box) say no; 1, everything else and no entry say yes.
bool IsFlowControlStored(const SettingsFile& zSettings);

}  // namespace loquitor
