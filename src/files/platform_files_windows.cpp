#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
// After windows.h, which it needs.
#include <winternl.h>

#include <algorithm>
#include <new>
#include <string>
#include <system_error>
#include <utility>

#include "files/platform_files.h"

extern "C" {
NTSTATUS NTAPI NtQueryFullAttributesFile(POBJECT_ATTRIBUTES, PFILE_NETWORK_OPEN_INFORMATION);
NTSTATUS NTAPI RtlDosPathNameToNtPathName_U_WithStatus(PCWSTR, PUNICODE_STRING, PCWSTR*, void*);
}

namespace loquitor {
namespace {

namespace fs = std::filesystem;

constexpr DWORD LongestWaitMilliseconds = 1000;
constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD LargestPiece = 1U << 30;  ///< ReadFile and WriteFile count in 32 bits

/// A file handle; the destructor closes it.
class Handle {
 public:
  Handle(const fs::path& zFile, DWORD zAccess, DWORD zShare, DWORD zDisposition,
         DWORD zFlags = FILE_ATTRIBUTE_NORMAL)
      : handle_(
            CreateFileW(zFile.c_str(), zAccess, zShare, nullptr, zDisposition, zFlags, nullptr)) {}
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

/// Without device and file, which a path does not tell: whoever puts another file in the place of
/// one renames it, and that is a change of the file.
FileStamp StampFrom(LARGE_INTEGER zSize, LARGE_INTEGER zModified, LARGE_INTEGER zChanged) {
  // File systems without change times (FAT) give 0. They count in steps of two seconds anyway.
  const LARGE_INTEGER changed = zChanged.QuadPart != 0 ? zChanged : zModified;
  return {.size = static_cast<std::uint64_t>(zSize.QuadPart),
          .modified = Nanoseconds(static_cast<std::uint64_t>(zModified.QuadPart)),
          .changed = Nanoseconds(static_cast<std::uint64_t>(changed.QuadPart))};
}

std::optional<FileStamp> StampOf(const Handle& zFile) {
  FILE_STANDARD_INFO file{};
  FILE_BASIC_INFO basic{};
  if (GetFileType(zFile.Get()) != FILE_TYPE_DISK ||
      !GetFileInformationByHandleEx(zFile.Get(), FileStandardInfo, &file, sizeof file) ||
      file.Directory ||
      !GetFileInformationByHandleEx(zFile.Get(), FileBasicInfo, &basic, sizeof basic)) {
    return std::nullopt;
  }
  return StampFrom(file.EndOfFile, basic.LastWriteTime, basic.ChangeTime);
}

/// What GetFileAttributesEx tells, and the time of the last change, which it keeps to itself.
std::optional<FILE_NETWORK_OPEN_INFORMATION> InformationOn(const fs::path& zFile) {
  UNICODE_STRING path;
  if (!NT_SUCCESS(
          RtlDosPathNameToNtPathName_U_WithStatus(zFile.c_str(), &path, nullptr, nullptr))) {
    return std::nullopt;
  }
  OBJECT_ATTRIBUTES object;
  InitializeObjectAttributes(&object, &path, OBJ_CASE_INSENSITIVE, nullptr, nullptr);
  FILE_NETWORK_OPEN_INFORMATION information{};
  const NTSTATUS status = NtQueryFullAttributesFile(&object, &information);
  RtlFreeUnicodeString(&path);
  return NT_SUCCESS(status) ? std::make_optional(information) : std::nullopt;
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
bool TryToSwap(const fs::path& zNew, const fs::path& zFile) {
  return ReplaceFileW(zFile.c_str(), zNew.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                      nullptr, nullptr) != 0 ||
         MoveFileExW(zNew.c_str(), zFile.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

/// Tries again for a moment: a virus scanner or an indexer may just have the old file open.
bool Swap(const fs::path& zNew, const fs::path& zFile) {
  constexpr int tries = 20;
  constexpr DWORD pauseMilliseconds = 10;
  for (int i = 0; i < tries; ++i) {
    if (TryToSwap(zNew, zFile)) {
      return true;
    }
    const DWORD error = GetLastError();
    if (error != ERROR_SHARING_VIOLATION && error != ERROR_ACCESS_DENIED) {
      return false;
    }
    Sleep(pauseMilliseconds);
  }
  return false;
}

/// The name of the lock of a folder, the same for every user and for every way to write its path.
/// Empty when there is no such folder.
std::wstring LockName(const fs::path& zFolder) {
  const Handle folder(zFolder, FILE_READ_ATTRIBUTES, ShareAll, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION file{};
  if (!folder.IsOpen() || !GetFileInformationByHandle(folder.Get(), &file)) {
    return {};
  }
  return L"Global\\Loquitor-" + std::to_wstring(file.dwVolumeSerialNumber) + L"-" +
         std::to_wstring(Joined(file.nFileIndexHigh, file.nFileIndexLow));
}

/// A mutex that every user may take, since they may share the folder.
HANDLE CreateLock(const std::wstring& zName) {
  SECURITY_DESCRIPTOR everyone;
  InitializeSecurityDescriptor(&everyone, SECURITY_DESCRIPTOR_REVISION);
  SetSecurityDescriptorDacl(&everyone, TRUE, nullptr, FALSE);
  SECURITY_ATTRIBUTES attributes{sizeof attributes, &everyone, FALSE};
  return CreateMutexW(&attributes, FALSE, zName.c_str());
}

}  // namespace

std::optional<FileStamp> StampOf(const fs::path& zFile) {
  const auto file = InformationOn(zFile);  // the cheap way: opening a file costs ten times as much
  if (!file || (file->FileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    return std::nullopt;
  }
  if ((file->FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    return StampFrom(file->EndOfFile, file->LastWriteTime, file->ChangeTime);
  }
  const Handle target(zFile, FILE_READ_ATTRIBUTES, ShareAll, OPEN_EXISTING);
  return target.IsOpen() ? StampOf(target) : std::nullopt;
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
  // While another program saves the file, it may be missing for a moment. weakly_canonical looks
  // several times and takes that badly, so it gets links only. They stay when their file is saved.
  const DWORD attributes = GetFileAttributesW(zFile.c_str());
  const bool isLink =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  std::error_code error;
  const fs::path file = isLink ? fs::weakly_canonical(zFile, error) : fs::absolute(zFile, error);
  return error ? std::nullopt : std::make_optional(file);
}

bool IsWritableFolder(const fs::path& zFolder) {
  // Only the system can say what the access list of a folder grants to this user. So ask for the
  // right to add a file.
  const Handle folder(zFolder, FILE_ADD_FILE, ShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
  FILE_STANDARD_INFO file{};
  return folder.IsOpen() &&
         GetFileInformationByHandleEx(folder.Get(), FileStandardInfo, &file, sizeof file) &&
         file.Directory;
}

FolderLock::FolderLock(const fs::path& zFolder) {
  const std::wstring name = LockName(zFolder);
  const HANDLE mutex = name.empty() ? nullptr : CreateLock(name);
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
  const bool wasThere = GetFileAttributesW(zFile.c_str()) != INVALID_FILE_ATTRIBUTES;
  const auto made =
      IsWritable(zFile) ? MakeFileIn(zFile.parent_path(), zBytes, zLock) : std::nullopt;
  if (!made) {
    return false;
  }
  if (Swap(*made, zFile)) {
    return true;
  }
  // Windows may fail between the two steps of a swap; then the new file is all that is left.
  const bool isOldLost = wasThere && GetFileAttributesW(zFile.c_str()) == INVALID_FILE_ATTRIBUTES;
  if (!isOldLost) {
    DeleteFileW(made->c_str());
  }
  return false;
}

}  // namespace loquitor

#endif
