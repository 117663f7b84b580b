#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace loquitor::bench {

/// A dictionary of `zCount` entries without sounds (216,000 at most). The words can be spoken and
/// are all different.
inline std::string BlankEntriesText(std::size_t zCount) {
  constexpr std::string_view Consonants = "bdfgklmnprst";
  constexpr std::string_view Vowels = "aeiou";
  std::string text = "[words]\n";
  for (std::size_t word = 0; word < zCount; ++word) {
    for (std::size_t rest = word, i = 0; i < 3; ++i, rest /= 60) {
      text += Consonants[rest % 12];
      text += Vowels[rest / 12 % 5];
    }
    text += "=\n";
  }
  return text;
}

}  // namespace loquitor::bench
