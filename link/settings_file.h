#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "link/profile_file.h"

namespace loquitor {

/// The settings file (Loquitor.ini) in the program's folder. Keeps nothing in memory: each call
/// goes to the file. All texts are bytes in Windows-1252.
class SettingsFile {
 public:
  /// `zFolder` is the folder of the program.
  explicit SettingsFile(std::filesystem::path zFolder);

  /// The value under `zSection`, `zKey`: at most 255 bytes, without blanks around it and without
  /// trailing NULs. When the key is missing, `zDefault` is cut and trimmed likewise; when nothing
  /// is left either way, the result is `zDefault` exactly as given.
  std::string GetIniValue(std::string_view zSection, std::string_view zKey,
                          std::string_view zDefault) const;

  /// Writes the value under `zSection`, `zKey`. False when it could not be stored.
  bool SaveIniValue(std::string_view zSection, std::string_view zKey,
                    std::string_view zValue) const;

  /// Whole numbers are written in decimal, truth values as the words True and False.
  bool SaveIniValue(std::string_view zSection, std::string_view zKey, int zValue) const;
  bool SaveIniValue(std::string_view zSection, std::string_view zKey, bool zValue) const;
  bool SaveIniValue(std::string_view zSection, std::string_view zKey, const char* zValue) const;

  /// Writes many values of `zSection`, each as SaveIniValue would, in one change of the file. False
  /// when they could not be stored; none of them is then.
  bool SaveIniValues(std::string_view zSection, std::span<const ProfileValue> zEntries) const;

  /// The folder given to the constructor.
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  std::filesystem::path File() const;

  std::filesystem::path folder_;
};

/// What GetIniValue gives back of `zValue` once that is saved (or its default when that is empty),
/// but for the cut: it gives the first MaxSettingValue bytes (link/trimmed_profile.h) of it.
std::string SavedForm(std::string_view zValue);

/// A stored truth value: the word True, or any number but 0, is true; everything else is false.
/// Letter case does not count.
bool IsTrueText(std::string_view zText);

/// Whether hardware flow control is stored as wanted ("Serial", "FlowControl"): the numbers 0 and 2
/// (a greyed box) say no; 1, everything else and no entry say yes.
bool IsFlowControlStored(const SettingsFile& zSettings);

}  // namespace loquitor
