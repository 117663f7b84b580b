#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace loquitor {

class DictionaryStore;

/// Whether a search may end at a word. `zSayData` is DictionarySnapshot::SayDataOf of the word,
/// which may have spaces in it.
using IsWantedSayData = std::function<bool(std::string_view zSayData)>;

/// The word of the dictionary file that follows `zCurrent` in the order of their bytes. The first
/// word follows the last one. With `zIsWanted`, words whose Say Data it refuses are skipped.
/// Nothing when there is no such word.
///
/// A word is the text before the first equals sign of a line, in any section, in lower case and
/// without the blanks around it. `zCurrent` is compared in lower case too. Words from
/// "zzzzzzzzz!!!" on are never found.
///
/// Searches one state of the file, in at most two passes, and asks `zIsWanted` at most once for
/// each line in each pass. A missing file has no words.
std::optional<std::string> NextWord(const DictionaryStore& zDictionary, std::string_view zCurrent,
                                    const IsWantedSayData& zIsWanted = nullptr);

}  // namespace loquitor
