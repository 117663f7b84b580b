#pragma once

#include <filesystem>

namespace loquitor {

/// The folder of the running program's executable, links resolved; the current folder when the
/// system does not tell.
std::filesystem::path ProgramFolder();

}  // namespace loquitor
