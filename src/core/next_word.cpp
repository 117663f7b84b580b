#include "core/next_word.h"

#include "core/dictionary_store.h"
#include "files/profile_lines.h"
#include "text/letters.h"
#include "text/words.h"

namespace loquitor {
namespace {

/// Only words before this one are found.
constexpr std::string_view Sentinel = "zzzzzzzzz!!!";

/// The first wanted word after `zCurrent` and before the sentinel.
std::optional<std::string> FirstAfter(const DictionarySnapshot& zDictionary,
                                      std::string_view zCurrent, const IsWantedSayData& zIsWanted) {
  std::string best(Sentinel);
  bool isFound = false;
  ProfileLineReader reader(zDictionary.Text());
  ProfileLine line;
  while (reader.Next(line)) {
    const std::size_t equals = line.text.find('=');
    if (equals == std::string_view::npos) {
      continue;
    }
    const std::string_view word = TrimBlanks(line.text.substr(0, equals));
    if (CompareNames(word, zCurrent) > 0 && CompareNames(word, best) < 0 &&
        (!zIsWanted || zIsWanted(zDictionary.SayDataOf(word)))) {
      best = ToLower(word);
      isFound = true;
    }
  }
  return isFound ? std::make_optional(best) : std::nullopt;
}

}  // namespace

std::optional<std::string> NextWord(const DictionaryStore& zDictionary, std::string_view zCurrent,
                                    const IsWantedSayData& zIsWanted) {
  const DictionarySnapshot dictionary = zDictionary.Snapshot();
  const auto next = FirstAfter(dictionary, zCurrent, zIsWanted);
  return next || zCurrent.empty() ? next : FirstAfter(dictionary, {}, zIsWanted);
}

}  // namespace loquitor
