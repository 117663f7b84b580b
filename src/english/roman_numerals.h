#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// The words of a Roman numeral in capitals: a number from 2 to 39 except V, X and XXX, or one of
/// five letters and more, which a word cannot look like. Empty for any other word.
std::string RomanNumeralWords(std::string_view zWord);

}  // namespace loquitor
