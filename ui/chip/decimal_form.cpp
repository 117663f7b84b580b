#include "ui/chip/decimal_form.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/number_text.h"

namespace loquitor {
namespace {

std::string ShortestDigits(double zNumber, std::chars_format zFormat) {
  std::array<char, 64> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), zNumber, zFormat);
  return {digits.data(), result.ptr};
}

std::string WithExponent(double zNumber) {
  std::string digits = ShortestDigits(zNumber, std::chars_format::scientific);
  digits[digits.find('e')] = 'E';
  return digits;
}

}  // namespace

std::string DecimalForm(std::string_view zText) {
  constexpr double firstWithExponent = 1e15;
  constexpr double lastWithExponent = 1e-4;
  const double number = NumberAtStart(zText);
  const double size = std::fabs(number);
  if (size == 0) {
    return "0";
  }
  if (std::isinf(number)) {
    return std::string(zText);
  }
  if (size >= firstWithExponent || size < lastWithExponent) {
    return WithExponent(number);
  }
  return ShortestDigits(number, std::chars_format::fixed);
}

}  // namespace loquitor
