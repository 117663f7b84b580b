#pragma once

#include <string>
#include <string_view>

namespace loquitor {

// Numbers in words. Digits are 0 to 9 only, at least one. The words are in lower case and separated
// by single blanks.

/// The number with these digits: 1205 is "one thousand two hundred five". With more than 15 digits,
/// or a 0 before others, it is read digit by digit.
std::string CardinalWords(std::string_view zDigits);

/// Its ordinal: 21 is "twenty first".
std::string OrdinalWords(std::string_view zDigits);

/// Each digit by itself: 007 is "zero zero seven".
std::string DigitWords(std::string_view zDigits);

/// Four digits as a year: 1984 is "nineteen eighty four", 1905 "nineteen oh five", 2024 "twenty
/// twenty four", 2005 "two thousand five", 1900 "nineteen hundred".
std::string YearWords(std::string_view zDigits);

/// The plural of a number's words: "nineties", "fives".
std::string PluralOf(std::string zWords);

/// The `zPart`th part of something, as the denominator of a fraction, 2 to 10 ("half", "third");
/// empty for other numbers.
std::string_view PartName(unsigned zPart);

}  // namespace loquitor
