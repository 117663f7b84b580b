#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace loquitor {

/// The path that `zText` spells: UTF-8 on Windows, the system's own bytes elsewhere.
std::filesystem::path PathFrom(std::string_view zText);

/// The reverse of PathFrom.
std::string TextOf(const std::filesystem::path& zPath);

}  // namespace loquitor
