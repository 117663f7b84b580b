#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "core/dictionary_store.h"
#include "core/silent_parts.h"

namespace loquitor {

/// Turns Say Data into code strings. docs/say-data.md describes its syntax.
class SayDataTranslator {
 public:
  /// Both must outlive the translator.
  SayDataTranslator(const CodeTable& zCodeTable, const DictionaryStore& zDictionary);

  /// The mnemonic text of `zSayData`: ExpandWords with the entries of the dictionary at the time of
  /// the call, and a limit of MaxExpansion plus MaxGrowth times the length of `zSayData`. Never
  /// fails.
  std::string ExpandSayData(std::string_view zSayData) const;

  /// The code string, one byte for each code, of mnemonic text that ExpandSayData has made. Tokens
  /// for which CodeTable::TokenCodes has no codes are dropped. Never fails.
  std::string MnemonicsToCodes(std::string_view zText) const;

  /// The words and mnemonics of `zSayData` for which the chip gets no code, by the dictionary at
  /// the time of the call. Fast enough to call after every key.
  std::vector<SilentPart> FindSilentParts(std::string_view zSayData) const;

  /// The limit of an expansion, because entries may multiply each other. Pauses and names in the
  /// Say Data grow four times at most, so a text without words is never cut.
  static constexpr std::size_t MaxExpansion = std::size_t{1} << 20;  ///< in bytes
  static constexpr std::size_t MaxGrowth = 16;

 private:
  const CodeTable& codeTable_;
  const DictionaryStore& dictionary_;
};

/// Mnemonic text in the form that is split into tokens: in upper case, with a space and a backslash
/// in place of each run of characters other than A to Z, 0 to 9 and #. Such a run at the end is
/// dropped.
std::string NormalizeCodeText(std::string_view zText);

/// The codes of a code string as decimal numbers, separated by ", ".
std::string CodeListText(std::string_view zOrvatoneCodes);

}  // namespace loquitor
