#include "english/vowel_spelling.h"

#include <algorithm>

namespace loquitor {

namespace {

constexpr std::string_view VowelLetters = "aeiouy";

std::vector<std::string_view> VowelGroups(std::string_view zWord) {
  std::vector<std::string_view> groups;
  std::size_t at = zWord.starts_with('y') ? 1 : 0;
  while ((at = zWord.find_first_of(VowelLetters, at)) != std::string_view::npos) {
    const bool isAfterQ = zWord[at] == 'u' && at > 0 && zWord[at - 1] == 'q';
    const std::size_t start = at + (isAfterQ ? 1 : 0);
    const std::size_t end = zWord.find_first_not_of(VowelLetters, start);
    at = std::min(end, zWord.size());
    if (at > start) {
      groups.push_back(zWord.substr(start, at - start));
    }
  }
  return groups;
}

bool MayEndSilently(std::string_view zWord) {
  return zWord.ends_with('e') || zWord.ends_with("es") || zWord.ends_with("ed");
}

/// Whether the two letters are often two vowels, as in radio or quiet.
bool MayBeTwoVowels(std::string_view zLetters) {
  constexpr std::string_view Pairs[] = {"ia", "ie", "io", "iu", "ua", "ue", "uo", "eo", "ea", "eu"};
  return std::find(std::begin(Pairs), std::end(Pairs), zLetters) != std::end(Pairs);
}

/// Splits groups from the first on until there are `zCount`.
void SplitGroups(std::vector<std::string_view>& zGroups, std::size_t zCount) {
  for (std::size_t i = 0; i < zGroups.size() && zGroups.size() < zCount; ++i) {
    if (MayBeTwoVowels(zGroups[i])) {
      const std::string_view second = zGroups[i].substr(1);
      zGroups[i] = zGroups[i].substr(0, 1);
      zGroups.insert(zGroups.begin() + static_cast<std::ptrdiff_t>(++i), second);
    }
  }
}

}  // namespace

std::vector<std::string_view> VowelSpelling(std::string_view zWord, std::size_t zVowelCount) {
  std::vector<std::string_view> groups = VowelGroups(zWord);
  if (groups.size() == zVowelCount + 1 && groups.back() == "e" && MayEndSilently(zWord)) {
    groups.pop_back();
  }
  SplitGroups(groups, zVowelCount);
  if (groups.size() != zVowelCount) {
    groups.clear();
  }
  return groups;
}

}  // namespace loquitor
