#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// The lower-case letter of `zCharacter` in Windows-1252; every other byte is its own. Source: the
/// code page's chart. Its capitals lie 32 below their small letters, at 0x41 to 0x5A and 0xC0 to
/// 0xDE (but for the multiplication sign 0xD7), and four stand apart. U+0178 (0x9F) is the capital
/// of 0xFF; the sharp s (0xDF) has none.
constexpr char LowerCase(char zCharacter) {
  const auto code = static_cast<unsigned char>(zCharacter);
  const auto isBetween = [code](int zFirst, int zLast) { return code >= zFirst && code <= zLast; };
  if (isBetween('A', 'Z') || (isBetween(0xC0, 0xDE) && code != 0xD7)) {
    return static_cast<char>(code + 0x20);
  }
  if (code == 0x8A || code == 0x8C || code == 0x8E) {
    return static_cast<char>(code + 0x10);
  }
  return code == 0x9F ? '\xFF' : zCharacter;
}

/// LowerCase of every byte, by its unsigned value: for loops over many bytes.
inline constexpr std::array<char, 256> LowerCaseTable = [] {
  std::array<char, 256> table{};
  for (std::size_t code = 0; code < table.size(); ++code) {
    table[code] = LowerCase(static_cast<char>(code));
  }
  return table;
}();

/// `zText` in lower case.
inline std::string ToLower(std::string_view zText) {
  std::string lower(zText);
  for (char& character : lower) {
    character = LowerCaseTable[static_cast<unsigned char>(character)];
  }
  return lower;
}

}  // namespace loquitor
