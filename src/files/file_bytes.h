#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// The whole content of `zFile`, byte for byte, or nothing when it cannot be read (missing, a
/// folder, no permission).
std::optional<std::string> ReadWholeFile(const std::filesystem::path& zFile);

/// Replaces the content of `zFile` by `zBytes` atomically: writes a new file next to the old one,
/// flushes it to disk and swaps the two. Keeps permissions and follows symbolic links. Other
/// writers of this program are locked out of the folder meanwhile. Returns false when any step
/// fails; the old file is then unchanged and no other file is left.
bool ReplaceFile(const std::filesystem::path& zFile, std::string_view zBytes);

}  // namespace loquitor
