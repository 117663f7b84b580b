#pragma once

#include <filesystem>

namespace loquitor {

/// The folder of the running program's executable, with symbolic links resolved. The current folder
/// when the system does not say where the executable is.
std::filesystem::path ProgramFolder();

}  // namespace loquitor
