#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

/// What the operating systems do differently with files: proofs that a file is as it was, locks,
/// and swapping a file for a new one. Everything else in the project works through these.
namespace loquitor {

/// What tells one state of a file from another without reading it.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t file = 0;  ///< the inode or file index
  std::uint64_t size = 0;
  std::int64_t modified = 0;  ///< nanoseconds of the system's clock
  std::int64_t changed = 0;   ///< likewise; cannot be set by programs

  bool operator==(const FileStamp&) const = default;
};

/// The stamp of the ordinary file `zFile` (links followed); nothing when there is none.
std::optional<FileStamp> StampOf(const std::filesystem::path& zFile);

/// Whether a change at or after `zNow` (the system's clock, nanoseconds) is bound to leave another
/// stamp than `zStamp`. Not for a file that was changed within the last tick of the clock that
/// dates changes, 2 seconds where the file system counts whole seconds, nor for times in the
/// future.
bool IsSettled(const FileStamp& zStamp, std::int64_t zNow);

/// A file as it was read.
struct LoadedFile {
  std::unique_ptr<char[]> bytes;
  std::size_t size = 0;
  FileStamp stamp;
  /// IsSettled as of the moment before it was read, and not changed meanwhile.
  bool isSettled = false;

  std::string_view View() const { return {bytes.get(), size}; }
};

/// The largest file that LoadFile reads, in bytes (1 GiB).
inline constexpr std::uint64_t LargestLoadedFile = std::uint64_t{1} << 30;

/// Reads the whole ordinary file `zFile`. Nothing when that fails: missing, a folder or device, no
/// permission, larger than LargestLoadedFile, no memory.
std::optional<LoadedFile> LoadFile(const std::filesystem::path& zFile);

/// The path that `zFile` stands for when symbolic links are followed, whether there is a file or
/// not. Nothing when the links run in a circle.
std::optional<std::filesystem::path> FollowLinks(const std::filesystem::path& zFile);

/// Keeps the other writers of this project, in this or another process, out of a folder while it
/// lives. Leaves nothing on the disk, and the system frees it when the process dies.
class FolderLock {
 public:
  /// Waits until the folder is free, ten seconds at most.
  explicit FolderLock(const std::filesystem::path& zFolder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  enum class State {
    Held,
    Unsupported,  ///< this file system knows no locks: writers cannot wait for each other
    TimedOut,
  };
  State Result() const { return state_; }

 private:
  std::intptr_t handle_ = -1;
  State state_ = State::Unsupported;
};

/// Puts a file that holds `zBytes` in the place of `zFile` (no link; its folder locked by the
/// caller, `zLock` says how well): written beside it, flushed to disk, swapped. Permissions
/// and access lists are kept, the owner and the group each where the system allows it. False, the
/// old file whole and nothing left beside it, when a step fails or the old file may not be written.
bool SwapFile(const std::filesystem::path& zFile, std::string_view zBytes, FolderLock::State zLock);

}  // namespace loquitor
