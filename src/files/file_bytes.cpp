#include "files/file_bytes.h"

#include "files/platform_files.h"

namespace loquitor {

std::optional<std::string> ReadWholeFile(const std::filesystem::path& zFile) {
  const auto file = LoadFile(zFile);
  return file ? std::make_optional<std::string>(file->View()) : std::nullopt;
}

bool ReplaceFile(const std::filesystem::path& zFile, std::string_view zBytes) {
  const auto file = FollowLinks(zFile);
  if (!file) {
    return false;
  }
  const FolderLock lock(file->parent_path());
  return lock.Result() != FolderLock::State::TimedOut && SwapFile(*file, zBytes, lock.Result());
}

}  // namespace loquitor
