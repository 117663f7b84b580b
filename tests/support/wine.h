#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace loquitor::testing {

/// Whether this is not Windows itself.
inline bool IsOnWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll"), "wine_get_version") != nullptr;
}

}  // namespace loquitor::testing
