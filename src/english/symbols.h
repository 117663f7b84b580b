#pragma once

#include <cstddef>
#include <string_view>

namespace loquitor {

// Symbols in plain text (see ToPlainText). Each function looks at no more than a few characters
// around the symbol.

/// A sign of two characters, such as !=, and its words.
struct SymbolPair {
  std::string_view symbols;
  std::string_view words;
};

/// The sign of two characters that `zText` begins with. Null when there is none.
const SymbolPair* FindSymbolPair(std::string_view zText);

/// The name of the symbol that is in `zText` from `zStart` to `zEnd`, once or twice, such as
/// "percent" for %. Its neighbours decide: * is "times" between numbers, and empty beside one word,
/// which it marks. Also empty when the symbol has no name.
std::string_view SymbolName(std::string_view zText, std::size_t zStart, std::size_t zEnd);

/// Whether the hyphen at `zAt` of `zText` is a minus sign.
bool IsMinus(std::string_view zText, std::size_t zAt);

/// The word for the period at `zAt` of `zText` when it belongs to a name or a number: "dot" or
/// "point". Empty for any other period.
std::string_view PeriodName(std::string_view zText, std::size_t zAt);

/// The word for the letter x at `zAt` of `zText` between two numbers: "times" in 3 x 4 = 12, "by"
/// in 10x15. Empty for any other letter.
std::string_view NameOfX(std::string_view zText, std::size_t zAt);

/// Whether the digits at `zAt` of `zText` follow the letters of the name of a part: RS232, RS-232,
/// H.264.
bool IsInPartName(std::string_view zText, std::size_t zAt);

}  // namespace loquitor
