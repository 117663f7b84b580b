#pragma once

#include <string>
#include <vector>

namespace loquitor {

/// What to tell of `zUnread` in one line, in UTF-8: each different part once in quotation marks, as
/// far as it is short, and how many more there are. Empty when all was read.
std::string DescribeUnread(const std::vector<std::string>& zUnread);

}  // namespace loquitor
