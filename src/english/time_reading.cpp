#include "english/time_reading.h"

#include "english/number_words.h"

namespace loquitor {

namespace {

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

constexpr std::string_view Months[] = {"january",   "february", "march",    "april",
                                       "may",       "june",     "july",     "august",
                                       "september", "october",  "november", "december"};

/// Takes two numbers of a date and the separator after each. Returns their words with a space after
/// them, or the empty text.
std::string TakeDayAndMonth(Cursor& zCursor, char zSeparator) {
  constexpr std::size_t LongestDay = 2;
  std::string words;
  for (int i = 0; i < 2; ++i) {
    const std::string_view digits = zCursor.TakeDigits();
    if (digits.empty() || digits.size() > LongestDay || !zCursor.Take(zSeparator)) {
      return "";
    }
    words += ValueWords(digits) + " ";
  }
  return words;
}

/// 1100 to 2099
bool IsYearOfDate(std::string_view zDigits) {
  return zDigits.size() == 4 && zDigits >= "1100" && zDigits <= "2099";
}

}  // namespace

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
  const std::string words = ValueWords(hour) + minuteWords + seconds + half;
  return NumberReading{words + TakeTo(zCursor), zCursor.At()};
}

Reading ReadDuration(Cursor zCursor) {
  constexpr std::size_t LongestPart = 2;
  const std::string_view hours = zCursor.TakeDigits();
  const bool hasHours = hours.size() <= LongestPart && zCursor.Take('h');
  const bool hasBlank = zCursor.Take(' ');
  const std::string_view minutes = zCursor.TakeDigits();
  const std::string_view unit = zCursor.TakeLetters();
  const bool isMinutes = unit == "m" || unit == "min" || (unit.empty() && !hasBlank);
  if (!hasHours || minutes.empty() || minutes.size() > LongestPart || !isMinutes) {
    return std::nullopt;
  }
  return NumberReading{ValueWords(hours) + (hours == "1" ? " hour " : " hours ") +
                           ValueWords(minutes) + (minutes == "1" ? " minute" : " minutes"),
                       zCursor.At()};
}

Reading ReadHour(Cursor zCursor) {
  const std::string_view hour = zCursor.TakeDigits();
  Cursor after = zCursor;
  const std::string_view minutes = after.Take('.') ? after.TakeDigits(2) : std::string_view();
  std::string half = TakeHalfOfDay(minutes.empty() ? zCursor : after);
  const bool isHour = !half.empty() && hour.size() <= 2;
  half = (minutes.empty() ? "" : MinuteWords(minutes, true)) + half;
  zCursor = minutes.empty() ? zCursor : after;
  const std::string words = ValueWords(hour) + half + TakeTo(zCursor);
  return isHour ? Reading({words, zCursor.At()}) : std::nullopt;
}

Reading ReadIsoDate(Cursor zCursor) {
  const std::string_view year = zCursor.TakeDigits(4);
  const char separator = zCursor.Next() == '/' ? '/' : '-';
  const bool hasYear = !year.empty() && zCursor.Take(separator);
  const std::string_view month = hasYear ? zCursor.TakeDigits(2) : std::string_view();
  const bool hasMonth = month >= "01" && month <= "12" && zCursor.Take(separator);
  const std::string_view day = hasMonth ? zCursor.TakeDigits(2) : std::string_view();
  if (day < "01" || day > "31") {
    return std::nullopt;
  }
  const std::size_t index = static_cast<std::size_t>((month[0] - '0') * 10 + month[1] - '1');
  return NumberReading{std::string(Months[index]) + " " +
                           OrdinalWords(day.substr(day[0] == '0' ? 1 : 0)) + " " + PlainWords(year),
                       zCursor.At()};
}

Reading ReadSlashDate(Cursor zCursor) {
  const std::string words = TakeDayAndMonth(zCursor, '/');
  const std::string_view year = zCursor.TakeDigits();
  const bool isYear = year.size() == 2 || year.size() == 4;
  return !words.empty() && isYear ? Reading({words + PlainWords(year), zCursor.At()})
                                  : std::nullopt;
}

Reading ReadPointDate(Cursor zCursor) {
  const std::string words = TakeDayAndMonth(zCursor, '.');
  const std::string_view year = zCursor.TakeDigits();
  const bool goesOn = zCursor.Next() == '.' && IsDigit(zCursor.Next(1));
  return !words.empty() && IsYearOfDate(year) && !goesOn
             ? Reading({words + PlainWords(year), zCursor.At()})
             : std::nullopt;
}

}  // namespace loquitor
