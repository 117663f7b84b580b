#include "english/roman_numerals.h"

#include "english/number_cursor.h"

namespace loquitor {

namespace {

struct Sign {
  std::string_view letters;
  unsigned value;
};
constexpr Sign Signs[] = {{"M", 1000}, {"CM", 900}, {"D", 500}, {"CD", 400}, {"C", 100},
                          {"XC", 90},  {"L", 50},   {"XL", 40}, {"X", 10},   {"IX", 9},
                          {"V", 5},    {"IV", 4},   {"I", 1}};

std::string RomanNumeral(unsigned zValue) {
  std::string numeral;
  for (const Sign& sign : Signs) {
    for (; zValue >= sign.value; zValue -= sign.value) {
      numeral += sign.letters;
    }
  }
  return numeral;
}

/// The sum of the signs, taken from the left. The word is a numeral if the sum is written like it.
unsigned SumOfSigns(std::string_view zWord) {
  unsigned sum = 0;
  for (const Sign& sign : Signs) {
    for (; zWord.starts_with(sign.letters); zWord.remove_prefix(sign.letters.size())) {
      sum += sign.value;
    }
  }
  return zWord.empty() ? sum : 0;
}

}  // namespace

std::string RomanNumeralWords(std::string_view zWord) {
  constexpr std::size_t Longest = 15;
  constexpr std::size_t SurelyNoWord = 5;
  constexpr unsigned MostOfShortOnes = 39;
  if (zWord.size() < 2 || zWord.size() > Longest || zWord == "XXX") {
    return "";
  }
  const unsigned value = SumOfSigns(zWord);
  const bool isKnown = value <= MostOfShortOnes || zWord.size() >= SurelyNoWord;
  return isKnown && RomanNumeral(value) == zWord ? PlainWords(std::to_string(value)) : "";
}

}  // namespace loquitor
