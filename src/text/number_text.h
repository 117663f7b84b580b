#pragma once

#include <optional>
#include <string_view>

namespace loquitor {

/// The number at the start of `zText`: an optional sign, digits with at most one decimal point, and
/// an optional exponent (E or D of either case, then digits without a sign). Spaces, tabs and line
/// feeds are ignored everywhere. Reading stops at the first character that cannot continue the
/// number. After &H (either case) at the start, hexadecimal digits are read instead. The result is
/// 0 when there is no number. It is infinity, with the sign of the number, beyond the range of a
/// double.
double NumberAtStart(std::string_view zText);

/// Whether `zText` begins with a number, or with &H.
bool HasNumberAtStart(std::string_view zText);

/// `zNumber` rounded to the nearest whole number, an exact half to the even neighbour. Nothing when
/// the result does not fit an int.
std::optional<int> RoundToWhole(double zNumber);

/// RoundToWhole(NumberAtStart(zText)).
std::optional<int> WholeNumberAtStart(std::string_view zText);

}  // namespace loquitor
