#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace loquitor {

/// Reads one value of a profile (INI) file. The format is in docs/file-formats.md.
///
/// `zSection` and `zKey` match without regard to letter case (A to Z and the accented letters of
/// Windows-1252); blanks around them are ignored. The result is the value of the first matching key
/// of the first matching section, bytes as they stand in the file, without the blanks around it and
/// without one matching pair of quotation marks, cut to `zBufferLength` - 1 bytes (0 gives the
/// empty text). When the file, the section or the key is missing or the file cannot be read, the
/// result is `zDefault`, cut likewise; a key that exists with an empty value gives the empty text.
///
/// Cost: the first read of a file reads and indexes it; later reads of the unchanged file are one
/// question to the file system and one hash lookup. What is returned is never stale: the index is
/// proved fresh (identity, size, times) before each use.
std::string ReadProfileValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile);

/// Writes one value of a profile (INI) file: replaces the value of the key that a read would find,
/// or adds the key behind the last line of its section that is not blank, or adds the section at
/// the end of the file, or creates the file. All other bytes of the file stay as they were.
///
/// `zValue` is stored in one line: each run of line breaks in it becomes one blank.
/// Returns false, with the old file whole and nothing left behind, when a name cannot be held by
/// the format (a key that is empty, holds an equals sign or begins with an opening bracket or a
/// semicolon, a closing bracket in the section, a line break in either) or the file cannot be
/// written. A value that stands there already is not written again.
///
/// The write is atomic (new file beside the old one, flushed, swapped; permissions kept, symbolic
/// links followed), and safe against other programs that write through this function at once.
bool WriteProfileValue(std::string_view zSection, std::string_view zKey, std::string_view zValue,
                       const std::filesystem::path& zFile);

/// One value of a section.
struct ProfileValue {
  std::string key;
  std::string value;
};

/// Writes all `zEntries` of one section as WriteProfileValue would one after the other, but in one
/// atomic change of the file. False, with the old file whole, when any of them cannot be held.
bool WriteProfileValues(std::string_view zSection, std::span<const ProfileValue> zEntries,
                        const std::filesystem::path& zFile);

}  // namespace loquitor
