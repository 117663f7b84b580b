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

#include "link/platform_files.h"

namespace loquitor {
namespace {

namespace fs = std::filesystem;
using std::chrono::nanoseconds;

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
constexpr nanoseconds LongestWait = std::chrono::seconds(10);
constexpr nanoseconds PauseBetweenTries = std::chrono::microseconds(100);

/// A file descriptor, closed at its end.
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

/// What a new file takes over from the one that it replaces.
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
    // There is one only where the folder gives one to new files.
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

/// Nothing inside when there is no old file; nothing at all when it may not be written.
std::optional<std::optional<Ownership>> OwnershipToKeep(const fs::path& zFile) {
  // Opening it for writing is the one test that counts access lists and read-only mounts too.
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
    // Only an administrator may give files away; for everyone else the file is theirs from now on,
    // and stays their group's if they are in it.
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

/// Writes a file without a name and names it when it is whole, so that a killed process leaves
/// nothing. Nothing when the system does not know such files; else whether it succeeded.
std::optional<bool> MakeNamelessFirst(const fs::path& zNew, std::string_view zBytes,
                                      const std::optional<Ownership>& zOwnership) {
#ifdef O_TMPFILE
  const Descriptor file(open(zNew.parent_path().c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666));
  if (!file.IsOpen()) {
    return std::nullopt;
  }
  if (!Fill(file, zBytes, zOwnership)) {
    return false;
  }
  const std::string self = "/proc/self/fd/" + std::to_string(file.Number());
  if (linkat(AT_FDCWD, self.c_str(), AT_FDCWD, zNew.c_str(), AT_SYMLINK_FOLLOW) != 0) {
    return std::nullopt;
  }
  return true;
#else
  static_cast<void>(zNew);
  static_cast<void>(zBytes);
  static_cast<void>(zOwnership);
  return std::nullopt;
#endif
}

bool MakeNamed(const fs::path& zNew, std::string_view zBytes,
               const std::optional<Ownership>& zOwnership) {
  const Descriptor file(
      open(zNew.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, 0666));
  return file.IsOpen() && Fill(file, zBytes, zOwnership);
}

/// The name of the new file until it is swapped in. One name for a folder, because its lock lets
/// only one writer in: what a killed process has left behind is thus found and removed. Without
/// locks each process has a name of its own.
fs::path NewFileIn(const fs::path& zFolder, FolderLock::State zLock) {
  const std::string name = ".loquitor-new";
  return zFolder / (zLock == FolderLock::State::Held ? name : name + std::to_string(getpid()));
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
  loaded.isSettled = IsSettled(*before, now) && StampOf(file) == before;
  return loaded;
}

std::optional<fs::path> FollowLinks(const fs::path& zFile) {
  constexpr int longestChain = 40;
  std::error_code error;
  fs::path file = fs::absolute(zFile, error);
  for (int i = 0; i < longestChain && !error; ++i) {
    const fs::path target = fs::read_symlink(file, error);
    if (error) {
      return file;  // no link, or nothing there
    }
    file = target.is_absolute() ? target : file.parent_path() / target;
  }
  return std::nullopt;
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
  const fs::path newFile = NewFileIn(folder, zLock);
  static_cast<void>(unlink(newFile.c_str()));  // what a killed process has left; mostly nothing
  const auto ownership = OwnershipToKeep(zFile);
  if (!ownership) {
    return false;
  }
  auto isMade = MakeNamelessFirst(newFile, zBytes, *ownership);
  if (!isMade) {
    isMade = MakeNamed(newFile, zBytes, *ownership);
  }
  if (!*isMade || rename(newFile.c_str(), zFile.c_str()) != 0) {
    static_cast<void>(unlink(newFile.c_str()));  // it is not there when making it failed early
    return false;
  }
  const Descriptor directory(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.IsOpen()) {
    // The new file is in place and whole; whether its name is on the disk yet, some file systems
    // cannot say.
    static_cast<void>(fsync(directory.Number()));
  }
  return true;
}

}  // namespace loquitor

#endif
