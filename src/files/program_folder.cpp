#include "files/program_folder.h"

#include <string>
#include <system_error>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#elif defined(__APPLE__)
#include <mach-o/dyld.h>

#include <cstdint>
#endif

namespace loquitor {
namespace {

std::filesystem::path Executable() {
#ifdef _WIN32
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
#elif defined(__APPLE__)
  std::uint32_t size = 0;
  static_cast<void>(_NSGetExecutablePath(nullptr, &size));  // fails, and sets the size
  std::string path(size, '\0');
  if (_NSGetExecutablePath(path.data(), &size) != 0) {
    return {};
  }
  return path.c_str();
#else
  return "/proc/self/exe";
#endif
}

}  // namespace

std::filesystem::path ProgramFolder() {
  std::error_code error;
  const std::filesystem::path executable = std::filesystem::canonical(Executable(), error);
  return error ? std::filesystem::current_path(error) : executable.parent_path();
}

}  // namespace loquitor
