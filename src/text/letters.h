#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor {

/// Whether `zCharacter` is a digit 0 to 9.
constexpr bool IsDigit(char zCharacter) {
  return zCharacter >= '0' && zCharacter <= '9';
}

/// Whether `zCharacter` is a letter A to Z of either case. Say Data and mnemonics have no others.
constexpr bool IsLetter(char zCharacter) {
  return (zCharacter >= 'A' && zCharacter <= 'Z') || (zCharacter >= 'a' && zCharacter <= 'z');
}

/// Whether `zCharacter` is a capital A to Z.
constexpr bool IsCapital(char zCharacter) {
  return zCharacter >= 'A' && zCharacter <= 'Z';
}

/// The lower-case letter of `zCharacter` in Windows-1252; every other byte unchanged. Source: the
/// chart of the code page. A capital is 32 below its small letter, in 0x41 to 0x5A and 0xC0 to 0xDE
/// (except the multiplication sign, 0xD7). Four capitals are elsewhere: 0x8A, 0x8C, 0x8E, and 0x9F,
/// which belongs to 0xFF. The sharp s (0xDF) has no capital.
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

/// LowerCase of every byte, by its unsigned value. For loops over many bytes.
inline constexpr std::array<char, 256> LowerCaseTable = [] {
  std::array<char, 256> table{};
  for (std::size_t code = 0; code < table.size(); ++code) {
    table[code] = LowerCase(static_cast<char>(code));
  }
  return table;
}();

/// The capital of each byte, by its unsigned value: LowerCase the other way round.
inline constexpr std::array<char, 256> UpperCaseTable = [] {
  std::array<char, 256> table{};
  for (std::size_t code = 0; code < table.size(); ++code) {
    table[code] = static_cast<char>(code);
  }
  for (std::size_t code = 0; code < table.size(); ++code) {
    const auto lower = static_cast<unsigned char>(LowerCaseTable[code]);
    table[lower] = lower == code ? table[lower] : static_cast<char>(code);
  }
  return table;
}();

/// The capital of `zCharacter` in Windows-1252; every other byte unchanged.
constexpr char UpperCase(char zCharacter) {
  return UpperCaseTable[static_cast<unsigned char>(zCharacter)];
}

/// `zText` with UpperCase of each byte.
inline std::string ToUpper(std::string_view zText) {
  std::string upper(zText);
  for (char& character : upper) {
    character = UpperCase(character);
  }
  return upper;
}

/// `zText` with LowerCase of each byte.
inline std::string ToLower(std::string_view zText) {
  std::string lower(zText);
  for (char& character : lower) {
    character = LowerCaseTable[static_cast<unsigned char>(character)];
  }
  return lower;
}

}  // namespace loquitor
