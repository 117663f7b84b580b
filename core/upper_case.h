#pragma once

#include <string>
#include <string_view>

namespace loquitor {

/// The capital of a letter a to z; every other character as it is. Say Data and mnemonics know no
/// other letters.
constexpr char UpperCase(char zCharacter) {
  const bool isLower = zCharacter >= 'a' && zCharacter <= 'z';
  return isLower ? static_cast<char>(zCharacter - 'a' + 'A') : zCharacter;
}

/// `zText` with UpperCase of each of its characters.
inline std::string UpperCase(std::string_view zText) {
  std::string upper(zText);
  for (char& character : upper) {
    character = UpperCase(character);
  }
  return upper;
}

}  // namespace loquitor
