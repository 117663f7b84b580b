#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// The number at the start of `zText` (text/number_text.h) as people write it: the shortest decimal
/// digits that mean the same number, with a zero before the point (.5 gives 0.5), no point after a
/// whole number (7.0 gives 7), no minus before 0. "0" when there is no number. From 1E15 on with an
/// exponent. A number that is too large for a double stays as it is typed. Idempotent.
std::string DecimalForm(std::string_view zText);

}  // namespace loquitor
