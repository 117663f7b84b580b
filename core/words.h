#pragma once

#include <algorithm>
#include <string_view>

namespace loquitor {

/// `zText` without the spaces (no other characters) at its two ends.
inline std::string_view TrimSpaces(std::string_view zText) {
  zText.remove_prefix(std::min(zText.find_first_not_of(' '), zText.size()));
  return zText.substr(0, zText.find_last_not_of(' ') + 1);
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
