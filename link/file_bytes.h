#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// The whole content of `zFile`, byte for byte, or nothing when it cannot be read (missing, a
/// folder, no permission).
std::optional<std::string> ReadWholeFile(const std::filesystem::path& zFile);

/// Replaces the content of `zFile` by `zBytes` atomically: a new file beside the old one, flushed
/// to disk, then swapped. Permissions are kept and symbolic links followed; the folder is locked
/// against other writers of this program meanwhile. Returns false, the old file whole and nothing
/// left behind, when any step fails.
bool ReplaceFile(const std::filesystem::path& zFile, std::string_view zBytes);

}  // namespace loquitor
