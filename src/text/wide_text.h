#pragma once

#include <string>
#include <string_view>

/// Only on Windows.
namespace loquitor {

/// `zText`, UTF-8, as Windows takes it. Bytes that are no UTF-8 become the replacement character.
std::wstring WideText(std::string_view zText);

/// `zText` in UTF-8.
std::string Utf8Text(std::wstring_view zText);

}  // namespace loquitor
