#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include "files/platform_files.h"

namespace loquitor::testing {

/// `zText` as if it had been read from a file.
inline LoadedFile AsLoaded(std::string_view zText) {
  LoadedFile file;
  file.bytes = std::make_unique<char[]>(zText.size());
  std::copy(zText.begin(), zText.end(), file.bytes.get());
  file.size = zText.size();
  return file;
}

}  // namespace loquitor::testing
