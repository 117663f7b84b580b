#pragma once

#include <array>

namespace loquitor {

/// The characters of the bytes 0x80 to 0x9F in Windows-1252. Every other byte is the character of
/// the same number. Source: the table of the Unicode consortium ("best fit" for the five unassigned
/// bytes, which are control characters).
inline constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The character of `zByte` in Windows-1252.
constexpr char16_t CharacterOf(char zByte) {
  const auto byte = static_cast<unsigned char>(zByte);
  return byte >= 0x80 && byte < 0xA0 ? HighControls[byte - 0x80U] : byte;
}

}  // namespace loquitor
