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

/// Takes a word such as "million" after a space, or k, K or M right after the number. Returns the
/// word with a space before it, or the empty text.
std::string TakeScale(Cursor& zCursor) {
  Cursor after = zCursor;
  const bool hasBlank = after.Take(' ');
  std::string word(after.TakeLetters().substr(0, 9));
  const bool isWord =
      word == "thousand" || word == "million" || word == "billion" || word == "trillion";
  if (!hasBlank) {
    word = word == "k" || word == "K" ? "thousand" : word == "M" ? "million" : "";
  } else if (!isWord) {
    word.clear();
  }
  if (word.empty()) {
    return word;
  }
  zCursor = after;
  return " " + word;
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
  const Amount amount = TakeAmount(zCursor);
  const std::string scale = TakeScale(zCursor);
  return NumberReading{MoneyWords(amount, scale, *currency), zCursor.At()};
}

Reading ReadMoneyBeforeSign(Cursor zCursor) {
  const Amount amount = TakeAmount(zCursor);
  zCursor.Take(' ');
  const Currency* const currency = CurrencyOf(zCursor.Next());
  if (currency == nullptr || IsDigit(zCursor.Next(1))) {
    return std::nullopt;
  }
  return NumberReading{MoneyWords(amount, "", *currency), zCursor.At() + 1};
}

}  // namespace loquitor
