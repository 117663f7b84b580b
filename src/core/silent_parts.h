#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "core/code_table.h"
#include "core/expansion.h"

namespace loquitor {

/// A part of a Say Data text for which the chip gets no code.
struct SilentPart {
  enum class Kind {
    Word,     ///< not in the dictionary, or its entry gives no code either
    Mnemonic  ///< a backslash without the name of a code and without a number from 0 to 255
  };

  Kind kind;
  std::size_t start;   ///< offset of its first character in the text
  std::size_t length;  ///< up to its last character; characters that Say Data ignores may be inside
};

/// The silent words and mnemonics of `zSayData`, in their order. Spaces, commas and ignored
/// characters are never among them. A word whose entry gives nothing but pauses is not silent.
///
/// Each word is looked up once, and only entries without a sound of their own lead to further ones.
/// Costs time in proportion to `zSayData` and the entries looked up, cycles among them included.
std::vector<SilentPart> FindSilentParts(std::string_view zSayData, const EntryLookUp& zEntryOf,
                                        const CodeTable& zCodeTable);

}  // namespace loquitor
