#pragma once

#include <tuple>
#include <vector>

namespace loquitor::testing {

/// A table of cases: `for (const auto& [input, output] : Rows<int, const char*>{{1, "one"}})`.
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

}  // namespace loquitor::testing
