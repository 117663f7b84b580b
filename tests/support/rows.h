#pragma once

#include <string>
#include <tuple>
#include <vector>

namespace loquitor::testing {

/// A table of cases: `for (const auto& [input, output] : Rows<int, const char*>{{1, "one"}})`.
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

using TextPairs = Rows<const char*, const char*>;

/// All 256 bytes, in order.
inline std::string EveryByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

}  // namespace loquitor::testing
