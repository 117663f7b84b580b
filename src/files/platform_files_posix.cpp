#ifndef _WIN32

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

#include <cerrno>
#include <chrono>
#include <new>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "files/platform_files.h"

namespace loquitor {
namespace {

namespace fs = std::filesystem;
using std::chrono::nanoseconds;

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
constexpr nanoseconds LongestWait = std::chrono::seconds(1);
constexpr nanoseconds PauseBetweenTries = std::chrono::microseconds(100);

/// A file descriptor; the destructor closes it.
class Descriptor {
 public:
  explicit Descriptor(int zNumber) : number_(zNumber) {}
  Descriptor(Descriptor&& zOther) noexcept : number_(std::exchange(zOther.number_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    if (IsOpen()) {
      static_cast<void>(close(number_));  // whoever needs the bytes on disk has flushed them
    }
  }
  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

std::int64_t Nanoseconds(const timespec& zTime) {
  return std::int64_t{zTime.tv_sec} * NanosecondsPerSecond + zTime.tv_nsec;
}

FileStamp StampFrom(const struct stat& zStatus) {
#ifdef __APPLE__
  const timespec modified = zStatus.st_mtimespec;
  const timespec changed = zStatus.st_ctimespec;
#else
  const timespec modified = zStatus.st_mtim;
  const timespec changed = zStatus.st_ctim;
#endif
  return {static_cast<std::uint64_t>(zStatus.st_dev), static_cast<std::uint64_t>(zStatus.st_ino),
          static_cast<std::uint64_t>(zStatus.st_size), Nanoseconds(modified), Nanoseconds(changed)};
}

std::optional<FileStamp> StampOf(const Descriptor& zFile) {
  struct stat status {};
  if (fstat(zFile.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return StampFrom(status);
}

std::int64_t Now() {
  return std::chrono::duration_cast<nanoseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

/// Reads up to `zSize` bytes; the number read, or nothing on an error.
std::optional<std::size_t> ReadUpTo(const Descriptor& zFile, char* zBytes, std::size_t zSize) {
  std::size_t done = 0;
  while (done < zSize) {
    const ssize_t count = read(zFile.Number(), zBytes + done, zSize - done);
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count < 0) {
      return std::nullopt;
    }
    if (count == 0) {
      break;
    }
    done += static_cast<std::size_t>(count);
  }
  return done;
}

bool WriteAll(const Descriptor& zFile, std::string_view zBytes) {
  while (!zBytes.empty()) {
    const ssize_t count = write(zFile.Number(), zBytes.data(), zBytes.size());
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count <= 0) {
      return false;
    }
    zBytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

/// What a new file inherits from the one that it replaces.
struct Ownership {
  uid_t user;
  gid_t group;
  mode_t permissions;
  std::string accessList;  ///< as the system holds it; empty when there is none
};

#ifdef __linux__
constexpr const char* AccessListName = "system.posix_acl_access";

std::string AccessListOf(const Descriptor& zFile) {
  std::string list(1 << 16, '\0');  // as long as the system takes them
  const ssize_t size = fgetxattr(zFile.Number(), AccessListName, list.data(), list.size());
  list.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  return list;
}

bool SetAccessList(const Descriptor& zFile, const std::string& zList) {
  if (zList.empty()) {
    // The new file has one only if the folder gives one to new files.
    static_cast<void>(fremovexattr(zFile.Number(), AccessListName));
    return true;
  }
  return fsetxattr(zFile.Number(), AccessListName, zList.data(), zList.size(), 0) == 0;
}
#else
std::string AccessListOf(const Descriptor&) {
  return {};
}

bool SetAccessList(const Descriptor&, const std::string&) {
  return true;
}
#endif

/// Empty when there is no old file; nothing when the old file may not be written.
std::optional<std::optional<Ownership>> OwnershipToKeep(const fs::path& zFile) {
  // Opening it for writing is the only test that includes access lists and read-only mounts.
  const Descriptor old(open(zFile.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW));
  if (!old.IsOpen()) {
    return errno == ENOENT ? std::make_optional(std::optional<Ownership>()) : std::nullopt;
  }
  struct stat status {};
  if (fstat(old.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return Ownership{status.st_uid, status.st_gid, static_cast<mode_t>(status.st_mode & 07777),
                   AccessListOf(old)};
}

/// Writes the new content into `zFile` and flushes it to disk.
bool Fill(const Descriptor& zFile, std::string_view zBytes,
          const std::optional<Ownership>& zOwnership) {
  if (!WriteAll(zFile, zBytes)) {
    return false;
  }
  if (zOwnership) {
    // Only an administrator may give files away. For anyone else the new file belongs to them, and
    // keeps its group if they are a member of it.
    if (fchown(zFile.Number(), zOwnership->user, zOwnership->group) != 0) {
      static_cast<void>(!fchown(zFile.Number(), static_cast<uid_t>(-1), zOwnership->group));
    }
    if (fchmod(zFile.Number(), zOwnership->permissions) != 0 ||
        !SetAccessList(zFile, zOwnership->accessList)) {
      return false;
    }
  }
  return fsync(zFile.Number()) == 0;
}

/// A file that is being written next to the one that it will replace.
struct NewFile {
  fs::path path;
  Descriptor file;
};

/// Creates an empty file in `zFolder`; nothing when that fails. What a killed process has left
/// under the first name is removed, if the system allows it; otherwise another name is tried.
std::optional<NewFile> CreateFileIn(const fs::path& zFolder, FolderLock::State zLock) {
  for (int attempt = 0; attempt < MostNewFileNames; ++attempt) {
    fs::path path = zFolder / NewFileName(zLock, attempt);
    if (zLock == FolderLock::State::Held && attempt == 0) {
      static_cast<void>(unlink(path.c_str()));
    }
    Descriptor file(open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666));
    if (file.IsOpen()) {
      return NewFile{std::move(path), std::move(file)};
    }
    if (errno != EEXIST) {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

/// Flushes the names in `zFolder` to the disk. Some file systems cannot do that; the files in it
/// are whole in any case.
void FlushNames(const fs::path& zFolder) {
  const Descriptor folder(open(zFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.IsOpen()) {
    static_cast<void>(fsync(folder.Number()));
  }
}

}  // namespace

std::optional<FileStamp> StampOf(const fs::path& zFile) {
  struct stat status {};
  if (stat(zFile.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return std::nullopt;
  }
  return StampFrom(status);
}

std::optional<LoadedFile> LoadFile(const fs::path& zFile) {
  // O_NONBLOCK: opening a named pipe must not wait for its other end.
  const Descriptor file(open(zFile.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!file.IsOpen()) {
    return std::nullopt;
  }
  const std::int64_t now = Now();
  const auto before = StampOf(file);
  if (!before || before->size > LargestLoadedFile) {
    return std::nullopt;
  }
  const auto size = static_cast<std::size_t>(before->size);
  LoadedFile loaded;
  loaded.bytes.reset(new (std::nothrow) char[size + 1]);
  if (!loaded.bytes) {
    return std::nullopt;
  }
  const auto count = ReadUpTo(file, loaded.bytes.get(), size);
  if (!count) {
    return std::nullopt;
  }
  loaded.size = *count;
  loaded.stamp = *before;
  loaded.isStampReliable = IsReliable(*before, now) && StampOf(file) == before;
  return loaded;
}

std::optional<fs::path> FollowLinks(const fs::path& zFile) {
  constexpr int longestChain = 1000;  // of links that change while they are followed
  std::error_code error;
  fs::path file = fs::absolute(zFile, error);
  // Ask the system how many links are too many, so that writing fails where reading does.
  static_cast<void>(fs::status(file, error));
  if (error == std::errc::too_many_symbolic_link_levels) {
    return std::nullopt;
  }
  for (int i = 0; i < longestChain; ++i) {
    const fs::path target = fs::read_symlink(file, error);
    if (error) {
      return file;  // no link, or nothing there
    }
    file = target.is_absolute() ? target : file.parent_path() / target;
  }
  return std::nullopt;
}

bool IsWritableFolder(const fs::path& zFolder) {
  std::error_code error;
  return fs::is_directory(zFolder, error) && access(zFolder.c_str(), W_OK | X_OK) == 0;
}

FolderLock::FolderLock(const fs::path& zFolder) {
  handle_ = open(zFolder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const auto end = std::chrono::steady_clock::now() + LongestWait;
  while (handle_ >= 0) {
    if (flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) == 0) {
      state_ = State::Held;
      return;
    }
    if (errno != EWOULDBLOCK && errno != EINTR) {
      return;
    }
    if (std::chrono::steady_clock::now() > end) {
      state_ = State::TimedOut;
      return;
    }
    std::this_thread::sleep_for(PauseBetweenTries);
  }
}

FolderLock::~FolderLock() {
  if (handle_ >= 0) {
    static_cast<void>(close(static_cast<int>(handle_)));  // frees the lock; nothing was written
  }
}

bool SwapFile(const fs::path& zFile, std::string_view zBytes, FolderLock::State zLock) {
  const fs::path folder = zFile.parent_path();
  const auto ownership = OwnershipToKeep(zFile);
  const auto made = ownership ? CreateFileIn(folder, zLock) : std::nullopt;
  if (!made) {
    return false;
  }
  if (!Fill(made->file, zBytes, *ownership) || rename(made->path.c_str(), zFile.c_str()) != 0) {
    static_cast<void>(unlink(made->path.c_str()));
    return false;
  }
  FlushNames(folder);
  return true;
}

}  // namespace loquitor

#endif
