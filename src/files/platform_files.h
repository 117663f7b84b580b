#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// What the operating systems do differently with files: proofs that a file is as it was, locks,
/// and swapping a file for a new one. Everything else in the project works through these.
namespace loquitor {

/// Tells one state of a file from another without reading it.
struct FileStamp {
  std::uint64_t device = 0;
  std::uint64_t file = 0;  ///< the inode or file index
  std::uint64_t size = 0;
  std::int64_t modified = 0;  ///< nanoseconds of the system's clock
  std::int64_t changed = 0;   ///< likewise; programs cannot set it

  bool operator==(const FileStamp&) const = default;
};

/// The stamp of the ordinary file `zFile` (links followed); nothing when there is none.
std::optional<FileStamp> StampOf(const std::filesystem::path& zFile);

/// Whether every change from `zNow` on (the system's clock, nanoseconds) gives the file another
/// stamp than `zStamp`. False when the file was changed within the last tick of the clock that
/// dates changes (2 seconds where the file system counts whole seconds), or in the future.
bool IsReliable(const FileStamp& zStamp, std::int64_t zNow);

/// A file as it was read.
struct LoadedFile {
  std::unique_ptr<char[]> bytes;
  std::size_t size = 0;
  FileStamp stamp;
  /// IsReliable at the moment before it was read, and the file was not changed meanwhile.
  bool isStampReliable = false;

  std::string_view View() const { return {bytes.get(), size}; }
};

/// The largest file that LoadFile reads, in bytes (1 GiB).
inline constexpr std::uint64_t LargestLoadedFile = std::uint64_t{1} << 30;

/// Reads the whole ordinary file `zFile`. Nothing when that fails: missing, a folder or device, no
/// permission, larger than LargestLoadedFile, no memory.
std::optional<LoadedFile> LoadFile(const std::filesystem::path& zFile);

/// The path that `zFile` leads to when symbolic links are followed, whether there is a file or not.
/// Nothing when the system would not follow that many links, or they run in a circle.
std::optional<std::filesystem::path> FollowLinks(const std::filesystem::path& zFile);

/// Whether the user may make files in `zFolder`. False when there is no such folder.
bool IsWritableFolder(const std::filesystem::path& zFolder);

/// Keeps the other writers of this project, in this or another process, out of a folder while it
/// lives. Leaves nothing on the disk. The system frees it when the process dies.
class FolderLock {
 public:
  /// Waits until the folder is free, one second at most.
  explicit FolderLock(const std::filesystem::path& zFolder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  enum class State {
    Held,
    Unsupported,  ///< this file system has no locks: writers cannot wait for each other
    TimedOut,
  };
  State Result() const { return state_; }

 private:
  std::intptr_t handle_ = -1;
  State state_ = State::Unsupported;
};

/// How many names are tried for a new file.
inline constexpr int MostNewFileNames = 10;

/// The name of a new file, until it is swapped in, for try number `zAttempt` (from 0). With a lock
/// the first name is always the same, so that the next writer finds what a killed process has left.
/// All other names are random, because someone else may have taken that one.
std::string NewFileName(FolderLock::State zLock, int zAttempt);

/// Puts a file that holds `zBytes` in the place of `zFile` (no link). The caller has locked its
/// folder, with the result `zLock`. The new file is written next to the old one, flushed to
/// disk, and swapped. Permissions and access lists are kept, the owner and the group each where the
/// system allows it. Returns false when a step fails or the old file may not be written; the old
/// file is then unchanged and no other file is left.
bool SwapFile(const std::filesystem::path& zFile, std::string_view zBytes, FolderLock::State zLock);

}  // namespace loquitor
