#pragma once

#include <filesystem>
#include <optional>

namespace loquitor {

/// The folders among which the program chooses the one for its files. A folder need not exist.
struct DataPlaces {
  std::filesystem::path program;              ///< the folder of the running program
  std::filesystem::path share;                ///< the folder of a package's read-only files
  std::optional<std::filesystem::path> user;  ///< the user's own folder
};

/// The places of this run. `share` is ../share/loquitor, relative to the program's folder. `user`
/// is Loquitor in $XDG_DATA_HOME, or else in $HOME/.local/share; on Windows it is Loquitor in
/// %LOCALAPPDATA%. `user` is empty when none of these variables holds an absolute path.
DataPlaces FindDataPlaces();

/// The folder of Loquitor.ini, Loquitor.Dic and OTSounds.txt:
///
/// - the program's folder when the user may write there and `share` has no dictionary,
/// - otherwise the user's own folder, which is created if it is missing. Without a dictionary it
///   gets a copy of the one in the program's folder, or else of the one in `share`,
/// - when there is no such folder or it cannot be written, the program's folder, or `share` if only
///   `share` has a dictionary. Words are found there. Saving may fail.
std::filesystem::path ChooseDataFolder(const DataPlaces& zPlaces);

}  // namespace loquitor
