#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "english/number_reading.h"
#include "text/letters.h"

namespace loquitor {

// What the readers of numbers share. A reader starts at the first character of a number, in plain
// text (see ToPlainText). It returns nothing when the text does not have its form.

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

/// Digits with their decimals.
struct Amount {
  std::string whole;  ///< without the separators of thousands; may be empty
  std::string_view decimals;
  bool isPlain = true;  ///< no separator, no decimals

  bool IsOne() const { return whole == "1" && decimals.empty(); }
  bool IsZero() const { return whole.find_first_not_of('0') == std::string::npos; }
};

/// The digits at `zAt` of `zText`. May be empty.
std::string_view DigitsAt(std::string_view zText, std::size_t zAt);

/// Takes 1,234.56 and the like. Takes nothing when no digit is there.
Amount TakeAmount(Cursor& zCursor);

/// TakeAmount for a number with a unit or a currency, which may also have the European form: 5,99
/// or 1.299,00, with one or two decimals.
Amount TakeMeasuredAmount(Cursor& zCursor);

/// Takes 1.299 and 1.000.000, with a point between thousands. Takes nothing when no group is there.
Amount TakeEuropeanWhole(Cursor& zCursor);

/// Takes the hyphen of a range if another number follows it. Returns " to", or the empty text.
std::string TakeTo(Cursor& zCursor);

std::string AmountWords(const Amount& zAmount);

/// CardinalWords without the leading zeros.
std::string ValueWords(std::string_view zDigits);

/// Whether a plain number is read as a year.
bool IsYear(std::string_view zDigits);

/// YearWords of a year, CardinalWords of any other number.
std::string PlainWords(std::string_view zDigits);

}  // namespace loquitor
