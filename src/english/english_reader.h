#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "english/normalizer.h"
#include "english/phone_source.h"

namespace loquitor {

/// English as Say Data.
struct EnglishReading {
  std::string sayData;
  /// What has no reading, in UTF-8. In each paragraph first characters, then mnemonics, then words.
  std::vector<std::string> unread;
};

/// Reads English text: words of the dictionary stay as they are, all other words become mnemonics.
/// The rules are in docs/english.md.
class EnglishReader {
 public:
  /// Both must outlive the reader.
  EnglishReader(PhoneSource& zSource, const CodeTable& zCodeTable);

  /// Say Data that speaks `zText` (UTF-8, as NormalizeEnglish takes it). Words are separated by a
  /// space; the mnemonics of a word follow each other without one. A clause ends in a comma, a
  /// sentence in \P3. Paragraphs have an empty line (LF LF) between them, as they have in `zText`,
  /// and a sentence ends before it. All else is one line. Reading the result again gives the same
  /// result. Takes time proportional to the length of the text.
  EnglishReading ReadText(std::string_view zText, const SayDataWords& zWords) const;

  /// Say Data to store as the entry of `zWord`: mnemonics only, separated by spaces. Empty when the
  /// word has no reading or the entry would be longer than DictionaryStore::MaxEntry.
  std::string ReadWord(std::string_view zWord) const;

 private:
  EnglishReading ReadParagraph(std::string_view zText, const SayDataWords& zWords) const;
  std::vector<std::string> PieceSounds(const std::vector<SpokenPiece>& zPieces,
                                       std::string_view zSeparator) const;
  std::string Mnemonics(const WordPhones& zPhones, std::string_view zSpelling,
                        std::string_view zSeparator) const;

  PhoneSource& source_;
  const CodeTable& codeTable_;
};

}  // namespace loquitor
