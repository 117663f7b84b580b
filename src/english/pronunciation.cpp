#include "english/pronunciation.h"

#include <algorithm>
#include <string_view>

namespace loquitor {

namespace {

struct KnownWord {
  std::string_view word;
  std::string_view phones;
};

/// Words that a source takes for other words because it drops apostrophes, or spells, or guesses
/// wrongly.
constexpr KnownWord KnownWords[] = {
    {"a", "ax"},
    {"ain't", "ey1 n t"},
    {"brr", "b er1"},
    {"can't", "k ae1 n t"},
    {"don't", "d ow1 n t"},
    {"eeprom", "iy1 p r aa m"},
    {"emoji", "ih m ow1 jh iy"},
    {"goin", "g ow1 ax n"},
    {"grr", "g er1"},
    {"he'll", "hh iy1 l"},
    {"hm", "hh ah1 m"},
    {"hmm", "hh ah1 m"},
    {"i'll", "ay1 l"},
    {"ipv", "ay1 p iy1 v iy1"},
    {"jpeg", "jh ey1 p eh g"},
    {"json", "jh ey1 s ax n"},
    {"lidar", "l ay1 d aa r"},
    {"mm", "m"},
    {"mustn't", "m ah1 s ax n t"},
    {"nth", "eh1 n th"},
    {"psst", "p s t"},
    {"pst", "p s t"},
    {"readme", "r iy1 d m iy"},
    {"sh", "sh"},
    {"shan't", "sh ae1 n t"},
    {"she'll", "sh iy1 l"},
    {"shh", "sh"},
    {"thirty", "th er1 t iy"},
    {"tis", "t ih1 z"},
    {"tsk", "t ih1 s k"},
    {"we'll", "w iy1 l"},
    {"we're", "w iy1 r"},
    {"won't", "w ow1 n t"},
    {"zzz", "z"},
};

constexpr std::string_view Not = "n't";

const KnownWord* FindKnown(std::string_view zWord) {
  const auto* const found =
      std::find_if(std::begin(KnownWords), std::end(KnownWords),
                   [zWord](const KnownWord& zKnown) { return zKnown.word == zWord; });
  return found == std::end(KnownWords) ? nullptr : found;
}

bool IsContractedNot(std::string_view zWord) {
  return zWord.size() > Not.size() && zWord.ends_with(Not) && FindKnown(zWord) == nullptr;
}

/// The word to ask the source for in place of `zWord`.
std::string AskedWord(const std::string& zWord) {
  return IsContractedNot(zWord) ? zWord.substr(0, zWord.size() - Not.size()) : zWord;
}

/// Corrects what the source says for `zWord`.
void Correct(const std::string& zWord, WordPhones& zPhones) {
  if (const KnownWord* const known = FindKnown(zWord)) {
    zPhones = PhonesFromText(known->phones);
  } else if (IsContractedNot(zWord)) {
    const bool isAfterR =
        !zPhones.empty() && (zPhones.back().phone == Phone::R || zPhones.back().phone == Phone::ER);
    const WordPhones ending = PhonesFromText(isAfterR ? "n t" : "ax n t");
    zPhones.insert(zPhones.end(), ending.begin(), ending.end());
  }
}

}  // namespace

std::vector<WordPhones> Pronounce(PhoneSource& zSource, std::span<const std::string> zWords) {
  std::vector<std::string> asked;
  for (const std::string& word : zWords) {
    asked.push_back(AskedWord(word));
  }
  std::vector<WordPhones> phones = zSource.PhonesOf(asked);
  for (std::size_t i = 0; i < phones.size(); ++i) {
    Correct(zWords[i], phones[i]);
  }
  return phones;
}

}  // namespace loquitor
