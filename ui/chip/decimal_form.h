#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// The number at the start of `zText` (core/number_text.h) as people write it: the shortest decimal
/// digits that mean the same number, with a zero before the point (.5 gives 0.5), without one after
/// it that says nothing (7.0 gives 7), no minus before 0. "0" when there is no number. From 1E+15
/// up and below 1E-04 with an exponent. A number too large to hold stays as it is typed.
/// The form of a form is the form itself.
std::string DecimalForm(std::string_view zText);

}  // namespace loquitor
