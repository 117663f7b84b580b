#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "text/wide_text.h"

#include <windows.h>

namespace loquitor {

std::wstring WideText(std::string_view zText) {
  const int size = static_cast<int>(zText.size());
  std::wstring wide(zText.size(), L'\0');  // never more units than bytes
  const int length = MultiByteToWideChar(CP_UTF8, 0, zText.data(), size, wide.data(), size);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

std::string Utf8Text(std::wstring_view zText) {
  const int units = static_cast<int>(zText.size());
  std::string text(zText.size() * 3, '\0');  // never more than three bytes a unit
  const int length = WideCharToMultiByte(CP_UTF8, 0, zText.data(), units, text.data(),
                                         static_cast<int>(text.size()), nullptr, nullptr);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace loquitor

#endif
