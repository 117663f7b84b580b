// Numbers at the start of a text, compared with the C library, which gets only what belongs to the
// number. An input is the text.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "text/number_text.h"

namespace {

/// The decimal digits of `zText` at `zAt`; moves `zAt` past them.
std::string TakeDigits(const std::string& zText, std::size_t& zAt) {
  const std::size_t start = zAt;
  zAt = std::min(zText.find_first_not_of("0123456789", zAt), zText.size());
  return zText.substr(start, zAt - start);
}

double PlainNumber(std::string zText) {
  std::erase_if(zText, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
  const auto at = [&zText](std::size_t zIndex) {
    return zIndex < zText.size() ? zText[zIndex] : '\0';
  };
  if (at(0) == '&') {
    const std::string digits = zText.substr(0, zText.find_first_not_of("0123456789abcdefABCDEF", 2))
                                   .substr(std::min<std::size_t>(2, zText.size()));
    const bool isHexadecimal = (at(1) | 0x20) == 'h' && !digits.empty();
    return isHexadecimal ? std::strtod(("0x" + digits).c_str(), nullptr) : 0;
  }
  std::size_t next = at(0) == '-' || at(0) == '+' ? 1 : 0;
  std::string number = zText.substr(0, next);
  number += TakeDigits(zText, next);
  if (at(next) == '.') {
    number += zText[next++];
    number += TakeDigits(zText, next);
  }
  if (number.find_first_of("0123456789") == std::string::npos) {
    return 0;
  }
  const char letter = static_cast<char>(at(next) | 0x20);
  if (letter == 'e' || letter == 'd') {
    ++next;
    const std::string digits = TakeDigits(zText, next);
    number += digits.empty() ? "" : "e" + digits;
  }
  return std::strtod(number.c_str(), nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  const std::string text(zData, zData + zSize);
  const double number = loquitor::NumberAtStart(text);
  const double expected = PlainNumber(text);
  const bool isHexadecimal = text.find('&') != std::string::npos;  // long ones may round otherwise
  const bool isEqual =
      number == expected || (isHexadecimal && std::abs(number - expected) <= expected * 1e-15);
  const std::optional<int> whole = loquitor::WholeNumberAtStart(text);
  const double rounded = std::nearbyint(number);
  const bool isWholeRight = whole ? *whole == rounded : !(std::abs(rounded) < 2147483648.0);
  if (!isEqual || !isWholeRight) {
    std::cerr.precision(20);
    std::cerr << number << " instead of " << expected << '\n';
    std::abort();
  }
  return 0;
}
