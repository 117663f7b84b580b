#pragma once

#include <string>
#include <vector>

namespace loquitor {

/// A line of text for the user that lists `zUnread` (UTF-8): the first eight different parts in
/// quotation marks, each cut to 40 bytes, and the number of the others. Empty when `zUnread` is.
std::string DescribeUnread(const std::vector<std::string>& zUnread);

}  // namespace loquitor
