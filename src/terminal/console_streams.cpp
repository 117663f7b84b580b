#ifdef _WIN32

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include "terminal/console_streams.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "text/wide_text.h"

namespace loquitor {
namespace {

/// The length of `zText` without the character at its end whose last bytes are still to come.
std::size_t LengthOfWholeCharacters(std::string_view zText) {
  constexpr std::size_t longest = 4;
  for (std::size_t back = 1; back <= std::min(longest, zText.size()); ++back) {
    const auto byte = static_cast<unsigned char>(zText[zText.size() - back]);
    if ((byte & 0xC0) == 0x80) {
      continue;
    }
    const std::size_t length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
    return length > back ? zText.size() - back : zText.size();
  }
  return zText.size();
}

bool WriteUnits(HANDLE zConsole, std::wstring_view zUnits) {
  constexpr std::size_t mostAtOnce = 8192;  // older consoles refuse more than 64 KB
  while (!zUnits.empty()) {
    DWORD count = 0;
    const auto piece = static_cast<DWORD>(std::min(zUnits.size(), mostAtOnce));
    if (!WriteConsoleW(zConsole, zUnits.data(), piece, &count, nullptr) || count == 0) {
      return false;
    }
    zUnits.remove_prefix(count);
  }
  return true;
}

bool IsFirstHalf(wchar_t zUnit) {
  return zUnit >= 0xD800 && zUnit < 0xDC00;
}

}  // namespace

ConsoleOutput::int_type ConsoleOutput::overflow(int_type zByte) {
  constexpr std::size_t enough = 4096;
  if (traits_type::eq_int_type(zByte, traits_type::eof())) {
    return traits_type::not_eof(zByte);
  }
  bytes_ += traits_type::to_char_type(zByte);
  return bytes_.size() >= enough && sync() != 0 ? traits_type::eof() : zByte;
}

int ConsoleOutput::sync() {
  const std::size_t length = LengthOfWholeCharacters(bytes_);
  const std::wstring units = WideText(std::string_view(bytes_).substr(0, length));
  bytes_.erase(0, length);
  return WriteUnits(handle_, units) ? 0 : -1;
}

ConsoleInput::int_type ConsoleInput::underflow() {
  constexpr wchar_t endOfInput = 0x1A;
  DWORD count = 0;
  if (!ReadConsoleW(handle_, units_.data() + kept_, static_cast<DWORD>(units_.size() - kept_),
                    &count, nullptr)) {
    throw std::runtime_error("cannot read the console");
  }
  std::wstring_view units(units_.data(), kept_ + count);
  if (count == 0 || units.front() == endOfInput) {
    return traits_type::eof();
  }
  const wchar_t last = units.back();
  kept_ = IsFirstHalf(last) ? 1 : 0;
  units.remove_suffix(kept_);
  bytes_ = Utf8Text(units);
  units_.front() = last;
  std::erase(bytes_, '\r');
  setg(bytes_.data(), bytes_.data(), bytes_.data() + bytes_.size());
  return bytes_.empty() ? underflow() : traits_type::to_int_type(bytes_.front());
}

}  // namespace loquitor

#endif
