#pragma once

#include <optional>
#include <string_view>

namespace loquitor {

/// The number at the start of `zText`: an optional sign, digits with at most one decimal point, and
/// an optional exponent (E or D of either case, then digits without a sign). Blanks, tabs and line
/// feeds are ignored everywhere. Reading stops at the first character that cannot continue the
/// number. A text that begins with &H (either case) is read as hexadecimal digits. 0 when there is
/// no number; infinity, with its sign, beyond the range of a double.
double NumberAtStart(std::string_view zText);

/// Whether `zText` begins with a number, or with &H.
bool HasNumberAtStart(std::string_view zText);

/// `zNumber` rounded to the nearest whole number, an exact half to the even neighbour. Nothing when
/// the result does not fit 32 bits signed.
std::optional<int> RoundToWhole(double zNumber);

/// RoundToWhole(NumberAtStart(zText)).
std::optional<int> WholeNumberAtStart(std::string_view zText);

}  // namespace loquitor
