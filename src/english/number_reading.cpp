// The readers are tried one after the other, from special forms (a time, a date) to the plain
// number.

#include "english/number_reading.h"

#include <algorithm>

#include "core/say_data_runs.h"
#include "english/abbreviations.h"
#include "english/money_reading.h"
#include "english/number_cursor.h"
#include "english/number_words.h"
#include "english/phone_number_reading.h"
#include "english/time_reading.h"

namespace loquitor {

namespace {

/// 16:9
Reading ReadRatio(Cursor zCursor) {
  const std::string_view first = zCursor.TakeDigits();
  if (!zCursor.Take(':') || !IsDigit(zCursor.Next())) {
    return std::nullopt;
  }
  return NumberReading{CardinalWords(first) + " to", zCursor.At()};
}

/// 3/4. Not 24/7, because a fraction of more than nine parts is less than one.
Reading ReadFraction(Cursor zCursor) {
  constexpr std::size_t LongestCount = 2;
  constexpr std::size_t LongestPart = 4;
  const std::string_view count = zCursor.TakeDigits();
  const bool hasSlash = zCursor.Take('/');
  const std::string_view part = zCursor.TakeDigits();
  const bool hasForm = hasSlash && count.size() <= LongestCount && count[0] != '0' &&
                       !part.empty() && part.size() <= LongestPart && zCursor.Next() != '/';
  if (!hasForm) {
    return std::nullopt;
  }
  const unsigned long number = std::stoul(std::string(part));
  const std::string name(PartName(number));
  const bool isTooMuch = count.size() > 1 && std::stoul(std::string(count)) > number;
  if (name.empty() || isTooMuch) {
    return std::nullopt;
  }
  const std::string many = number == 2 ? "halves" : name + "s";
  return NumberReading{CardinalWords(count) + " " + (count == "1" ? name : many), zCursor.At()};
}

/// 1990s, 80s, 5's
Reading ReadPlural(Cursor zCursor) {
  const std::string_view digits = zCursor.TakeDigits();
  const bool isDecade = (digits.size() == 2 || digits.size() == 4) && digits.back() == '0';
  const bool hasApostrophe = zCursor.Take('\'');
  if (digits.empty() || !(isDecade || hasApostrophe) || !zCursor.Take('s') ||
      IsLetter(zCursor.Next())) {
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

/// The first number of 10-20, with a "to", or of 5-3=2, with a "minus". The second one is read as
/// the next number.
Reading ReadRange(Cursor zCursor) {
  const Amount first = TakeAmount(zCursor);
  if (!zCursor.Take('-') || !IsDigit(zCursor.Next())) {
    return std::nullopt;
  }
  Cursor after = zCursor;
  TakeAmount(after);
  after.Take(' ');
  const bool isYears = first.isPlain && IsYear(first.whole);
  return NumberReading{(isYears ? YearWords(first.whole) : AmountWords(first)) +
                           (after.Next() == '=' ? " minus" : " to"),
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

/// Whether `zRest`, which follows a unit, begins with a period that ends a short form, not a
/// sentence: "3 in. wide".
bool HasPeriodOfShortForm(std::string_view zRest) {
  return zRest.starts_with(". ") && zRest.size() > 2 && !IsCapital(zRest[2]);
}

/// Whether the x before `zRest` is a variable, not "times": 2x + 1.
bool IsInFormula(std::string_view zRest) {
  const std::size_t next = zRest.starts_with(' ') ? 1 : 0;
  return zRest.starts_with(" squared") || zRest.starts_with(" cubed") ||
         (next < zRest.size() &&
          std::string_view("+-*/^=<>").find(zRest[next]) != std::string_view::npos);
}

/// Takes the unit that follows, with or without a space before it. Null when there is none.
const Unit* TakeUnit(Cursor& zCursor) {
  constexpr std::size_t LongestUnit = 6;
  Cursor after = zCursor;
  const bool hasBlank = after.Take(' ');
  const std::string_view rest = after.Rest();
  for (std::size_t size = std::min(LongestUnit, rest.size()); size > 0; --size) {
    const bool endsWithLetter = IsLetter(rest[size - 1]);
    const bool isCut = size < rest.size() && endsWithLetter && IsNameCharacter(rest[size]);
    const bool hasPeriod = endsWithLetter && HasPeriodOfShortForm(rest.substr(size));
    const bool isVariable = rest.starts_with('x') && IsInFormula(rest.substr(1));
    const Unit* const unit = isCut || isVariable ? nullptr : FindUnit(rest.substr(0, size));
    if (unit != nullptr && (!hasBlank || !unit->isWordToo || hasPeriod)) {
      after.Skip(size + (hasPeriod ? 1 : 0));
      zCursor = after;
      return unit;
    }
  }
  return nullptr;
}

/// 5'10"
Reading ReadFeetAndInches(Cursor zCursor) {
  constexpr std::size_t LongestPart = 2;
  const std::string_view feet = zCursor.TakeDigits();
  const bool hasFeet = zCursor.Take('\'');
  zCursor.Take(' ');
  const std::string_view inches = zCursor.TakeDigits();
  if (!hasFeet || inches.empty() || inches.size() > LongestPart || !zCursor.Take('"')) {
    return std::nullopt;
  }
  return NumberReading{CardinalWords(feet) + (feet == "1" ? " foot " : " feet ") +
                           CardinalWords(inches) + (inches == "1" ? " inch" : " inches"),
                       zCursor.At()};
}

/// 5 km, 10%, 20 °C
Reading ReadMeasure(Cursor zCursor) {
  const Amount amount = TakeMeasuredAmount(zCursor);
  const Unit* const unit = TakeUnit(zCursor);
  if (unit == nullptr) {
    return std::nullopt;
  }
  const std::string name(amount.IsOne() ? unit->one : unit->many);
  return NumberReading{AmountWords(amount) + " " + name + TakeTo(zCursor), zCursor.At()};
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
    ReadMoney,   ReadMoneyBeforeSign, ReadAmericanNumber, ReadPointDate,
    ReadDotted,  ReadDuration,        ReadTime,           ReadRatio,
    ReadIsoDate, ReadSlashDate,       ReadFraction,       ReadPlural,
    ReadOrdinal, ReadYearRange,       ReadDigitGroups,    ReadRange,
    ReadHour,    ReadMeasure,         ReadFeetAndInches,  ReadWholeBeforeFraction,
    ReadPlain};

}  // namespace

bool StartsWithNumber(std::string_view zText) {
  Cursor cursor(zText);
  if (IsCurrencySign(cursor.Next())) {
    cursor.Skip(1);
    cursor.Take(' ');
  }
  cursor.Take('.');
  return IsDigit(cursor.Next());
}

std::optional<NumberReading> ReadPhoneNumber(std::string_view zText) {
  return ReadInternationalNumber(Cursor(zText));
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
