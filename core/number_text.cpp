#include "core/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace loquitor {

namespace {

bool IsDigit(int zCharacter) {
  return zCharacter >= '0' && zCharacter <= '9';
}

/// The value of a hexadecimal digit, or -1.
int HexDigitValue(int zCharacter) {
  if (IsDigit(zCharacter)) {
    return zCharacter - '0';
  }
  const int lower = zCharacter | 0x20;
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// A text read character by character, blanks, tabs and line feeds passed over.
class BlankFreeText {
 public:
  static constexpr int End = -1;

  explicit BlankFreeText(std::string_view zText) : text_(zText) { SkipBlanks(); }

  int Peek() const {
    return position_ < text_.size() ? static_cast<unsigned char>(text_[position_]) : End;
  }
  void Advance() {
    ++position_;
    SkipBlanks();
  }
  bool Accept(char zLowerCase) {
    const int character = Peek();
    const int lower = character >= 'A' && character <= 'Z' ? character | 0x20 : character;
    if (lower != static_cast<unsigned char>(zLowerCase)) {
      return false;
    }
    Advance();
    return true;
  }

 private:
  void SkipBlanks() {
    while (position_ < text_.size() &&
           (text_[position_] == ' ' || text_[position_] == '\t' || text_[position_] == '\n')) {
      ++position_;
    }
  }

  std::string_view text_;
  std::size_t position_ = 0;
};

/// A decimal number as 0.DIGITS times ten to the power of `exponent`; no digits for zero.
struct Decimal {
  std::string digits;
  long long exponent = 0;
};

/// No double needs more digits than this to be rounded right; of those behind it only counts
/// whether they are all zero.
constexpr std::size_t SignificantDigits = 800;
/// Beyond this the result is zero or infinite, whatever the digits are.
constexpr long long ExponentLimit = 1'000'000'000'000;

void AddDigit(Decimal& zDecimal, char zDigit, bool zIsFraction) {
  const bool isLeadingZero = zDecimal.digits.empty() && zDigit == '0';
  if (isLeadingZero) {
    zDecimal.exponent -= zIsFraction ? 1 : 0;
    return;
  }
  zDecimal.exponent += zIsFraction ? 0 : 1;
  if (zDecimal.digits.size() < SignificantDigits) {
    zDecimal.digits += zDigit;
  } else if (zDigit != '0') {
    zDecimal.digits.back() = '1';
  }
}

Decimal ReadMantissa(BlankFreeText& zText, bool& zHasDigits) {
  Decimal decimal;
  bool isFraction = false;
  zHasDigits = false;
  for (;; zText.Advance()) {
    const int character = zText.Peek();
    if (IsDigit(character)) {
      zHasDigits = true;
      AddDigit(decimal, static_cast<char>(character), isFraction);
    } else if (character == '.' && !isFraction) {
      isFraction = true;
    } else {
      return decimal;
    }
  }
}

/// The exponent at the present place; 0 when there is none or it has no digits.
long long ReadExponent(BlankFreeText& zText) {
  if (!zText.Accept('e') && !zText.Accept('d')) {
    return 0;
  }
  const bool isNegative = zText.Accept('-');
  if (!isNegative) {
    zText.Accept('+');
  }
  long long exponent = 0;
  for (; IsDigit(zText.Peek()); zText.Advance()) {
    exponent = std::min(exponent * 10 + (zText.Peek() - '0'), ExponentLimit);
  }
  return isNegative ? -exponent : exponent;
}

double ToDouble(const Decimal& zDecimal) {
  if (zDecimal.digits.empty()) {
    return 0;
  }
  const std::string text = "0." + zDecimal.digits + "e" + std::to_string(zDecimal.exponent);
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    return zDecimal.exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
  }
  return value;
}

double HexadecimalAtStart(BlankFreeText& zText) {
  double value = 0;
  for (int digit; (digit = HexDigitValue(zText.Peek())) >= 0; zText.Advance()) {
    value = value * 16 + digit;
  }
  return value;
}

}  // namespace

double NumberAtStart(std::string_view zText) {
  BlankFreeText text(zText);
  if (text.Accept('&')) {
    return text.Accept('h') ? HexadecimalAtStart(text) : 0;
  }
  const bool isNegative = text.Accept('-');
  if (!isNegative) {
    text.Accept('+');
  }
  bool hasDigits = false;
  Decimal decimal = ReadMantissa(text, hasDigits);
  if (!hasDigits) {
    return 0;
  }
  decimal.exponent += ReadExponent(text);
  const double value = ToDouble(decimal);
  return isNegative && value != 0 ? -value : value;
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
