#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace loquitor {

/// What the program's files have in common: a profile read whose result is trimmed.

/// `zText` without the spaces at its two ends and without the NULs and spaces behind it.
std::string_view TrimSpacesAndNuls(std::string_view zText);

/// The value under `zSection`, `zKey` of `zFile`, or `zDefault` when it is missing, either cut to
/// `zBufferLength` - 1 bytes and trimmed as by TrimSpacesAndNuls.
std::string ReadTrimmedValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, std::size_t zBufferLength,
                             const std::filesystem::path& zFile);

/// The most bytes that ReadSettingValue gives back.
inline constexpr std::size_t MaxSettingValue = 255;

/// ReadTrimmedValue with room for MaxSettingValue bytes; `zDefault`, exactly as given, when the
/// empty text would be left.
std::string ReadSettingValue(std::string_view zSection, std::string_view zKey,
                             std::string_view zDefault, const std::filesystem::path& zFile);

}  // namespace loquitor
