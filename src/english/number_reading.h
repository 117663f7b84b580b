#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// A number as it is read.
struct NumberReading {
  /// In lower case, separated by blanks. A single capital is a letter that is spelled (P M); a
  /// comma a pause.
  std::string words;
  std::size_t size;  ///< how many characters of the text that is, more than 0
};

/// Whether `zText` begins with a number: digits, or a decimal point or a sign of currency, or both,
/// and digits.
bool StartsWithNumber(std::string_view zText);

/// Reads the number at the beginning of `zText`, which has one, with what belongs to it: the signs
/// of currency, percent and units around it, a time of day, a date, a fraction, the ending of an
/// ordinal. `zText` is as ToPlainText makes it. Costs the length of what it reads.
NumberReading ReadNumber(std::string_view zText);

}  // namespace loquitor
