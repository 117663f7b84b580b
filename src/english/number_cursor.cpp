#include "english/number_cursor.h"

#include "english/number_words.h"

namespace loquitor {

namespace {

bool IsThousandsGroup(const Cursor& zCursor) {
  return zCursor.Next() == ',' && IsDigit(zCursor.Next(1)) && IsDigit(zCursor.Next(2)) &&
         IsDigit(zCursor.Next(3)) && !IsDigit(zCursor.Next(4));
}

}  // namespace

Amount TakeAmount(Cursor& zCursor) {
  constexpr std::size_t LongestFirstGroup = 3;
  Amount amount;
  amount.whole = zCursor.TakeDigits();
  const bool mayHaveCommas = !amount.whole.empty() && amount.whole.size() <= LongestFirstGroup;
  while (mayHaveCommas && IsThousandsGroup(zCursor)) {
    zCursor.Skip(1);
    amount.whole += zCursor.TakeDigits();
    amount.isPlain = false;
  }
  if (zCursor.Next() == '.' && IsDigit(zCursor.Next(1))) {
    zCursor.Skip(1);
    amount.decimals = zCursor.TakeDigits();
    amount.isPlain = false;
  }
  return amount;
}

std::string ValueWords(std::string_view zDigits) {
  const std::size_t first = zDigits.find_first_not_of('0');
  return CardinalWords(first == std::string_view::npos ? "0" : zDigits.substr(first));
}

std::string AmountWords(const Amount& zAmount) {
  const std::string whole = CardinalWords(zAmount.whole.empty() ? "0" : zAmount.whole);
  return zAmount.decimals.empty() ? whole : whole + " point " + DigitWords(zAmount.decimals);
}

bool IsYear(std::string_view zDigits) {
  return zDigits.size() == 4 &&
         ((zDigits >= "1100" && zDigits <= "1999") || (zDigits >= "2010" && zDigits <= "2099"));
}

std::string PlainWords(std::string_view zDigits) {
  return IsYear(zDigits) ? YearWords(zDigits) : CardinalWords(zDigits);
}

}  // namespace loquitor
