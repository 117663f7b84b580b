#include "text/path_text.h"

#include "text/wide_text.h"

namespace loquitor {

#ifdef _WIN32

std::filesystem::path PathFrom(std::string_view zText) {
  return WideText(zText);
}

std::string TextOf(const std::filesystem::path& zPath) {
  return Utf8Text(zPath.native());
}

#else

std::filesystem::path PathFrom(std::string_view zText) {
  return zText;
}

std::string TextOf(const std::filesystem::path& zPath) {
  return zPath.native();
}

#endif

}  // namespace loquitor
