#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// The number at the start of `zText` (text/number_text.h) as people write it: in the shortest
/// decimal digits that give the same double, with a zero before the point (.5 gives 0.5), without a
/// point after a whole number (7.0 gives 7) and without a minus before 0. From 1E15 on with an
/// exponent. "0" when there is no number; `zText` when the number is too large for a double.
/// Idempotent.
std::string DecimalForm(std::string_view zText);

}  // namespace loquitor
