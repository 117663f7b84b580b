#include "english/phone_number_reading.h"

#include <algorithm>

#include "english/number_words.h"

namespace loquitor {

namespace {

constexpr std::size_t AreaCode = 3;
constexpr std::size_t Exchange = 3;
constexpr std::size_t Subscriber = 4;

void AddGroup(std::string& zWords, std::string_view zDigits) {
  zWords += (zWords.empty() ? "" : " , ") + DigitWords(zDigits);
}

/// Takes what may be between two groups of an international number, if a digit follows it.
bool TakeSeparators(Cursor& zCursor) {
  Cursor after = zCursor;
  after.Take(')');
  after.Take(' ') || after.Take('-') || after.Take('/');
  after.Take('(');
  const bool isBetween = IsDigit(after.Next());
  zCursor = isBetween ? after : zCursor;
  return isBetween;
}

/// Whether the next group of digits after `zFirst` belongs to it. Only a number that begins with a
/// zero may have its groups after a space or a slash.
bool TakeHyphen(Cursor& zCursor, std::string_view zFirst) {
  constexpr std::size_t ShortestPrefix = 3;
  const char separator = zCursor.Next();
  const bool isPrefix = zFirst[0] == '0' && zFirst.size() >= ShortestPrefix;
  const bool isLoose =
      (separator == ' ' || separator == '/') && isPrefix && IsDigit(zCursor.Next(2));
  return IsDigit(zCursor.Next(1)) && (separator == '-' || isLoose) && zCursor.Take(separator);
}

}  // namespace

Reading ReadInternationalNumber(Cursor zCursor) {
  constexpr std::size_t LongestCountry = 3;
  constexpr std::size_t MinDigits = 7;
  constexpr std::size_t MaxDigits = 15;
  if (!zCursor.Take('+') || !IsDigit(zCursor.Next())) {
    return std::nullopt;
  }
  std::string words;
  std::size_t count = 0;
  std::size_t groups = 0;
  do {
    const std::string_view digits = zCursor.TakeDigits();
    count += digits.size();
    ++groups;
    if (count > MaxDigits || (groups == 1 && digits.size() > LongestCountry)) {
      return std::nullopt;
    }
    AddGroup(words, digits);
  } while (TakeSeparators(zCursor));
  return groups > 1 && count >= MinDigits ? Reading({"plus " + words, zCursor.At()}) : std::nullopt;
}

Reading ReadAmericanNumber(Cursor zCursor) {
  const std::string_view area = zCursor.TakeDigits(AreaCode);
  const bool hasBracket = zCursor.Take(')');
  hasBracket ? zCursor.Take(' ') : zCursor.Take('.');
  const std::string_view exchange = zCursor.TakeDigits(Exchange);
  const bool isJoined = hasBracket ? zCursor.Take('-') : zCursor.Take('.');
  const std::string_view subscriber = zCursor.TakeDigits(Subscriber);
  if (area.empty() || exchange.empty() || !isJoined || subscriber.empty()) {
    return std::nullopt;
  }
  std::string words;
  for (const std::string_view group : {area, exchange, subscriber}) {
    AddGroup(words, group);
  }
  return NumberReading{words, zCursor.At()};
}

Reading ReadDigitGroups(Cursor zCursor) {
  constexpr std::size_t MostGroups = 8;
  constexpr std::size_t ShortestGroup = 3;
  const std::string_view first = zCursor.TakeDigits();
  std::string words = DigitWords(first);
  std::size_t groups = 1;
  std::size_t shortest = first.size();
  while (groups < MostGroups && !first.empty() && TakeHyphen(zCursor, first)) {
    const std::string_view digits = zCursor.TakeDigits();
    AddGroup(words, digits);
    shortest = std::min(shortest, digits.size());
    ++groups;
  }
  const bool isPhoneNumber = (groups == 2 && shortest >= ShortestGroup) || groups > 2;
  return isPhoneNumber ? Reading({words, zCursor.At()}) : std::nullopt;
}

}  // namespace loquitor
