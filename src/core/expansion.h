#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace loquitor {

/// The entry of a dictionary word; empty when it has none.
using EntryLookUp = std::function<std::string(std::string_view zWord)>;

/// Replaces the words of `zSayData` by their entries, recursively, and pauses by their mnemonics
/// (docs/say-data.md). A word that occurs in its own expansion, in any letter case, counts as
/// missing there. The result ends before the first part that would make it longer than `zMaxLength`
/// bytes.
///
/// The work in entries is at most that of reading 8 MiB, plus eight times the length of `zSayData`:
/// entries that would take more are left out. Only memory limits the depth of nesting.
std::string ExpandWords(std::string_view zSayData, const EntryLookUp& zEntryOf,
                        std::size_t zMaxLength);

}  // namespace loquitor
