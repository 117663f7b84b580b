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

  /// Replaces the dictionary words of `zSayData` by their entries, recursively, and pauses by their
  /// mnemonics; the result is mnemonic text. A word that is being expanded counts as missing, and
  /// what would make the result longer than MaxExpansion is dropped. All words come from one state
  /// of the dictionary, that at the call. Never fails.
  std::string ExpandSayData(std::string_view zSayData) const;

  /// The code string, one byte a code, of mnemonic text that ExpandSayData has made. Tokens that
  /// are neither a mnemonic nor a number from 0 to 255 are dropped. Never fails.
  std::string MnemonicsToCodes(std::string_view zText) const;

  /// The words and mnemonics of `zSayData` for which the chip gets no code. Fast enough to ask
  /// after every key. All words come from one state of the dictionary, that at the call.
  std::vector<SilentPart> FindSilentParts(std::string_view zSayData) const;

  /// The most mnemonic text that one expansion makes, in bytes.
  static constexpr std::size_t MaxExpansion = std::size_t{1} << 20;

 private:
  const CodeTable& codeTable_;
  const DictionaryStore& dictionary_;
};

/// Mnemonic text in the form that is split into tokens: in upper case, with one space and a
/// backslash in place of each run of characters other than A to Z, 0 to 9 and #. Such a run at the
/// end goes.
std::string NormalizeCodeText(std::string_view zText);

/// The codes of a code string in decimal, separated by ", ".
std::string CodeListText(std::string_view zOrvatoneCodes);

}  // namespace loquitor
