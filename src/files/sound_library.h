#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/profile_file.h"

namespace loquitor {

/// The library of named synth sounds (OTSounds.txt), one section for each sound. Every call reads
/// or writes the file itself: nothing is kept in memory that could be stale. All texts are bytes in
/// Windows-1252.
class SoundLibrary {
 public:
  /// `zFolder` is the folder of the program's files.
  explicit SoundLibrary(const std::filesystem::path& zFolder) : file_(zFolder / "OTSounds.txt") {}

  /// The value under `zSection`, `zKey`, as ProfileFile::ReadSetting gives it.
  std::string GetSoundValue(std::string_view zSection, std::string_view zKey,
                            std::string_view zDefault) const {
    return file_.ReadSetting(zSection, zKey, zDefault);
  }

  /// Stores `zValue` in decimal under `zSection`, `zKey`, by ProfileFile::Write. A failure is not
  /// reported.
  void SaveSoundValue(std::string_view zSection, std::string_view zKey, int zValue) const {
    static_cast<void>(file_.Write(zSection, zKey, std::to_string(zValue)));
  }

  /// Stores many values of `zSection` in one change of the file: all of them or none, so that the
  /// file never holds half a sound. A failure is not reported.
  void SaveSoundValues(std::string_view zSection, std::span<const ProfileValue> zValues) const {
    static_cast<void>(file_.Write(zSection, zValues));
  }

  /// The names of the sounds, in the order of the file.
  std::vector<std::string> SoundNames() const {
    const auto library = file_.Snapshot();
    const auto names = library->SectionNames();
    return {names.begin(), names.end()};
  }

 private:
  ProfileFile file_;
};

}  // namespace loquitor
