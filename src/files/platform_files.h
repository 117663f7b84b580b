#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// File operations that differ between operating systems: stamps that prove a file unchanged,
/// locks, and swapping a file for a new one. The profile files are read and written through these.
namespace loquitor {

/// Tells one state of a file from another without reading it.
///
/// On Windows `changed` alone tells a file from one that was put in its place: renaming a file
/// changes it. FAT has no such time. There another file of the same size, written at the same time,
/// has the same stamp.
struct FileStamp {
  std::uint64_t device = 0;   ///< 0 on Windows
  std::uint64_t file = 0;     ///< the inode; 0 on Windows
  std::uint64_t size = 0;     ///< bytes
  std::int64_t modified = 0;  ///< nanoseconds since 1970 on the system's clock
  std::int64_t changed = 0;   ///< likewise; programs cannot set it

  bool operator==(const FileStamp&) const = default;
};

/// The stamp of the ordinary file `zFile` (links followed). Nothing when there is none.
std::optional<FileStamp> StampOf(const std::filesystem::path& zFile);

/// Whether every change from `zNow` on (nanoseconds, as in FileStamp) is sure to give the file
/// another stamp than `zStamp`. False when the last change is too close to `zNow`: within 20 ms, or
/// within 2.1 s where the file system seems to store whole seconds. Also false when the last change
/// is after `zNow`.
bool IsReliable(const FileStamp& zStamp, std::int64_t zNow);

/// A file as it was read.
struct LoadedFile {
  std::unique_ptr<char[]> bytes;
  std::size_t size = 0;
  FileStamp stamp;
  /// IsReliable was true for `stamp` right before the read, and `stamp` was the same right after
  /// it.
  bool isStampReliable = false;

  std::string_view View() const { return {bytes.get(), size}; }
};

/// The largest file that LoadFile reads, in bytes (1 GiB).
inline constexpr std::uint64_t LargestLoadedFile = std::uint64_t{1} << 30;

/// Reads the whole ordinary file `zFile`. Nothing when that fails: missing, a folder or device, no
/// permission, larger than LargestLoadedFile, no memory.
std::optional<LoadedFile> LoadFile(const std::filesystem::path& zFile);

/// The path that `zFile` leads to through symbolic links, whether or not a file is there. Nothing
/// when there are more links than the system follows, or they form a circle.
std::optional<std::filesystem::path> FollowLinks(const std::filesystem::path& zFile);

/// Whether the user may make files in `zFolder`. False when there is no such folder.
bool IsWritableFolder(const std::filesystem::path& zFolder);

/// Keeps the other writers of this project, in this or another process, out of a folder for as long
/// as it lives. Leaves nothing on the disk. The system frees the lock when the process dies.
class FolderLock {
 public:
  /// Waits until the folder is free, for one second at most. Result says how that ended.
  explicit FolderLock(const std::filesystem::path& zFolder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  enum class State {
    Held,
    Unsupported,  ///< the folder cannot be locked: it is missing, or its file system has no locks
    TimedOut,     ///< another writer kept the lock
  };
  State Result() const { return state_; }

 private:
  std::intptr_t handle_ = -1;
  State state_ = State::Unsupported;
};

/// How many names are tried for a new file.
inline constexpr int MostNewFileNames = 10;

/// The name of a new file until it is swapped in. `zAttempt` counts the tries from 0. With a held
/// lock the first name is always the same, so that the next writer finds what a killed process has
/// left. All other names are random, because the fixed name may be taken.
std::string NewFileName(FolderLock::State zLock, int zAttempt);

/// Replaces `zFile`, which must not be a link, by a file that holds `zBytes`. The caller has locked
/// its folder, with the result `zLock`. The new file is written next to the old one, flushed to
/// disk and renamed. Permissions and access lists are kept. The owner and the group are each kept
/// where the system allows it. Returns false when a step fails or the old file may not be written.
/// The old file is then unchanged and no other file is left.
bool SwapFile(const std::filesystem::path& zFile, std::string_view zBytes, FolderLock::State zLock);

}  // namespace loquitor
