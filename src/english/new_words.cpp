#include "english/new_words.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "core/say_data_runs.h"
#include "english/plain_text.h"
#include "text/letters.h"

namespace loquitor {

namespace {

bool IsBeyondAscii(char zCharacter) {
  return static_cast<unsigned char>(zCharacter) >= 0x80;
}

bool IsInWord(char zCharacter) {
  return IsNameCharacter(zCharacter) || zCharacter == '\'' || IsBeyondAscii(zCharacter);
}

std::string_view WithoutApostrophesAround(std::string_view zWord) {
  const std::size_t first = std::min(zWord.find_first_not_of('\''), zWord.size());
  return zWord.substr(first, zWord.find_last_not_of('\'') + 1 - first);
}

/// Calls `zDo` with each word of the list that has a letter.
template <typename Action>
void ForEachListedWord(std::string_view zList, const Action& zDo) {
  for (auto at = zList.begin(); at != zList.end();) {
    const auto start = std::find_if(at, zList.end(), IsInWord);
    at = std::find_if_not(start, zList.end(), IsInWord);
    const std::string_view word = WithoutApostrophesAround({start, at});
    const auto isLetter = [](char c) { return IsLetter(c) || IsBeyondAscii(c); };
    if (std::any_of(word.begin(), word.end(), isLetter)) {
      zDo(word);
    }
  }
}

}  // namespace

NewWords SoundOutNewWords(std::string_view zList, const EnglishReader& zReader,
                          const SayDataWords& zWords) {
  NewWords result;
  std::unordered_set<std::string> seen;
  ForEachListedWord(WithPlainPunctuation(zList), [&](std::string_view zWord) {
    const std::string word = ToLower(zWord);
    if (zWords.hasEntry(word) || !seen.insert(word).second) {
      return;
    }
    const bool canBeWord = std::all_of(word.begin(), word.end(), IsNameCharacter);
    std::string sounds = canBeWord ? zReader.ReadWord(zWord) : std::string();
    if (sounds.empty()) {
      result.unread.emplace_back(zWord);
    } else {
      result.entries.push_back({word, std::move(sounds)});
    }
  });
  return result;
}

}  // namespace loquitor
