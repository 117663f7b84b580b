#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "link/profile_file.h"

namespace loquitor {

/// The library of named synth sounds (OTSounds.txt) in the program's folder: one section a sound.
/// Keeps nothing in memory: each call goes to the file. All texts are bytes in Windows-1252.
class SoundLibrary {
 public:
  /// `zFolder` is the folder of the program.
  explicit SoundLibrary(std::filesystem::path zFolder);

  /// The value under `zSection`, `zKey`: at most 255 bytes, without blanks around it and without
  /// trailing NULs; `zDefault` when nothing is left or the key is missing.
  std::string GetSoundValue(std::string_view zSection, std::string_view zKey,
                            std::string_view zDefault) const;

  /// Stores `zValue`, in decimal, under `zSection`, `zKey`. False when it could not be stored: the
  /// file cannot be written, or the name cannot be held (a closing bracket or a line break in it).
  bool SaveSoundValue(std::string_view zSection, std::string_view zKey, int zValue) const;

  /// Stores many values of `zSection`, each as SaveSoundValue would, in one change of the file, so
  /// that it never holds half a sound. False when they could not be stored; none of them is then.
  bool SaveSoundValues(std::string_view zSection, std::span<const ProfileValue> zEntries) const;

  /// The names of the sounds, in the order of the file.
  std::vector<std::string> SoundNames() const;

 private:
  std::filesystem::path File() const;

  std::filesystem::path folder_;
};

}  // namespace loquitor
