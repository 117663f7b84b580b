#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "files/profile_edit.h"
#include "files/profile_snapshot.h"

namespace loquitor {

/// One profile (INI) file, which need not exist. The format is in docs/file-formats.md.
///
/// No result is stale: every call asks the system whether the file has changed. The first read
/// indexes the file. Later reads of the unchanged file cost one call to the file system and a
/// lookup in the index. Not for use by several threads at once.
class ProfileFile {
 public:
  explicit ProfileFile(std::filesystem::path zPath);

  const std::filesystem::path& Path() const { return path_; }

  /// The value of the first key `zKey` in the first section `zSection`. Letter case (A to Z and the
  /// accented letters of Windows-1252) and blanks around the names do not count. The value is as in
  /// the file, without the blanks around it and without one matching pair of quotation marks, cut
  /// to `zBufferLength` - 1 bytes (a length of 0 gives the empty text). A key without a value gives
  /// the empty text. When the section or the key is missing, or the file is missing or cannot be
  /// read, the result is `zDefault`, cut to the same length.
  std::string Read(std::string_view zSection, std::string_view zKey, std::string_view zDefault,
                   std::size_t zBufferLength) const;

  /// The most bytes of a value that ReadSetting returns.
  static constexpr std::size_t MaxSetting = 255;

  /// The result of Read, cut to MaxSetting bytes and trimmed by TrimSpacesAndNuls. When nothing is
  /// left, the result is `zDefault` exactly as given.
  std::string ReadSetting(std::string_view zSection, std::string_view zKey,
                          std::string_view zDefault) const;

  /// Stores a value as TextWithValues describes, and creates the file when it is missing. All other
  /// bytes of the file stay as they were. A value is stored in one line: its line breaks are left
  /// out. A value that is there already is not written again.
  ///
  /// The write is atomic: a new file next to the old one, flushed to disk, then renamed.
  /// Permissions are kept and symbolic links followed. Other processes may write through this class
  /// at the same time.
  ///
  /// Returns false when the format cannot hold a name, when the file cannot be read or written, or
  /// when another writer keeps its folder locked for a second. The old file is then unchanged and
  /// no other file is left.
  bool Write(std::string_view zSection, std::string_view zKey, std::string_view zValue) const;

  /// Writes all `zValues` of one section, with the same result as Write for one after the other, in
  /// one atomic change of the file. False when any of them cannot be written; then none is.
  bool Write(std::string_view zSection, std::span<const ProfileValue> zValues) const;

  /// The file as it is now, for several lookups in one state of it. Never null. A file that cannot
  /// be read counts as empty.
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
