#pragma once

#include <string>
#include <string_view>

namespace loquitor {

// Numbers in words. `zDigits` is one or more digits 0 to 9. The words are in lower case and
// separated by single spaces.

/// The number with these digits: 1205 is "one thousand two hundred five". A number of more than 15
/// digits, or with a leading zero, is read digit by digit.
std::string CardinalWords(std::string_view zDigits);

/// The ordinal of that number: 21 is "twenty first".
std::string OrdinalWords(std::string_view zDigits);

/// The digits one by one: 007 is "zero zero seven".
std::string DigitWords(std::string_view zDigits);

/// Four digits as a year: 1984 is "nineteen eighty four", 1905 "nineteen oh five", 2024 "twenty
/// twenty four", 2005 "two thousand five", 1900 "nineteen hundred".
std::string YearWords(std::string_view zDigits);

/// The plural of a number's words: "nineties", "fives".
std::string PluralOf(std::string zWords);

/// The name of a fraction's denominator ("half", "third"): 2 to 10, 16, 32, 64, 100 and 1000. Empty
/// for other numbers.
std::string_view PartName(unsigned long zPart);

}  // namespace loquitor
