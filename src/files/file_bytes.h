#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

/// The whole content of `zFile`, byte for byte. Nothing when LoadFile cannot read it (missing, a
/// folder, no permission, too large).
std::optional<std::string> ReadWholeFile(const std::filesystem::path& zFile);

/// Replaces the content of `zFile` by `zBytes` atomically: writes a new file next to the old one,
/// flushes it to disk and swaps the two. Creates `zFile` when it is missing. Keeps permissions and
/// follows symbolic links. Locks the folder against the other writers of this project. Returns
/// false when a step fails, the old file may not be written, or the folder stays locked for a
/// second. The old file is then unchanged and no other file is left.
bool ReplaceFile(const std::filesystem::path& zFile, std::string_view zBytes);

}  // namespace loquitor
