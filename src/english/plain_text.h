#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// A text in the few characters that reading English needs.
struct PlainText {
  /// Printable ASCII, the bytes CurrencyEuro to DegreeSign of Windows-1252, and for a line break
  /// with an empty line after it LF. Never two blanks in a row.
  std::string text;
  /// What has no reading, in UTF-8, a run of such characters each; control characters as U+0007.
  std::vector<std::string> unread;
};

constexpr char EuroSign = '\x80';
constexpr char CentSign = '\xA2';
constexpr char PoundSign = '\xA3';
constexpr char YenSign = '\xA5';
constexpr char DegreeSign = '\xB0';
constexpr char MicroSign = '\xB5';

/// `zText` (UTF-8; a byte that is none of it counts as Windows-1252) as plain text. Accents are
/// folded (é is e), quotation marks, dashes and blanks of all kinds become those of ASCII, symbols
/// with a name in English their name. A character without a reading becomes a blank. Costs one
/// pass.
PlainText ToPlainText(std::string_view zText);

}  // namespace loquitor
