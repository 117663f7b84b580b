#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

#include <algorithm>
#include <functional>
#include <new>
#include <string>
#include <system_error>
#include <utility>

#include "files/platform_files.h"

namespace loquitor {
namespace {

namespace fs = std::filesystem;

constexpr DWORD LongestWaitMilliseconds = 1000;
constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD LargestPiece = 1U << 30;  ///< ReadFile and WriteFile count in 32 bits

/// A file handle; the destructor closes it.
class Handle {
 public:
  Handle(const fs::path& zFile, DWORD zAccess, DWORD zShare, DWORD zDisposition)
      : handle_(CreateFileW(zFile.c_str(), zAccess, zShare, nullptr, zDisposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  ~Handle() { Close(); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }
  void Close() {
    if (IsOpen()) {
      CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
    }
  }

 private:
  HANDLE handle_;
};

std::uint64_t Joined(DWORD zHigh, DWORD zLow) {
  return std::uint64_t{zHigh} << 32 | zLow;
}

/// Nanoseconds of the system's clock from its ticks of 100.
std::int64_t Nanoseconds(std::uint64_t zTicks) {
  constexpr std::uint64_t ticksBefore1970 = 116'444'736'000'000'000;
  return static_cast<std::int64_t>(zTicks - ticksBefore1970) * 100;
}

std::int64_t Now() {
  FILETIME time;
  GetSystemTimePreciseAsFileTime(&time);
  return Nanoseconds(Joined(time.dwHighDateTime, time.dwLowDateTime));
}

std::optional<FileStamp> StampOf(const Handle& zFile) {
  BY_HANDLE_FILE_INFORMATION file{};
  FILE_BASIC_INFO basic{};
  if (GetFileType(zFile.Get()) != FILE_TYPE_DISK ||
      !GetFileInformationByHandle(zFile.Get(), &file) ||
      (file.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ||
      !GetFileInformationByHandleEx(zFile.Get(), FileBasicInfo, &basic, sizeof basic)) {
    return std::nullopt;
  }
  // File systems without change times (FAT) give 0. They count in steps of two seconds anyway.
  const auto modified = static_cast<std::uint64_t>(basic.LastWriteTime.QuadPart);
  const auto changed = static_cast<std::uint64_t>(basic.ChangeTime.QuadPart);
  return FileStamp{file.dwVolumeSerialNumber, Joined(file.nFileIndexHigh, file.nFileIndexLow),
                   Joined(file.nFileSizeHigh, file.nFileSizeLow), Nanoseconds(modified),
                   Nanoseconds(changed != 0 ? changed : modified)};
}

bool WriteAll(const Handle& zFile, std::string_view zBytes) {
  while (!zBytes.empty()) {
    DWORD count = 0;
    const auto piece = static_cast<DWORD>(std::min<std::size_t>(zBytes.size(), LargestPiece));
    if (!WriteFile(zFile.Get(), zBytes.data(), piece, &count, nullptr) || count == 0) {
      return false;
    }
    zBytes.remove_prefix(count);
  }
  return true;
}

bool Fill(const Handle& zFile, std::string_view zBytes) {
  return WriteAll(zFile, zBytes) && FlushFileBuffers(zFile.Get()) != 0;
}

/// Writes `zBytes` into a new file in `zFolder` and returns its path; nothing when that fails. What
/// a killed process has left under the first name is removed, if the system allows it; otherwise
/// another name is tried.
std::optional<fs::path> MakeFileIn(const fs::path& zFolder, std::string_view zBytes,
                                   FolderLock::State zLock) {
  for (int attempt = 0; attempt < MostNewFileNames; ++attempt) {
    const fs::path path = zFolder / NewFileName(zLock, attempt);
    if (zLock == FolderLock::State::Held && attempt == 0) {
      DeleteFileW(path.c_str());
    }
    Handle file(path, GENERIC_WRITE, 0, CREATE_NEW);
    if (file.IsOpen()) {
      const bool isFilled = Fill(file, zBytes);
      file.Close();
      if (!isFilled) {
        DeleteFileW(path.c_str());
      }
      return isFilled ? std::make_optional(path) : std::nullopt;
    }
    if (GetLastError() != ERROR_FILE_EXISTS) {
      return std::nullopt;
    }
  }
  return std::nullopt;
}

/// Whether the old file, if there is one, may be written.
bool IsWritable(const fs::path& zFile) {
  const Handle old(zFile, GENERIC_WRITE, ShareAll, OPEN_EXISTING);
  return old.IsOpen() || GetLastError() == ERROR_FILE_NOT_FOUND;
}

/// Keeps attributes and access lists when there is an old file to take them from.
bool Swap(const fs::path& zNew, const fs::path& zFile) {
  return ReplaceFileW(zFile.c_str(), zNew.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                      nullptr, nullptr) != 0 ||
         MoveFileExW(zNew.c_str(), zFile.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

}  // namespace

std::optional<FileStamp> StampOf(const fs::path& zFile) {
  const Handle file(zFile, FILE_READ_ATTRIBUTES, ShareAll, OPEN_EXISTING);
  return file.IsOpen() ? StampOf(file) : std::nullopt;
}

std::optional<LoadedFile> LoadFile(const fs::path& zFile) {
  const Handle file(zFile, GENERIC_READ, ShareAll, OPEN_EXISTING);
  if (!file.IsOpen()) {
    return std::nullopt;
  }
  const std::int64_t now = Now();
  const auto before = StampOf(file);
  if (!before || before->size > LargestLoadedFile) {
    return std::nullopt;
  }
  const auto size = static_cast<DWORD>(before->size);
  LoadedFile loaded;
  loaded.bytes.reset(new (std::nothrow) char[std::size_t{size} + 1]);
  DWORD count = 0;
  if (!loaded.bytes || !::ReadFile(file.Get(), loaded.bytes.get(), size, &count, nullptr)) {
    return std::nullopt;
  }
  loaded.size = count;
  loaded.stamp = *before;
  loaded.isStampReliable = IsReliable(*before, now) && StampOf(file) == before;
  return loaded;
}

std::optional<fs::path> FollowLinks(const fs::path& zFile) {
  std::error_code error;
  const fs::path file = fs::weakly_canonical(zFile, error);
  return error ? std::nullopt : std::make_optional(file);
}

bool IsWritableFolder(const fs::path& zFolder) {
  // Only the system can say what the access list of a folder grants to this user. So ask for the
  // right to add a file.
  const HANDLE folder = CreateFileW(zFolder.c_str(), FILE_ADD_FILE, ShareAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (folder == INVALID_HANDLE_VALUE) {
    return false;
  }
  const DWORD attributes = GetFileAttributesW(zFolder.c_str());
  CloseHandle(folder);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

FolderLock::FolderLock(const fs::path& zFolder) {
  const std::size_t folder = std::hash<std::wstring>()(zFolder.lexically_normal().wstring());
  const std::wstring name = L"Loquitor-" + std::to_wstring(folder);
  const HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
  if (mutex == nullptr) {
    return;
  }
  handle_ = reinterpret_cast<std::intptr_t>(mutex);
  const DWORD result = WaitForSingleObject(mutex, LongestWaitMilliseconds);
  // An abandoned mutex is the lock of a process that died. Its file is whole: swaps are atomic.
  const bool isHeld = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
  state_ = isHeld ? State::Held : State::TimedOut;
}

FolderLock::~FolderLock() {
  if (handle_ != -1) {
    const auto mutex = reinterpret_cast<HANDLE>(handle_);
    if (state_ == State::Held) {
      ReleaseMutex(mutex);
    }
    CloseHandle(mutex);
  }
}

bool SwapFile(const fs::path& zFile, std::string_view zBytes, FolderLock::State zLock) {
  const auto made =
      IsWritable(zFile) ? MakeFileIn(zFile.parent_path(), zBytes, zLock) : std::nullopt;
  if (!made) {
    return false;
  }
  if (!Swap(*made, zFile)) {
    DeleteFileW(made->c_str());
    return false;
  }
  return true;
}

}  // namespace loquitor

#endif
