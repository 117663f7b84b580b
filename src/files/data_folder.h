#pragma once

#include <filesystem>
#include <optional>

namespace loquitor {

/// The folders among which the program chooses the one for its files.
struct DataPlaces {
  std::filesystem::path program;              ///< of the running program
  std::filesystem::path share;                ///< of a package's unchanging files; may be missing
  std::optional<std::filesystem::path> user;  ///< the user's own; may be missing, and is then made
};

/// The places of this run. `share` is ../share/loquitor, seen from the program's folder. `user` is
/// Loquitor in $XDG_DATA_HOME, or else in $HOME/.local/share; on Windows in %LOCALAPPDATA%. There
/// is none when the environment names no absolute path.
DataPlaces FindDataPlaces();

/// The folder of Loquitor.ini, Loquitor.Dic and OTSounds.txt:
///
/// - the program's folder when the user may write there, and `share` has no dictionary,
/// - otherwise the user's own folder. It is made if it is missing. A missing dictionary there
///   becomes a copy of the one in the program's folder, or else of that in `share`,
/// - when that cannot be written either, `share` or the program's folder, whichever has a
///   dictionary. Then words are found, and nothing is saved.
std::filesystem::path ChooseDataFolder(const DataPlaces& zPlaces);

}  // namespace loquitor
