// English text to Say Data. An input is a text. The source of phones must get only words that it
// allows. The Say Data must have a code for every mnemonic, and reading it again must not change
// it. Where this build has a real source of phones, that must survive too.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "core/say_data_runs.h"
#include "english/english_reader.h"
#include "text/letters.h"

namespace {

using namespace loquitor;
using Kind = SpokenPiece::Kind;

void Require(bool zHolds, const char* zWhat) {
  if (!zHolds) {
    std::cerr << "does not hold: " << zWhat << '\n';
    std::abort();
  }
}

bool IsPause(Kind zKind) {
  return zKind == Kind::Clause || zKind == Kind::Sentence;
}

bool IsAllowedWord(const std::string& zWord) {
  const bool hasLetter = std::any_of(zWord.begin(), zWord.end(), IsLetter);
  return hasLetter && zWord.size() <= PhoneSource::MaxWordLength &&
         zWord.find_first_not_of("abcdefghijklmnopqrstuvwxyz'") == std::string::npos;
}

void CheckPiece(const SpokenPiece& zPiece, const SayDataWords& zWords) {
  const std::string& text = zPiece.text;
  const bool isName = std::all_of(text.begin(), text.end(), IsNameCharacter);
  switch (zPiece.kind) {
    case Kind::Entry:
      return Require(isName && zWords.hasEntry(text), "entry");
    case Kind::Word:
      return Require(IsAllowedWord(text), "word");
    case Kind::Letter:
      return Require(IsLetter(text.at(0)) && (text.size() == 1 || text.substr(1) == "s"), "letter");
    case Kind::Mnemonic:
      return Require(text.at(0) == '\\', "mnemonic");
    case Kind::Clause:
    case Kind::Sentence:
      return Require(text.empty(), "pause");
  }
}

/// A phone for each letter, so that every word has a reading.
class LetterPhones : public PhoneSource {
 public:
  std::vector<WordPhones> PhonesOf(std::span<const std::string> zWords) override {
    Require(!zWords.empty() && zWords.size() <= MaxWords, "count of words");
    std::vector<WordPhones> phones;
    for (const std::string& word : zWords) {
      Require(IsAllowedWord(word), "word for the source");
      phones.emplace_back();
      for (const char letter : word) {
        phones.back().push_back({static_cast<Phone>(letter % 40), letter % 3 == 0});
      }
    }
    return phones;
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* zData, std::size_t zSize) {
  static const CodeTable table = [] {
    CodeTable built;
    built.BuildCodeTable();
    return built;
  }();
  static const DictionaryStore noDictionary("");
  static const SayDataTranslator translator(table, noDictionary);
  static const std::unique_ptr<PhoneSource> real = CreatePhoneSource();
  const SayDataWords words{
      [](std::string_view zWord) {
        constexpr std::string_view oneCharacter = "5x#";
        return zWord.size() == 4 || ToLower(zWord) == "r2d2" ||
               (zWord.size() == 1 && oneCharacter.find(zWord) != std::string_view::npos);
      },
      [](std::string_view zMnemonic) { return !translator.MnemonicsToCodes(zMnemonic).empty(); }};
  const std::string text(zData, zData + zSize);

  const SpokenText spoken = NormalizeEnglish(text, words);
  Kind last = Kind::Sentence;
  for (const SpokenPiece& piece : spoken.pieces) {
    CheckPiece(piece, words);
    Require(!IsPause(last) || !IsPause(piece.kind), "one pause at a time");
    last = piece.kind;
  }

  LetterPhones letters;
  const EnglishReader reader(letters, table);
  const std::string sayData = reader.ReadText(text, words).sayData;
  Require(sayData.find_first_of("\r\t") == std::string::npos, "spaces and line breaks alone");
  Require(sayData.find("\n\n\n") == std::string::npos, "one empty line between paragraphs");
  const SpokenText again = NormalizeEnglish(sayData, words);
  Require(
      again.unread.empty() && translator.FindSilentParts(sayData).size() ==
                                  static_cast<std::size_t>(std::count_if(
                                      again.pieces.begin(), again.pieces.end(),
                                      [](const SpokenPiece& p) { return p.kind == Kind::Entry; })),
      "a code for every mnemonic");
  Require(reader.ReadText(sayData, words).sayData == sayData, "read again as it is");
  static_cast<void>(reader.ReadWord(text));
  constexpr std::size_t MaxRealText = 60;  // a real source is slow
  if (real != nullptr && zSize <= MaxRealText) {
    static_cast<void>(EnglishReader(*real, table).ReadText(text, words));
  }
  return 0;
}
