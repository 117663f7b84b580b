#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/profile_edit.h"
#include "files/profile_snapshot.h"

namespace loquitor {

/// One profile (INI) file, which need not exist. The format is in docs/file-formats.md.
///
/// Nothing that it returns is stale: every call asks the system whether the file has changed.
/// The first read indexes the file; reads of the unchanged file then cost one question to the file
/// system and one hash lookup. Not for use by several threads at once.
class ProfileFile {
 public:
  explicit ProfileFile(std::filesystem::path zPath);

  const std::filesystem::path& Path() const { return path_; }

  /// The value of the first key `zKey` in the first section `zSection`. Letter case (A to Z and the
  /// accented letters of Windows-1252) and blanks around the names do not count. The value comes as
  /// it is in the file, without the blanks around it and without one matching pair of quotation
  /// marks, cut to `zBufferLength` - 1 bytes (0 gives the empty text). A key without a value gives
  /// the empty text. When the file, the section or the key is missing, or the file cannot be read,
  /// the result is `zDefault`, cut likewise.
  std::string Read(std::string_view zSection, std::string_view zKey, std::string_view zDefault,
                   std::size_t zBufferLength) const;

  /// The most bytes that ReadSetting returns, unless its default is longer and used as it is.
  static constexpr std::size_t MaxSetting = 255;

  /// Read with room for MaxSetting bytes, then trimmed by TrimSpacesAndNuls. When nothing is left,
  /// the result is `zDefault` exactly as given.
  std::string ReadSetting(std::string_view zSection, std::string_view zKey,
                          std::string_view zDefault) const;

  /// Replaces the value of the key that Read would find, or adds the key after the last line of its
  /// section that is not blank, or adds the section at the end of the file, or creates the file.
  /// All other bytes of the file stay as they were. A value is stored in one line: line breaks in
  /// it are left out. A value that is there already is not written again.
  ///
  /// Returns false, with the old file unchanged and no other file left, when the format cannot hold
  /// a name (a key that is empty, has an equals sign or begins with an opening bracket or a
  /// semicolon; a section with a closing bracket; a line break in either), when the file cannot be
  /// written, or when another writer keeps its folder locked for a second.
  ///
  /// The write is atomic: a new file next to the old one, flushed to disk, then swapped.
  /// Permissions are kept and symbolic links followed. Other processes may write through this class
  /// meanwhile.
  bool Write(std::string_view zSection, std::string_view zKey, std::string_view zValue) const;

  /// Writes all `zValues` of one section, as Write would one after the other, in one atomic change
  /// of the file. False, with the old file whole, when any of them cannot be written.
  bool Write(std::string_view zSection, std::span<const ProfileValue> zValues) const;

  /// The file as it is now, for several lookups in one state of it; never null. A file that cannot
  /// be read is an empty one. It stays valid as long as the caller holds it.
  std::shared_ptr<const ProfileSnapshot> Snapshot() const;

 private:
  void ReadAgain() const;

  std::filesystem::path path_;
  mutable std::shared_ptr<const ProfileSnapshot> snapshot_;  ///< what was read last, or null
  mutable FileStamp stamp_;                                  ///< of snapshot_
  mutable bool isStampReliable_ = false;
};

/// ProfileFile::Read for one value of the file `zFile`.
std::string ReadProfileValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile);

/// ProfileFile::Write for one value of the file `zFile`.
bool WriteProfileValue(std::string_view zSection, std::string_view zKey, std::string_view zValue,
                       const std::filesystem::path& zFile);

}  // namespace loquitor
