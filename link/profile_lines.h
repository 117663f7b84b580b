#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace loquitor {

/// The grammar of profile files, line by line (docs/file-formats.md). Blanks are spaces and tabs.

/// True for a space or a tab.
constexpr bool IsBlank(char zChar) {
  return zChar == ' ' || zChar == '\t';
}

/// `zText` without the blanks at its two ends.
inline std::string_view TrimBlanks(std::string_view zText) {
  while (!zText.empty() && IsBlank(zText.front())) {
    zText.remove_prefix(1);
  }
  while (!zText.empty() && IsBlank(zText.back())) {
    zText.remove_suffix(1);
  }
  return zText;
}

/// True when the two names differ at most in letter case (Windows-1252).
bool EqualNames(std::string_view zLeft, std::string_view zRight);

/// One line of a text.
struct ProfileLine {
  std::string_view text;  ///< without its line end
  std::size_t begin;      ///< offset of its first byte in the whole text
  std::size_t next;       ///< offset behind its line end; begin + text.size() when it has none
};

/// Hands out the lines of a text from first to last. A line ends at CR LF, LF or CR; a byte order
/// mark (EF BB BF) at the start of the text is passed over.
class ProfileLineReader {
 public:
  /// `zText` must outlive the reader and its lines.
  explicit ProfileLineReader(std::string_view zText);

  /// Puts the next line into `zLine`. False, `zLine` untouched, behind the last one.
  bool Next(ProfileLine& zLine);

 private:
  std::size_t Find(char zByte) const;

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t nextCr_ = 0;  ///< the first CR at or behind position_, or the size of the text
  std::size_t nextLf_ = 0;  ///< the first LF at or behind position_, or the size of the text
};

/// The section that `zLine` opens, without blanks around its name; nothing when it is no header.
/// The name reaches to the first closing bracket, or to the end of the line without one.
std::optional<std::string_view> HeaderName(std::string_view zLine);

/// A key and its value, both without the blanks around them; quotation marks still stand.
struct ProfileEntry {
  std::string_view key;
  std::string_view value;
};

/// The entry in `zLine`; nothing when it is a header, a comment (begins with a semicolon) or has no
/// equals sign.
std::optional<ProfileEntry> EntryOf(std::string_view zLine);

/// `zValue` without its quotation marks if it is enclosed in one matching pair, single or double.
std::string_view WithoutQuotes(std::string_view zValue);

}  // namespace loquitor
