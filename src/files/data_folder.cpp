#include "files/data_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include "files/file_bytes.h"
#include "files/platform_files.h"
#include "files/program_folder.h"

namespace loquitor {

namespace {

namespace fs = std::filesystem;

constexpr const char* Dictionary = "Loquitor.Dic";

/// The path that an environment variable holds, if it is absolute. `zValue` may be null.
template <class Character>
std::optional<fs::path> AbsolutePath(const Character* zValue) {
  const fs::path path = zValue == nullptr ? fs::path() : fs::path(zValue);
  return path.is_absolute() ? std::make_optional(path) : std::nullopt;
}

std::optional<fs::path> UserFolder() {
#ifdef _WIN32
  const std::optional<fs::path> data = AbsolutePath(_wgetenv(L"LOCALAPPDATA"));
#else
  std::optional<fs::path> data = AbsolutePath(std::getenv("XDG_DATA_HOME"));
  if (const std::optional<fs::path> home = AbsolutePath(std::getenv("HOME")); !data && home) {
    data = *home / ".local" / "share";
  }
#endif
  return data ? std::make_optional(*data / "Loquitor") : std::nullopt;
}

bool HasDictionary(const fs::path& zFolder) {
  std::error_code error;
  return fs::is_regular_file(zFolder / Dictionary, error);
}

/// The folder whose dictionary a new user starts with.
fs::path StarterFolder(const DataPlaces& zPlaces) {
  return !HasDictionary(zPlaces.program) && HasDictionary(zPlaces.share) ? zPlaces.share
                                                                         : zPlaces.program;
}

/// Creates the folder and its parents. False when the user cannot write there.
bool MakeFolder(const fs::path& zFolder) {
  std::error_code error;  // IsWritableFolder finds any failure
  fs::create_directories(zFolder, error);
  return IsWritableFolder(zFolder);
}

/// Copies the starter dictionary unless there is one. The lock keeps two programs that start at
/// once from copying over a word that one of them has saved.
void CopyDictionary(const fs::path& zFrom, const fs::path& zTo) {
  const FolderLock lock(zTo);
  std::error_code error;
  const bool isThere = fs::exists(fs::symlink_status(zTo / Dictionary, error));
  if (isThere || lock.Result() == FolderLock::State::TimedOut) {
    return;
  }
  if (const std::optional<std::string> bytes = ReadWholeFile(zFrom / Dictionary)) {
    // If this fails the user starts with an empty dictionary, as without a starter dictionary.
    static_cast<void>(SwapFile(zTo / Dictionary, *bytes, lock.Result()));
  }
}

}  // namespace

DataPlaces FindDataPlaces() {
  const fs::path program = ProgramFolder();
  return {program, program.parent_path() / "share" / "loquitor", UserFolder()};
}

fs::path ChooseDataFolder(const DataPlaces& zPlaces) {
  if (IsWritableFolder(zPlaces.program) && !HasDictionary(zPlaces.share)) {
    return zPlaces.program;
  }
  const fs::path starter = StarterFolder(zPlaces);
  if (!zPlaces.user || !MakeFolder(*zPlaces.user)) {
    return starter;
  }
  CopyDictionary(starter, *zPlaces.user);
  return *zPlaces.user;
}

}  // namespace loquitor
