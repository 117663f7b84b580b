#include "english/number_cursor.h"

#include "english/number_words.h"

namespace loquitor {

namespace {

constexpr std::size_t LongestFirstGroup = 3;

bool IsThousandsGroup(const Cursor& zCursor) {
  return IsDigit(zCursor.Next(1)) && IsDigit(zCursor.Next(2)) && IsDigit(zCursor.Next(3)) &&
         !IsDigit(zCursor.Next(4));
}

/// 1,234 and 1'234. After a space only 000, because other digits may be the next number.
bool IsEnglishGroup(const Cursor& zCursor) {
  const char separator = zCursor.Next();
  const bool isSeparator = separator == ',' || separator == '\'' ||
                           (separator == ' ' && zCursor.Rest().starts_with(" 000"));
  return isSeparator && IsThousandsGroup(zCursor);
}

bool IsEuropeanGroup(const Cursor& zCursor) {
  return zCursor.Next() == '.' && IsThousandsGroup(zCursor);
}

/// Takes the digits before the decimals, with the groups that `zIsGroup` accepts.
std::string TakeWhole(Cursor& zCursor, bool (*zIsGroup)(const Cursor&)) {
  std::string whole(zCursor.TakeDigits());
  const bool mayHaveGroups = !whole.empty() && whole.size() <= LongestFirstGroup;
  while (mayHaveGroups && zIsGroup(zCursor)) {
    zCursor.Skip(1);
    whole += zCursor.TakeDigits();
  }
  return whole;
}

}  // namespace

std::string_view DigitsAt(std::string_view zText, std::size_t zAt) {
  return Cursor(zText.substr(zAt)).TakeDigits();
}

Amount TakeAmount(Cursor& zCursor) {
  const std::size_t start = zCursor.At();
  Amount amount;
  amount.whole = TakeWhole(zCursor, IsEnglishGroup);
  amount.isPlain = zCursor.At() - start == amount.whole.size();
  if (zCursor.Next() == '.' && IsDigit(zCursor.Next(1))) {
    zCursor.Skip(1);
    amount.decimals = zCursor.TakeDigits();
    amount.isPlain = false;
  }
  return amount;
}

Amount TakeMeasuredAmount(Cursor& zCursor) {
  constexpr std::size_t MostDecimals = 2;
  Cursor after = zCursor;
  Amount amount;
  amount.isPlain = false;
  amount.whole = TakeWhole(after, IsEuropeanGroup);
  const bool hasComma = !amount.whole.empty() && after.Take(',');
  amount.decimals = hasComma ? after.TakeDigits() : std::string_view();
  const bool goesOn = (after.Next() == ',' || after.Next() == '.') && IsDigit(after.Next(1));
  if (amount.decimals.empty() || amount.decimals.size() > MostDecimals || goesOn) {
    return TakeAmount(zCursor);
  }
  zCursor = after;
  return amount;
}

Amount TakeEuropeanWhole(Cursor& zCursor) {
  Cursor after = zCursor;
  Amount amount;
  amount.isPlain = false;
  const std::string whole = TakeWhole(after, IsEuropeanGroup);
  if (after.At() - zCursor.At() > whole.size()) {
    amount.whole = whole;
    zCursor = after;
  }
  return amount;
}

std::string TakeTo(Cursor& zCursor) {
  if (zCursor.Next() != '-' || !StartsWithNumber(zCursor.Rest().substr(1))) {
    return "";
  }
  zCursor.Skip(1);
  return " to";
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
