#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace loquitor {

/// Takes the value of option `zName` from "NAME VALUE" or "NAME=VALUE" at index `zAt` of
/// `zArguments`. `zAt` is then the index of the argument that holds VALUE. A missing value is
/// empty. Nothing when another argument is there.
inline std::optional<std::string> TakeOptionValue(std::string_view zName,
                                                  const std::vector<std::string_view>& zArguments,
                                                  std::size_t& zAt) {
  const std::string_view argument = zArguments[zAt];
  if (argument == zName) {
    ++zAt;
    return std::string(zAt < zArguments.size() ? zArguments[zAt] : "");
  }
  const bool isThere = argument.starts_with(zName) && argument.substr(zName.size(), 1) == "=";
  return isThere ? std::optional<std::string>(argument.substr(zName.size() + 1)) : std::nullopt;
}

}  // namespace loquitor
