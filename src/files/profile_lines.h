#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <optional>
#include <string_view>

#include "text/letters.h"
#include "text/words.h"

/// The grammar of profile files, line by line (docs/file-formats.md). Blanks are spaces and tabs.
namespace loquitor {

/// The order of two names in lower case (Windows-1252), byte by byte. Names that differ at most in
/// letter case are equal.
inline std::strong_ordering CompareNames(std::string_view zLeft, std::string_view zRight) {
  return std::lexicographical_compare_three_way(
      zLeft.begin(), zLeft.end(), zRight.begin(), zRight.end(), [](char zOne, char zOther) {
        const auto lower = [](char zLetter) {
          return static_cast<unsigned char>(LowerCaseTable[static_cast<unsigned char>(zLetter)]);
        };
        return lower(zOne) <=> lower(zOther);
      });
}

/// True when the two names differ at most in letter case (Windows-1252).
inline bool EqualNames(std::string_view zLeft, std::string_view zRight) {
  return CompareNames(zLeft, zRight) == 0;
}

/// The character that keeps `zKey` from being a key: a line break, an equals sign, or an opening
/// bracket or a semicolon at its start. Nothing when there is none.
inline std::optional<char> UnstorableInKey(std::string_view zKey) {
  const bool isLikeOther = zKey.starts_with('[') || zKey.starts_with(';');
  const std::size_t at = isLikeOther ? 0 : zKey.find_first_of("\r\n=");
  return at == std::string_view::npos ? std::nullopt : std::optional(zKey[at]);
}

/// The character that keeps `zName` from being the name of a section: a line break or a closing
/// bracket. Nothing when there is none.
inline std::optional<char> UnstorableInSection(std::string_view zName) {
  const std::size_t at = zName.find_first_of("\r\n]");
  return at == std::string_view::npos ? std::nullopt : std::optional(zName[at]);
}

/// One line of a text.
struct ProfileLine {
  std::string_view text;  ///< without its line end
  std::size_t begin;      ///< offset of its first byte in the whole text
  std::size_t next;       ///< offset after its line end; begin + text.size() when it has none
};

/// Hands out the lines of a text from first to last. A line ends at CR LF, LF or CR. A byte order
/// mark (EF BB BF) at the start of the text is skipped.
class ProfileLineReader {
 public:
  /// `zText` must outlive the reader and its lines.
  explicit ProfileLineReader(std::string_view zText);

  /// Puts the next line into `zLine`. After the last line, returns false and leaves `zLine` alone.
  bool Next(ProfileLine& zLine);

 private:
  std::size_t Find(char zByte) const;

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t nextCr_ = 0;  ///< the first CR from position_ on, or the size of the text
  std::size_t nextLf_ = 0;  ///< the first LF from position_ on, or the size of the text
};

/// The section that `zLine` opens, without blanks around its name; nothing when it is no header.
/// The name ends at the first closing bracket, or at the end of the line if there is none.
inline std::optional<std::string_view> HeaderName(std::string_view zLine) {
  const std::string_view line = TrimBlanks(zLine);
  if (line.empty() || line.front() != '[') {
    return std::nullopt;
  }
  return TrimBlanks(line.substr(1, line.find(']') - 1));
}

/// A key and its value, both without the blanks around them, the value with its quotation marks.
struct ProfileEntry {
  std::string_view key;
  std::string_view value;
};

/// The key in `zLine`, without the blanks around it; nothing when the line is a header, a comment
/// (begins with a semicolon) or has no equals sign.
inline std::optional<std::string_view> KeyOf(std::string_view zLine) {
  const std::size_t equals = zLine.find('=');
  if (equals == std::string_view::npos) {
    return std::nullopt;
  }
  const std::string_view key = TrimBlanks(zLine.substr(0, equals));
  const bool isOther = !key.empty() && (key.front() == '[' || key.front() == ';');
  return isOther ? std::nullopt : std::optional(key);
}

/// The entry in `zLine`; nothing when KeyOf finds no key.
inline std::optional<ProfileEntry> EntryOf(std::string_view zLine) {
  const auto key = KeyOf(zLine);
  return key ? std::optional(ProfileEntry{*key, TrimBlanks(zLine.substr(zLine.find('=') + 1))})
             : std::nullopt;
}

/// `zValue` without its quotation marks if it is enclosed in one matching pair, single or double.
inline std::string_view WithoutQuotes(std::string_view zValue) {
  const bool isQuoted = zValue.size() >= 2 && zValue.front() == zValue.back() &&
                        (zValue.front() == '"' || zValue.front() == '\'');
  return isQuoted ? zValue.substr(1, zValue.size() - 2) : zValue;
}

}  // namespace loquitor
