#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/dictionary_store.h"

namespace loquitor {

/// Whether a search ends at a word. `zSayData` is what loading the word puts into an empty box:
/// each entry and one blank.
using IsWantedSayData = std::function<bool(std::string_view zSayData)>;

/// The word of the dictionary file that follows `zCurrent` in alphabetical order. After the last
/// word comes the first. Nothing when one pass through all words finds none.
///
/// A word is the text before the first equals sign of a line, in any section, in lower case and
/// without the blanks around it. `zCurrent` is compared in lower case too. Words are ordered by
/// their bytes; words from "zzzzzzzzz!!!" on are never found. With `zIsWanted`, only words whose
/// Say Data it accepts are found. A key with blanks in it counts as several words, each with its
/// entry.
///
/// Reads the file once or twice, and asks `zIsWanted` at most once for each word in each pass. A
/// missing file has no words.
std::optional<std::string> NextWord(const DictionaryStore& zDictionary, std::string_view zCurrent,
                                    const IsWantedSayData& zIsWanted = nullptr);

}  // namespace loquitor
