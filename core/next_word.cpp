#include "core/next_word.h"

#include <algorithm>

#include "core/words.h"
#include "link/fresh_profile.h"
#include "link/letter_case.h"
#include "link/profile_lines.h"

namespace loquitor {
namespace {

/// Stands for "no word found"; no word sorts at or behind it.
constexpr std::string_view Sentinel = "zzzzzzzzz!!!";

/// Less than, equal to or greater than 0 as `zWord` in lower case sorts before, with or behind
/// `zLower`, which is in lower case.
int CompareInLowerCase(std::string_view zWord, std::string_view zLower) {
  const std::size_t common = std::min(zWord.size(), zLower.size());
  for (std::size_t i = 0; i < common; ++i) {
    const char lower = LowerCaseTable[static_cast<unsigned char>(zWord[i])];
    if (lower != zLower[i]) {
      return static_cast<unsigned char>(lower) < static_cast<unsigned char>(zLower[i]) ? -1 : 1;
    }
  }
  return zWord.size() == zLower.size() ? 0 : (zWord.size() < zLower.size() ? -1 : 1);
}

/// What loading the blank-separated words of `zWords` makes of an empty Say Data.
std::string SayDataOf(const ProfileIndex& zIndex, std::string_view zWords) {
  std::string sayData;
  ForEachWord(zWords, [&](std::string_view zWord) {
    sayData.append(DictionaryStore::EntryIn(zIndex, zWord)).append(" ");
  });
  return sayData;
}

/// The first wanted word behind `zCurrent` and before the sentinel, in no case both.
std::optional<std::string> FirstBehind(const ProfileIndex& zIndex, std::string_view zCurrent,
                                       const IsWantedSayData& zIsWanted) {
  std::string best(Sentinel);
  bool isFound = false;
  ProfileLineReader reader(zIndex.Text());
  ProfileLine line;
  while (reader.Next(line)) {
    const std::size_t equals = line.text.find('=');
    if (equals == std::string_view::npos) {
      continue;
    }
    const std::string_view word = TrimBlanks(line.text.substr(0, equals));
    if (CompareInLowerCase(word, zCurrent) > 0 && CompareInLowerCase(word, best) < 0 &&
        (!zIsWanted || zIsWanted(SayDataOf(zIndex, word)))) {
      best = ToLower(word);
      isFound = true;
    }
  }
  return isFound ? std::make_optional(best) : std::nullopt;
}

}  // namespace

std::optional<std::string> NextWord(const DictionaryStore& zDictionary, std::string_view zCurrent,
                                    const IsWantedSayData& zIsWanted) {
  const auto index = FreshIndexOf(zDictionary.File());
  if (!index) {
    return std::nullopt;
  }
  const std::string current = ToLower(zCurrent);
  const auto next = FirstBehind(*index, current, zIsWanted);
  return next || current.empty() ? next : FirstBehind(*index, {}, zIsWanted);
}

}  // namespace loquitor
