#include "text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

#include "text/letters.h"

namespace loquitor {

namespace {

std::string WithoutBlanks(std::string_view zText) {
  std::string text(zText);
  std::erase_if(text, [](char zCharacter) {
    return zCharacter == ' ' || zCharacter == '\t' || zCharacter == '\n';
  });
  return text;
}

/// Whether `zText` begins with `zCharacter` in either case; removes it if so.
bool Accept(std::string_view& zText, char zCharacter) {
  const bool isThere = !zText.empty() && UpperCase(zText.front()) == zCharacter;
  zText.remove_prefix(isThere ? 1 : 0);
  return isThere;
}

/// Removes the decimal digits at the start of `zText` and returns them.
std::string_view TakeDigits(std::string_view& zText) {
  const auto end = std::find_if_not(zText.begin(), zText.end(), IsDigit);
  const std::string_view digits = zText.substr(0, static_cast<std::size_t>(end - zText.begin()));
  zText.remove_prefix(digits.size());
  return digits;
}

/// The value of `zDecimal`: digits, perhaps with a point and an exponent. The locale does not
/// count.
double ToDouble(const std::string& zDecimal) {
  double value = 0;
  const char* const end = zDecimal.data() + zDecimal.size();
  if (std::from_chars(zDecimal.data(), end, value).ec == std::errc::result_out_of_range) {
    std::istringstream stream(zDecimal);
    stream.imbue(std::locale::classic());
    stream >> value;  // gives the largest double for a number that is too large
    return value > 1 ? std::numeric_limits<double>::infinity() : 0;
  }
  return value;
}

std::optional<double> DecimalAtStart(std::string_view zText) {
  std::string number(TakeDigits(zText));
  bool hasDigits = !number.empty();
  if (Accept(zText, '.')) {
    const std::string_view fraction = TakeDigits(zText);
    hasDigits = hasDigits || !fraction.empty();
    number.append(".").append(fraction);
  }
  if (!hasDigits) {
    return std::nullopt;
  }
  if (Accept(zText, 'E') || Accept(zText, 'D')) {
    const std::string_view exponent = TakeDigits(zText);
    number.append(exponent.empty() ? "" : "e").append(exponent);
  }
  return ToDouble(number);
}

double HexadecimalAtStart(std::string_view zText) {
  double value = 0;
  for (const char character : zText) {
    const char upper = UpperCase(character);
    if (IsDigit(upper)) {
      value = value * 16 + (upper - '0');
    } else if (upper >= 'A' && upper <= 'F') {
      value = value * 16 + (upper - 'A' + 10);
    } else {
      break;
    }
  }
  return value;
}

std::optional<double> ReadNumber(std::string_view zText) {
  const std::string text = WithoutBlanks(zText);
  std::string_view rest = text;
  if (Accept(rest, '&')) {
    return Accept(rest, 'H') ? std::optional(HexadecimalAtStart(rest)) : std::nullopt;
  }
  const bool isNegative = Accept(rest, '-');
  if (!isNegative) {
    Accept(rest, '+');
  }
  const std::optional<double> value = DecimalAtStart(rest);
  return isNegative && value.value_or(0) != 0 ? -*value : value;
}

}  // namespace

double NumberAtStart(std::string_view zText) {
  return ReadNumber(zText).value_or(0);
}

bool HasNumberAtStart(std::string_view zText) {
  return ReadNumber(zText).has_value();
}

std::optional<int> RoundToWhole(double zNumber) {
  const double below = std::floor(zNumber);
  const double fraction = zNumber - below;
  const bool isUp = fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2) != 0);
  const double whole = isUp ? below + 1 : below;
  if (whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max()) {
    return static_cast<int>(whole);
  }
  return std::nullopt;
}

std::optional<int> WholeNumberAtStart(std::string_view zText) {
  return RoundToWhole(NumberAtStart(zText));
}

}  // namespace loquitor
