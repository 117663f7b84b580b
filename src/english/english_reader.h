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
  std::vector<std::string> unread;  ///< what has no reading, in UTF-8, in the order of the text
};

/// Reads English text: the words of the dictionary stay what they are, every other word becomes
/// mnemonics. The rules are in docs/english.md.
class EnglishReader {
 public:
  /// Both are kept by reference and must outlive the reader.
  EnglishReader(PhoneSource& zSource, const CodeTable& zCodeTable);

  /// Say Data that speaks `zText`. Words are separated by one blank, the mnemonics of a word follow
  /// each other without any; a clause ends in a comma, a sentence in \P3. Reading the result again
  /// gives the same. Costs the length of the text.
  EnglishReading ReadText(std::string_view zText, const SayDataWords& zWords) const;

  /// Say Data to store as the entry of `zWord`: mnemonics alone, separated by blanks. Empty when
  /// the word has no reading or the entry would be longer than a dictionary holds.
  std::string ReadWord(std::string_view zWord) const;

 private:
  std::vector<std::string> PieceSounds(const std::vector<SpokenPiece>& zPieces,
                                       std::string_view zSeparator) const;
  std::string Mnemonics(const WordPhones& zPhones, std::string_view zSpelling,
                        std::string_view zSeparator) const;

  PhoneSource& source_;
  const CodeTable& codeTable_;
};

}  // namespace loquitor
