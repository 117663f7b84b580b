#pragma once

#include <string>
#include <string_view>

#include "core/code_table.h"
#include "core/dictionary_store.h"

namespace loquitor {

/// Turns Say Data into code strings. The syntax is in docs/say-data.md.
class SayDataTranslator {
 public:
  /// Both are kept by reference and must outlive the translator.
  SayDataTranslator(const CodeTable& zCodeTable, const DictionaryStore& zDictionary);

  /// Replaces the dictionary words of `zSayData` by their entries, recursively, and pauses by their
  /// mnemonics; the result is mnemonic text. A word that is being expanded counts as missing, and
  /// what would make the result longer than MaxExpansion is dropped. All words come from one state
  /// of the dictionary, that at the call. Never fails.
  std::string ExpandSayData(std::string_view zSayData) const;

  /// The code string (one byte a code) of mnemonic text as ExpandSayData makes it. Tokens that are
  /// no mnemonic and no number from 0 to 255 are dropped. Never fails.
  std::string MnemonicsToCodes(std::string_view zText) const;

  /// The most mnemonic text that one expansion makes, in bytes.
  static constexpr std::size_t MaxExpansion = std::size_t{1} << 20;

 private:
  const CodeTable& codeTable_;
  const DictionaryStore& dictionary_;
};

/// Mnemonic text in the form that is split into tokens: upper case, each run of other characters
/// than A to Z, 0 to 9 and # one blank and a backslash.
std::string NormalizeCodeText(std::string_view zText);

/// The codes of a code string in decimal, separated by a comma and a blank.
std::string CodeListText(std::string_view zOrvatoneCodes);

}  // namespace loquitor
