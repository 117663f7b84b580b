#pragma once

#include <filesystem>
#include <memory>

#include "link/platform_files.h"
#include "link/profile_index.h"

namespace loquitor {

/// The index of one file, proved fresh before each use.
class FreshProfile {
 public:
  explicit FreshProfile(std::filesystem::path zFile);

  /// The index of the file as it is now; null when it cannot be read. Asks the system for the
  /// file's stamp, and reads the file again only when that has changed or the file was changed too
  /// shortly before it was read last for its stamp to tell; indexes it again only when its bytes
  /// have changed.
  std::shared_ptr<const ProfileIndex> Index();

  const std::filesystem::path& File() const { return path_; }

 private:
  void ReadAgain();

  std::filesystem::path path_;
  FileStamp stamp_;
  bool isSettled_ = false;
  std::shared_ptr<const ProfileIndex> index_;
};

/// The index of `zFile` as it is now; null when it cannot be read. Each thread remembers the files
/// that it asked for last, so that they need not be read again: a pure cache, without a state that
/// could be seen, since FreshProfile proves every answer.
std::shared_ptr<const ProfileIndex> FreshIndexOf(const std::filesystem::path& zFile);

}  // namespace loquitor
