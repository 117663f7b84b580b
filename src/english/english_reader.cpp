#include "english/english_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

#include "core/dictionary_store.h"
#include "english/letter_names.h"
#include "english/pronunciation.h"
#include "english/sound_rules.h"
#include "text/letters.h"

namespace loquitor {

namespace {

using Kind = SpokenPiece::Kind;

constexpr std::string_view SentencePause = "\\P3";

/// Whether the source of phones gets the piece, as a word or as the neighbour of one.
bool IsWordInSentence(const SpokenPiece& zPiece) {
  const bool isReadable = zPiece.text.size() <= PhoneSource::MaxWordLength &&
                          zPiece.text.find_first_of("0123456789#") == std::string::npos;
  return zPiece.kind == Kind::Word || (zPiece.kind == Kind::Entry && isReadable);
}

/// The phones of each of `zPieces`, which are a sentence or a part of one. None for a piece that is
/// neither a word nor a letter.
std::vector<WordPhones> SentencePhones(PhoneSource& zSource, std::span<const SpokenPiece> zPieces) {
  std::vector<std::string> words;
  for (const SpokenPiece& piece : zPieces) {
    if (IsWordInSentence(piece)) {
      words.push_back(ToLower(piece.text));
    }
  }
  const bool needsPhones = std::any_of(zPieces.begin(), zPieces.end(),
                                       [](const SpokenPiece& p) { return p.kind == Kind::Word; });
  std::vector<WordPhones> ofWords =
      needsPhones ? Pronounce(zSource, words) : std::vector<WordPhones>(words.size());
  std::vector<WordPhones> phones;
  std::size_t next = 0;
  for (const SpokenPiece& piece : zPieces) {
    phones.push_back(IsWordInSentence(piece) ? std::move(ofWords[next++]) : WordPhones());
    if (piece.kind == Kind::Letter) {
      phones.back() = LetterName(piece.text);
    }
  }
  return phones;
}

using PieceIterator = std::vector<SpokenPiece>::const_iterator;

/// The end of the sentence that begins at `zFrom`, or of as much of it as the source takes at once.
PieceIterator EndOfSentence(PieceIterator zFrom, PieceIterator zEnd) {
  const auto limit = zFrom + std::min<std::ptrdiff_t>(zEnd - zFrom, PhoneSource::MaxWords);
  const auto isSentence = [](const SpokenPiece& p) { return p.kind == Kind::Sentence; };
  const auto found = std::find_if(zFrom, limit, isSentence);
  return found == limit ? limit : found + 1;
}

/// The end of the first paragraph of `zText`, after the line breaks of the empty line.
std::size_t EndOfParagraph(std::string_view zText) {
  bool isEmptyLine = false;
  for (std::size_t at = 0; at < zText.size(); ++at) {
    if (zText[at] == '\n' && isEmptyLine) {
      return at + 1;
    }
    const bool isBlank = zText[at] == ' ' || zText[at] == '\t' || zText[at] == '\r';
    isEmptyLine = zText[at] == '\n' || (isEmptyLine && isBlank);
  }
  return zText.size();
}

/// Appends a paragraph to what is before it.
void Append(EnglishReading& zReading, EnglishReading zParagraph) {
  std::string& sayData = zReading.sayData;
  if (!sayData.empty() && !zParagraph.sayData.empty()) {
    if (sayData.ends_with(',')) {
      sayData.pop_back();
    }
    if (!sayData.ends_with(SentencePause)) {
      sayData.append(" ").append(SentencePause);
    }
    sayData += " \n\n";  // a line break alone separates no words in Say Data
  }
  sayData += zParagraph.sayData;
  std::move(zParagraph.unread.begin(), zParagraph.unread.end(),
            std::back_inserter(zReading.unread));
}

/// The letters of the word. Their vowels are paired with its phones.
std::string SpellingOf(const SpokenPiece& zPiece) {
  std::string spelling = zPiece.text;
  std::erase(spelling, '\'');
  return spelling;
}

}  // namespace

EnglishReader::EnglishReader(PhoneSource& zSource, const CodeTable& zCodeTable)
    : source_(zSource), codeTable_(zCodeTable) {}

std::string EnglishReader::Mnemonics(const WordPhones& zPhones, std::string_view zSpelling,
                                     std::string_view zSeparator) const {
  std::string mnemonics;
  for (const SpeechSound sound : SoundsOfWord(zPhones, zSpelling)) {
    mnemonics.append(mnemonics.empty() ? "" : zSeparator);
    mnemonics += codeTable_.GetCodeMnemonic(static_cast<std::uint8_t>(sound));
  }
  return mnemonics;
}

/// The Say Data of each piece. Empty for a pause and for a word without a reading.
std::vector<std::string> EnglishReader::PieceSounds(const std::vector<SpokenPiece>& zPieces,
                                                    std::string_view zSeparator) const {
  std::vector<std::string> sounds;
  for (auto from = zPieces.begin(); from != zPieces.end();) {
    const auto to = EndOfSentence(from, zPieces.end());
    const std::vector<WordPhones> phones = SentencePhones(source_, {from, to});
    for (std::size_t i = 0; i < phones.size(); ++i, ++from) {
      const bool isSpoken = from->kind == Kind::Word || from->kind == Kind::Letter;
      sounds.push_back(isSpoken ? Mnemonics(phones[i], SpellingOf(*from), zSeparator) : from->text);
    }
  }
  return sounds;
}

EnglishReading EnglishReader::ReadText(std::string_view zText, const SayDataWords& zWords) const {
  EnglishReading reading;
  for (std::string_view rest = zText; !rest.empty();) {
    const std::string_view paragraph = rest.substr(0, EndOfParagraph(rest));
    Append(reading, ReadParagraph(paragraph, zWords));
    rest.remove_prefix(paragraph.size());
  }
  return reading;
}

EnglishReading EnglishReader::ReadParagraph(std::string_view zText,
                                            const SayDataWords& zWords) const {
  SpokenText spoken = NormalizeEnglish(zText, zWords);
  const std::vector<std::string> sounds = PieceSounds(spoken.pieces, "");
  EnglishReading reading{"", std::move(spoken.unread)};
  std::string& sayData = reading.sayData;
  for (std::size_t i = 0; i < sounds.size(); ++i) {
    const SpokenPiece& piece = spoken.pieces[i];
    if (piece.kind == Kind::Clause) {
      sayData += ',';
      continue;
    }
    const std::string_view sound =
        piece.kind == Kind::Sentence ? SentencePause : std::string_view(sounds[i]);
    if (sound.empty()) {
      reading.unread.push_back(piece.text);
      continue;
    }
    sayData.append(sayData.empty() ? "" : " ").append(sound);
  }
  return reading;
}

std::string EnglishReader::ReadWord(std::string_view zWord) const {
  const auto never = [](std::string_view) { return false; };
  const SpokenText spoken = NormalizeEnglish(zWord, {never, never});
  std::string entry;
  for (const std::string& sounds : PieceSounds(spoken.pieces, " ")) {
    entry.append(entry.empty() || sounds.empty() ? "" : " ").append(sounds);
  }
  return entry.size() > DictionaryStore::MaxEntry ? std::string() : entry;
}

}  // namespace loquitor
