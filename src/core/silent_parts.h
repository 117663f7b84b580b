#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/expansion.h"

namespace loquitor {

class CodeTable;

/// A part of a Say Data text for which the chip gets no code.
struct SilentPart {
  enum class Kind {
    Word,     ///< a word without an entry, or whose entry gives no code
    Mnemonic  ///< a backslash and what follows it, without codes by CodeTable::TokenCodes
  };

  Kind kind;
  std::size_t start;   ///< offset of its first character in the text
  std::size_t length;  ///< in characters, including those inside that Say Data ignores
};

/// The silent words and mnemonics of `zSayData`, in the order of the text. Spaces, commas and
/// ignored characters are never silent parts. A word whose entry gives only pauses is not silent.
///
/// Each word is looked up at most once. Takes time proportional to the length of `zSayData` and of
/// the entries that are looked up, even if they refer to each other in a circle.
std::vector<SilentPart> FindSilentParts(std::string_view zSayData, const EntryLookUp& zEntryOf,
                                        const CodeTable& zCodeTable);

}  // namespace loquitor
