#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/silent_parts.h"

namespace loquitor {

/// One line for each of `zParts`: where it begins, its text and why it is silent. `zParts` must be
/// in the order of `zText`. Lines are counted from `zFirstLine`, columns from 1 in characters of
/// UTF-8.
std::string SilenceReport(std::string_view zText, const std::vector<SilentPart>& zParts,
                          int zFirstLine);

}  // namespace loquitor
