#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace loquitor {

/// `zText` without the characters of `zAtStart` at its start and those of `zAtEnd` at its end.
inline std::string_view Trim(std::string_view zText, std::string_view zAtStart,
                             std::string_view zAtEnd) {
  // Every line of a file passes here, so these are loops that compile into a few comparisons.
  const auto isOneOf = [](std::string_view zSome, char zCharacter) {
    return std::any_of(zSome.begin(), zSome.end(), [=](char zOne) { return zOne == zCharacter; });
  };
  while (!zText.empty() && isOneOf(zAtStart, zText.front())) {
    zText.remove_prefix(1);
  }
  while (!zText.empty() && isOneOf(zAtEnd, zText.back())) {
    zText.remove_suffix(1);
  }
  return zText;
}

/// `zText` without the spaces (no other characters) at its two ends.
inline std::string_view TrimSpaces(std::string_view zText) {
  return Trim(zText, " ", " ");
}

/// `zText` without the spaces and tabs at its two ends.
inline std::string_view TrimBlanks(std::string_view zText) {
  return Trim(zText, " \t", " \t");
}

/// `zText` without the spaces at its start and without the spaces and NULs at its end.
inline std::string_view TrimSpacesAndNuls(std::string_view zText) {
  return Trim(zText, " ", {" \0", 2});
}

/// `zText` without its line breaks (CR and LF).
inline std::string InOneLine(std::string_view zText) {
  std::string line(zText);
  std::erase_if(line, [](char zByte) { return zByte == '\r' || zByte == '\n'; });
  return line;
}

/// Calls `zDo` with each word of `zText`, in order. Runs of spaces separate the words.
template <class Action>
void ForEachWord(std::string_view zText, const Action& zDo) {
  for (zText = TrimSpaces(zText); !zText.empty(); zText = TrimSpaces(zText)) {
    const std::string_view word = zText.substr(0, zText.find(' '));
    zDo(word);
    zText.remove_prefix(word.size());
  }
}

}  // namespace loquitor
