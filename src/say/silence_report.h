#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/silent_parts.h"

namespace loquitor {

/// One line for each of `zParts`, which are in their order in `zText`: where it begins, what it is
/// and why it is silent. Lines count from `zFirstLine`, columns from 1 and in characters of UTF-8.
std::string SilenceReport(std::string_view zText, const std::vector<SilentPart>& zParts,
                          int zFirstLine);

}  // namespace loquitor
