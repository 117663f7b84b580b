#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace loquitor {

/// The entry of a dictionary word; empty when it has none.
using EntryLookUp = std::function<std::string(std::string_view zWord)>;

/// Replaces the words of `zSayData` by their entries, recursively, and pauses by their mnemonics
/// (docs/say-data.md). A word that is being expanded, in whatever letter case, counts as missing.
/// What would make the result longer than `zMaxLength` bytes is dropped with everything behind it.
///
/// Cost: the length of `zSayData` and of the entries that it reaches, one look-up for each word.
/// The depth of entries within entries is bounded by memory only; the work in entries is bounded so
/// that a dictionary that multiplies itself ends in a fraction of a second, the rest of it dropped.
std::string ExpandWords(std::string_view zSayData, const EntryLookUp& zEntryOf,
                        std::size_t zMaxLength);

}  // namespace loquitor
