#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// A number in words.
struct NumberReading {
  /// Words in lower case, separated by spaces. A single capital is a letter to spell (P M). A comma
  /// between spaces is a pause.
  std::string words;
  std::size_t size;  ///< how many characters of the text were read, more than 0
};

/// Whether `zText` begins with a number: an optional currency sign and a space after it, an
/// optional decimal point, a digit.
bool StartsWithNumber(std::string_view zText);

/// Reads the phone number at the start of `zText`, which begins with a plus sign. Nothing when no
/// phone number is there.
std::optional<NumberReading> ReadPhoneNumber(std::string_view zText);

/// Reads the number at the start of `zText` and what belongs to it: a currency sign, a unit, the
/// rest of a time or a date, a fraction, the ending of an ordinal. `zText` must be plain text (see
/// ToPlainText) for which StartsWithNumber is true. Takes time proportional to the length of the
/// number.
NumberReading ReadNumber(std::string_view zText);

}  // namespace loquitor
