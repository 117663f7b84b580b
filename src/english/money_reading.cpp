#include "english/money_reading.h"

#include <algorithm>
#include <iterator>

#include "english/number_words.h"
#include "english/plain_text.h"

namespace loquitor {

namespace {

struct Currency {
  char sign;
  std::string_view one, many, onePart, manyParts;
};
constexpr Currency Currencies[] = {
    {'$', "dollar", "dollars", "cent", "cents"},
    {EuroSign, "euro", "euros", "cent", "cents"},
    {PoundSign, "pound", "pounds", "penny", "pence"},
    {YenSign, "yen", "yen", "sen", "sen"},
    {CentSign, "cent", "cents", "", ""},
};

const Currency* CurrencyOf(char zSign) {
  const auto* const found = std::find_if(std::begin(Currencies), std::end(Currencies),
                                         [zSign](const Currency& c) { return c.sign == zSign; });
  return found == std::end(Currencies) ? nullptr : found;
}

struct Scale {
  std::string_view symbol;  ///< right after the number
  std::string_view word;    ///< after a space
};
constexpr Scale Scales[] = {{"k", "thousand"}, {"K", "thousand"}, {"m", "million"},
                            {"M", "million"},  {"bn", "billion"}, {"B", "billion"},
                            {"tn", "trillion"}};

/// Takes the scale that follows, as in "5 million" or "5M". Returns its word with a space before
/// it, or the empty text.
std::string TakeScale(Cursor& zCursor) {
  Cursor after = zCursor;
  const bool hasBlank = after.Take(' ');
  const std::string_view letters = after.TakeLetters();
  for (const Scale& scale : Scales) {
    if (letters == (hasBlank ? scale.word : scale.symbol)) {
      zCursor = after;
      return " " + std::string(scale.word);
    }
  }
  return "";
}

std::string PartWords(const Currency& zCurrency, const std::string& zParts) {
  return ValueWords(zParts) + " " +
         std::string(zParts == "01" ? zCurrency.onePart : zCurrency.manyParts);
}

std::string MoneyWords(const Amount& zAmount, const std::string& zScale,
                       const Currency& zCurrency) {
  const std::string unit(zAmount.IsOne() && zScale.empty() ? zCurrency.one : zCurrency.many);
  const bool hasParts =
      zAmount.decimals.size() == 2 && zScale.empty() && !zCurrency.manyParts.empty();
  if (!hasParts) {
    return AmountWords(zAmount) + zScale + " " + unit;
  }
  const std::string whole = CardinalWords(zAmount.whole.empty() ? "0" : zAmount.whole) + " " +
                            std::string(zAmount.whole == "1" ? zCurrency.one : zCurrency.many);
  if (zAmount.decimals == "00") {
    return whole;
  }
  return (zAmount.IsZero() ? "" : whole + " and ") +
         PartWords(zCurrency, std::string(zAmount.decimals));
}

}  // namespace

bool IsCurrencySign(char zCharacter) {
  return CurrencyOf(zCharacter) != nullptr;
}

Reading ReadMoney(Cursor zCursor) {
  const Currency* const currency = CurrencyOf(zCursor.Next());
  if (currency == nullptr) {
    return std::nullopt;
  }
  zCursor.Skip(1);
  zCursor.Take(' ');
  const Amount amount = TakeMeasuredAmount(zCursor);
  const std::string words = MoneyWords(amount, TakeScale(zCursor), *currency);
  return NumberReading{words + TakeTo(zCursor), zCursor.At()};
}

Reading ReadMoneyBeforeSign(Cursor zCursor) {
  for (const auto take : {TakeEuropeanWhole, TakeMeasuredAmount}) {
    Cursor after = zCursor;
    const Amount amount = take(after);
    after.Take(' ');
    const Currency* const currency = CurrencyOf(after.Next());
    if (currency != nullptr && !IsDigit(after.Next(1))) {
      after.Skip(1);
      return NumberReading{MoneyWords(amount, "", *currency) + TakeTo(after), after.At()};
    }
  }
  return std::nullopt;
}

}  // namespace loquitor
