#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// A text in the few characters that reading English needs.
struct PlainText {
  /// Printable ASCII and the signs below. Line breaks are spaces. Never two spaces in a row.
  std::string text;
  /// The characters without a reading, in UTF-8. A run of them is one text. Control characters are
  /// written like U+0007.
  std::vector<std::string> unread;
};

// The signs of PlainText beyond ASCII, in Windows-1252.
constexpr char EuroSign = '\x80';
constexpr char CentSign = '\xA2';
constexpr char PoundSign = '\xA3';
constexpr char YenSign = '\xA5';
constexpr char DegreeSign = '\xB0';
constexpr char MicroSign = '\xB5';

/// `zText` as plain text. It is UTF-8; a byte that is not UTF-8 counts as Windows-1252. Accents are
/// removed (é becomes e). Quotation marks, dashes and spaces of all kinds become those of ASCII.
/// Some symbols become their English name. The star of a list at the beginning of a line becomes a
/// hyphen. A hyphen after a small letter at the end of a line is removed with the line break if a
/// small letter follows. A character without a reading becomes a space. Makes one pass.
PlainText ToPlainText(std::string_view zText);

/// `zText` with quotation marks, dashes and spaces beyond ASCII as those of ASCII. Byte order marks
/// and soft hyphens are removed. Everything else stays. The result is UTF-8; a byte of `zText` that
/// is not UTF-8 counts as Windows-1252.
std::string WithPlainPunctuation(std::string_view zText);

}  // namespace loquitor
