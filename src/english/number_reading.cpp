// The readers are tried one after the other, from special forms (a time, a date) to the plain
// number. Each starts at the first character of the number. It returns nothing when the text does
// not have its form.

#include "english/number_reading.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "core/say_data_runs.h"
#include "english/abbreviations.h"
#include "english/number_words.h"
#include "english/plain_text.h"
#include "text/letters.h"

namespace loquitor {

namespace {

using Reading = std::optional<NumberReading>;

/// A position in a text. The Take functions move it past what they take.
class Cursor {
 public:
  explicit Cursor(std::string_view zText) : text_(zText) {}

  std::size_t At() const { return at_; }
  std::string_view Rest() const { return text_.substr(at_); }
  char Next(std::size_t zSteps = 0) const {
    return at_ + zSteps < text_.size() ? text_[at_ + zSteps] : '\0';
  }
  bool Take(char zCharacter) {
    const bool isThere = Next() == zCharacter;
    at_ += isThere ? 1 : 0;
    return isThere;
  }
  void Skip(std::size_t zCount) { at_ += zCount; }

  std::string_view TakeDigits() { return TakeWhile(IsDigit); }
  std::string_view TakeLetters() { return TakeWhile(IsLetter); }
  /// Exactly `zCount` digits without another one after them. If they are not there, takes nothing
  /// and returns the empty text.
  std::string_view TakeDigits(std::size_t zCount) {
    for (std::size_t i = 0; i < zCount; ++i) {
      if (!IsDigit(Next(i))) {
        return {};
      }
    }
    return IsDigit(Next(zCount)) ? std::string_view() : TakeDigits();
  }

 private:
  template <typename Class>
  std::string_view TakeWhile(Class zIsOne) {
    const std::size_t start = at_;
    while (at_ < text_.size() && zIsOne(text_[at_])) {
      ++at_;
    }
    return text_.substr(start, at_ - start);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

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

/// Digits with their decimals.
struct Amount {
  std::string whole;  ///< without the commas between thousands; may be empty
  std::string_view decimals;
  bool isPlain = true;  ///< no comma, no decimals

  bool IsOne() const { return whole == "1" && decimals.empty(); }
  bool IsZero() const { return whole.find_first_not_of('0') == std::string::npos; }
};

bool IsThousandsGroup(const Cursor& zCursor) {
  return zCursor.Next() == ',' && IsDigit(zCursor.Next(1)) && IsDigit(zCursor.Next(2)) &&
         IsDigit(zCursor.Next(3)) && !IsDigit(zCursor.Next(4));
}

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

/// CardinalWords without the leading zeros.
std::string ValueWords(std::string_view zDigits) {
  const std::size_t first = zDigits.find_first_not_of('0');
  return CardinalWords(first == std::string_view::npos ? "0" : zDigits.substr(first));
}

std::string AmountWords(const Amount& zAmount) {
  const std::string whole = CardinalWords(zAmount.whole.empty() ? "0" : zAmount.whole);
  return zAmount.decimals.empty() ? whole : whole + " point " + DigitWords(zAmount.decimals);
}

/// Whether a plain number is read as a year.
bool IsYear(std::string_view zDigits) {
  return zDigits.size() == 4 &&
         ((zDigits >= "1100" && zDigits <= "1999") || (zDigits >= "2010" && zDigits <= "2099"));
}

std::string PlainWords(std::string_view zDigits) {
  return IsYear(zDigits) ? YearWords(zDigits) : CardinalWords(zDigits);
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

/// $5.99, £1.5 million
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

/// Whether a sentence may end before `zRest`.
bool EndsSentence(std::string_view zRest) {
  return zRest.empty() || zRest == " " || (zRest[0] == ' ' && IsCapital(zRest[1]));
}

/// Takes am, p.m. and similar forms, with or without a space before them. Returns " A M" or " P M",
/// or the empty text.
std::string TakeHalfOfDay(Cursor& zCursor) {
  Cursor after = zCursor;
  after.Take(' ');
  const char half = LowerCase(after.Next());
  after.Skip(1);
  const bool hasPeriod = after.Take('.');
  const bool isM = after.Take('m') || after.Take('M');
  if ((half != 'a' && half != 'p') || !isM || IsLetter(after.Next()) || IsDigit(after.Next())) {
    return "";
  }
  if (hasPeriod && after.Next() == '.' && !EndsSentence(after.Rest().substr(1))) {
    after.Skip(1);
  }
  zCursor = after;
  return half == 'a' ? " A M" : " P M";
}

std::string MinuteWords(std::string_view zMinutes, bool zHasHalfOfDay) {
  if (zMinutes == "00") {
    return zHasHalfOfDay ? "" : " o'clock";
  }
  return (zMinutes[0] == '0' ? " oh " : " ") + ValueWords(zMinutes);
}

/// 3:30, 15:30:20, 9:00 am
Reading ReadTime(Cursor zCursor) {
  constexpr std::size_t LongestHour = 2;
  const std::string_view hour = zCursor.TakeDigits();
  if (hour.size() > LongestHour || !zCursor.Take(':')) {
    return std::nullopt;
  }
  const std::string_view minutes = zCursor.TakeDigits(2);
  if (minutes.empty() || minutes[0] > '5') {
    return std::nullopt;
  }
  std::string seconds;
  Cursor after = zCursor;
  if (after.Take(':')) {
    if (const std::string_view digits = after.TakeDigits(2); !digits.empty()) {
      seconds = " and " + ValueWords(digits) + (digits == "01" ? " second" : " seconds");
      zCursor = after;
    }
  }
  const std::string half = TakeHalfOfDay(zCursor);
  const std::string minuteWords = MinuteWords(minutes, !half.empty());
  return NumberReading{ValueWords(hour) + minuteWords + seconds + half, zCursor.At()};
}

/// 16:9
Reading ReadRatio(Cursor zCursor) {
  const std::string_view first = zCursor.TakeDigits();
  if (!zCursor.Take(':') || !IsDigit(zCursor.Next())) {
    return std::nullopt;
  }
  return NumberReading{CardinalWords(first) + " to", zCursor.At()};
}

constexpr std::string_view Months[] = {"january",   "february", "march",    "april",
                                       "may",       "june",     "july",     "august",
                                       "september", "october",  "november", "december"};

/// 2024-12-31
Reading ReadIsoDate(Cursor zCursor) {
  const std::string_view year = zCursor.TakeDigits(4);
  const bool hasYear = !year.empty() && zCursor.Take('-');
  const std::string_view month = hasYear ? zCursor.TakeDigits(2) : std::string_view();
  const bool hasMonth = month >= "01" && month <= "12" && zCursor.Take('-');
  const std::string_view day = hasMonth ? zCursor.TakeDigits(2) : std::string_view();
  if (day < "01" || day > "31") {
    return std::nullopt;
  }
  const std::size_t index = static_cast<std::size_t>((month[0] - '0') * 10 + month[1] - '1');
  return NumberReading{std::string(Months[index]) + " " +
                           OrdinalWords(day.substr(day[0] == '0' ? 1 : 0)) + " " + PlainWords(year),
                       zCursor.At()};
}

/// 12/31/2024: the numbers in their order, because either of the first two may be the month.
Reading ReadSlashDate(Cursor zCursor) {
  constexpr std::size_t LongestDay = 2;
  std::string words;
  for (int i = 0; i < 2; ++i) {
    const std::string_view digits = zCursor.TakeDigits();
    if (digits.empty() || digits.size() > LongestDay || !zCursor.Take('/')) {
      return std::nullopt;
    }
    words += ValueWords(digits) + " ";
  }
  const std::string_view year = zCursor.TakeDigits();
  const bool isYear = year.size() == 2 || year.size() == 4;
  return isYear ? Reading({words + PlainWords(year), zCursor.At()}) : std::nullopt;
}

/// 3/4
Reading ReadFraction(Cursor zCursor) {
  constexpr std::size_t LongestPart = 2;
  const std::string_view count = zCursor.TakeDigits();
  const bool hasSlash = zCursor.Take('/');
  const std::string_view part = zCursor.TakeDigits();
  if (!hasSlash || part.empty() || part.size() > LongestPart || zCursor.Next() == '/') {
    return std::nullopt;
  }
  const unsigned number = static_cast<unsigned>(std::stoul(std::string(part)));
  const std::string name(PartName(number));
  if (name.empty() || count.size() > LongestPart || count[0] == '0') {
    return std::nullopt;
  }
  const std::string many = number == 2 ? "halves" : name + "s";
  return NumberReading{CardinalWords(count) + " " + (count == "1" ? name : many), zCursor.At()};
}

/// 1990s, 80's
Reading ReadDecade(Cursor zCursor) {
  const std::string_view digits = zCursor.TakeDigits();
  const bool isDecade = (digits.size() == 2 || digits.size() == 4) && digits.back() == '0';
  zCursor.Take('\'');
  if (!isDecade || !zCursor.Take('s') || IsLetter(zCursor.Next())) {
    return std::nullopt;
  }
  return NumberReading{PluralOf(PlainWords(digits)), zCursor.At()};
}

/// 21st
Reading ReadOrdinal(Cursor zCursor) {
  const Amount amount = TakeAmount(zCursor);
  const std::string ending = ToLower(zCursor.TakeLetters().substr(0, 3));
  const bool isEnding = ending == "st" || ending == "nd" || ending == "rd" || ending == "th";
  if (!isEnding || !amount.decimals.empty() || amount.whole.empty()) {
    return std::nullopt;
  }
  return NumberReading{OrdinalWords(amount.whole), zCursor.At()};
}

/// 555-1234: digits in groups.
Reading ReadDigitGroups(Cursor zCursor) {
  constexpr std::size_t MostGroups = 8;
  constexpr std::size_t ShortestGroup = 3;
  std::string words;
  std::size_t groups = 0;
  std::size_t shortest = ShortestGroup;
  do {
    const std::string_view digits = zCursor.TakeDigits();
    words += (words.empty() ? "" : " , ") + DigitWords(digits);
    shortest = std::min(shortest, digits.size());
    ++groups;
  } while (groups < MostGroups && zCursor.Next() == '-' && IsDigit(zCursor.Next(1)) &&
           zCursor.Take('-'));
  const bool isPhoneNumber = (groups == 2 && shortest >= ShortestGroup) || groups > 2;
  return isPhoneNumber ? Reading({words, zCursor.At()}) : std::nullopt;
}

/// The first number of 10-20, with a "to". The second one is read as the next number.
Reading ReadRange(Cursor zCursor) {
  const Amount first = TakeAmount(zCursor);
  if (!zCursor.Take('-') || !IsDigit(zCursor.Next())) {
    return std::nullopt;
  }
  const bool isYears = first.isPlain && IsYear(first.whole);
  return NumberReading{(isYears ? YearWords(first.whole) : AmountWords(first)) + " to",
                       zCursor.At()};
}

/// 1990-1999, which otherwise looks like groups of digits.
Reading ReadYearRange(Cursor zCursor) {
  Cursor after = zCursor;
  const std::string_view first = after.TakeDigits();
  after.Take('-');
  const std::string_view second = after.TakeDigits();
  return IsYear(first) && IsYear(second) ? ReadRange(zCursor) : std::nullopt;
}

/// 192.168.0.1
Reading ReadDotted(Cursor zCursor) {
  std::string words = CardinalWords(zCursor.TakeDigits());
  std::size_t points = 0;
  while (zCursor.Next() == '.' && IsDigit(zCursor.Next(1))) {
    zCursor.Take('.');
    words += " point " + CardinalWords(zCursor.TakeDigits());
    ++points;
  }
  return points > 1 ? Reading({words, zCursor.At()}) : std::nullopt;
}

/// Takes the unit that follows, with or without a space before it. Null when there is none.
const Unit* TakeUnit(Cursor& zCursor) {
  constexpr std::size_t LongestUnit = 5;
  Cursor after = zCursor;
  const bool hasBlank = after.Take(' ');
  const std::string_view rest = after.Rest();
  for (std::size_t size = std::min(LongestUnit, rest.size()); size > 0; --size) {
    const bool isCut =
        size < rest.size() && IsLetter(rest[size - 1]) && IsNameCharacter(rest[size]);
    const Unit* const unit = isCut ? nullptr : FindUnit(rest.substr(0, size));
    if (unit != nullptr && !(hasBlank && unit->isWordToo)) {
      after.Skip(size);
      zCursor = after;
      return unit;
    }
  }
  return nullptr;
}

/// 5 km, 10%, 20 °C
Reading ReadMeasure(Cursor zCursor) {
  const Amount amount = TakeAmount(zCursor);
  const Unit* const unit = TakeUnit(zCursor);
  if (unit == nullptr) {
    return std::nullopt;
  }
  return NumberReading{
      AmountWords(amount) + " " + std::string(amount.IsOne() ? unit->one : unit->many),
      zCursor.At()};
}

/// 5 €
Reading ReadMoneyBeforeSign(Cursor zCursor) {
  const Amount amount = TakeAmount(zCursor);
  zCursor.Take(' ');
  const Currency* const currency = CurrencyOf(zCursor.Next());
  if (currency == nullptr || IsDigit(zCursor.Next(1))) {
    return std::nullopt;
  }
  return NumberReading{MoneyWords(amount, "", *currency), zCursor.At() + 1};
}

/// 5 pm
Reading ReadHour(Cursor zCursor) {
  const std::string_view hour = zCursor.TakeDigits();
  const std::string half = TakeHalfOfDay(zCursor);
  const bool isHour = !half.empty() && hour.size() <= 2;
  return isHour ? Reading({ValueWords(hour) + half, zCursor.At()}) : std::nullopt;
}

/// The 1 of 1 1/2, with an "and". The fraction is read as the next number.
Reading ReadWholeBeforeFraction(Cursor zCursor) {
  const std::string_view whole = zCursor.TakeDigits();
  if (whole.empty() || !zCursor.Take(' ') || !IsDigit(zCursor.Next()) || !ReadFraction(zCursor)) {
    return std::nullopt;
  }
  return NumberReading{CardinalWords(whole) + " and", zCursor.At()};
}

Reading ReadPlain(Cursor zCursor) {
  const Amount amount = TakeAmount(zCursor);
  return NumberReading{amount.isPlain ? PlainWords(amount.whole) : AmountWords(amount),
                       zCursor.At()};
}

constexpr Reading (*Readers[])(Cursor) = {
    ReadMoney,   ReadDotted,          ReadTime,        ReadRatio,
    ReadIsoDate, ReadSlashDate,       ReadFraction,    ReadDecade,
    ReadOrdinal, ReadYearRange,       ReadDigitGroups, ReadRange,
    ReadHour,    ReadMoneyBeforeSign, ReadMeasure,     ReadWholeBeforeFraction,
    ReadPlain};

}  // namespace

bool StartsWithNumber(std::string_view zText) {
  Cursor cursor(zText);
  if (CurrencyOf(cursor.Next()) != nullptr) {
    cursor.Skip(1);
  }
  cursor.Take('.');
  return IsDigit(cursor.Next());
}

NumberReading ReadNumber(std::string_view zText) {
  for (const auto reader : Readers) {
    if (Reading reading = reader(Cursor(zText))) {
      return *std::move(reading);
    }
  }
  return {"", 1};
}

}  // namespace loquitor
