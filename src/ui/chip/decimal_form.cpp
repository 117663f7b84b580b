#include "ui/chip/decimal_form.h"

#include <array>
#include <charconv>
#include <cmath>

#include "text/number_text.h"

namespace loquitor {
namespace {

std::string ShortestDigits(double zNumber, std::chars_format zFormat) {
  std::array<char, 400> digits;  // the smallest numbers have 324 places
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), zNumber, zFormat);
  return {digits.data(), result.ptr};
}

/// For example 1.5E20.
std::string WithExponent(double zNumber) {
  std::string digits = ShortestDigits(zNumber, std::chars_format::scientific);
  digits.replace(digits.find("e+"), 2, "E");
  return digits;
}

}  // namespace

std::string DecimalForm(std::string_view zText) {
  constexpr double firstWithExponent = 1e15;
  const double number = NumberAtStart(zText);
  if (number == 0) {
    return "0";
  }
  if (std::isinf(number)) {
    return std::string(zText);
  }
  if (std::fabs(number) >= firstWithExponent) {
    return WithExponent(number);
  }
  return ShortestDigits(number, std::chars_format::fixed);
}

}  // namespace loquitor
