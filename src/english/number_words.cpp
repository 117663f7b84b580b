#include "english/number_words.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

namespace loquitor {

namespace {

constexpr std::string_view BelowTwenty[] = {
    "zero",     "one",     "two",     "three",     "four",     "five",    "six",
    "seven",    "eight",   "nine",    "ten",       "eleven",   "twelve",  "thirteen",
    "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen"};
constexpr std::string_view Tens[] = {"",      "",      "twenty",  "thirty", "forty",
                                     "fifty", "sixty", "seventy", "eighty", "ninety"};
constexpr std::string_view Scales[] = {"trillion", "billion", "million", "thousand", ""};
constexpr std::uint64_t LargestScale = 1'000'000'000'000;
constexpr std::size_t LongestNumber = 15;

struct IrregularOrdinal {
  std::string_view cardinal;
  std::string_view ordinal;
};
constexpr IrregularOrdinal IrregularOrdinals[] = {
    {"one", "first"},    {"two", "second"}, {"three", "third"},   {"five", "fifth"},
    {"eight", "eighth"}, {"nine", "ninth"}, {"twelve", "twelfth"}};

struct Part {
  unsigned long number;
  std::string_view name;
};
constexpr Part Parts[] = {{2, "half"},        {3, "third"},          {4, "quarter"},
                          {5, "fifth"},       {6, "sixth"},          {7, "seventh"},
                          {8, "eighth"},      {9, "ninth"},          {10, "tenth"},
                          {16, "sixteenth"},  {32, "thirty second"}, {64, "sixty fourth"},
                          {100, "hundredth"}, {1000, "thousandth"}};

void AddWord(std::string& zWords, std::string_view zWord) {
  if (!zWords.empty() && !zWord.empty()) {
    zWords += ' ';
  }
  zWords += zWord;
}

/// Adds the words of 1 to 99, and nothing for 0.
void AddBelowHundred(std::string& zWords, std::uint64_t zNumber) {
  if (zNumber >= std::size(BelowTwenty)) {
    AddWord(zWords, Tens[zNumber / 10]);
    zNumber %= 10;
  }
  if (zNumber > 0) {
    AddWord(zWords, BelowTwenty[zNumber]);
  }
}

void AddBelowThousand(std::string& zWords, std::uint64_t zNumber) {
  if (zNumber >= 100) {
    AddWord(zWords, BelowTwenty[zNumber / 100]);
    AddWord(zWords, "hundred");
  }
  AddBelowHundred(zWords, zNumber % 100);
}

std::uint64_t ValueOf(std::string_view zDigits) {
  std::uint64_t value = 0;
  for (const char digit : zDigits) {
    value = value * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  return value;
}

/// `zWords` with `zEnding` in place of everything from offset `zAt` on.
std::string EndingWith(std::string zWords, std::size_t zAt, std::string_view zEnding) {
  zWords.resize(zAt);
  return zWords.append(zEnding);
}

}  // namespace

std::string DigitWords(std::string_view zDigits) {
  std::string words;
  for (const char digit : zDigits) {
    AddWord(words, BelowTwenty[digit - '0']);
  }
  return words;
}

std::string CardinalWords(std::string_view zDigits) {
  if (zDigits.size() > LongestNumber || (zDigits.size() > 1 && zDigits[0] == '0')) {
    return DigitWords(zDigits);
  }
  std::uint64_t rest = ValueOf(zDigits);
  if (rest == 0) {
    return std::string(BelowTwenty[0]);
  }
  std::string words;
  std::uint64_t scale = LargestScale;
  for (const std::string_view name : Scales) {
    if (rest >= scale) {
      AddBelowThousand(words, rest / scale);
      AddWord(words, name);
    }
    rest %= scale;
    scale /= 1000;
  }
  return words;
}

std::string OrdinalWords(std::string_view zDigits) {
  const std::string words = CardinalWords(zDigits);
  const std::size_t blank = words.rfind(' ');
  const std::size_t last = blank == std::string::npos ? 0 : blank + 1;
  for (const IrregularOrdinal& irregular : IrregularOrdinals) {
    if (std::string_view(words).substr(last) == irregular.cardinal) {
      return EndingWith(words, last, irregular.ordinal);
    }
  }
  return words.back() == 'y' ? EndingWith(words, words.size() - 1, "ieth") : words + "th";
}

std::string YearWords(std::string_view zDigits) {
  const std::uint64_t year = ValueOf(zDigits);
  const std::uint64_t rest = year % 100;
  if (year % 1000 < 10) {
    return CardinalWords(zDigits);
  }
  std::string words;
  AddBelowHundred(words, year / 100);
  if (rest < 10) {
    AddWord(words, rest == 0 ? "hundred" : "oh");
  }
  AddBelowHundred(words, rest);
  return words;
}

std::string PluralOf(std::string zWords) {
  if (zWords.back() == 'y') {
    return EndingWith(zWords, zWords.size() - 1, "ies");
  }
  return zWords + (zWords.back() == 'x' ? "es" : "s");
}

std::string_view PartName(unsigned long zPart) {
  const auto* const found = std::find_if(std::begin(Parts), std::end(Parts),
                                         [zPart](const Part& p) { return p.number == zPart; });
  return found == std::end(Parts) ? std::string_view() : found->name;
}

}  // namespace loquitor
