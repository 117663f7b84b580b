#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/dictionary_store.h"

namespace loquitor {

/// Says for a word's Say Data, as loading the word leaves it in an empty box (each entry and one
/// blank), whether the search ends there.
using IsWantedSayData = std::function<bool(std::string_view zSayData)>;

/// The word of the dictionary file that follows `zCurrent` in alphabetical order; behind the last
/// one the first follows, and the search ends after one pass with nothing.
///
/// A word is what stands before the first equals sign of any line, in whatever section, without the
/// blanks around it and in lower case; `zCurrent` is compared in lower case too. The order is that
/// of the bytes, words from "zzzzzzzzz!!!" on are never found. With `zIsWanted` only words whose
/// Say Data it accepts are found: the entries, as GetDictionaryValue gives them, of the one or (for
/// a hand-written key with blanks) several words of it.
///
/// Costs one pass over the file, and a question to `zIsWanted` at most for each word. A missing
/// file has no words.
std::optional<std::string> NextWord(const DictionaryStore& zDictionary, std::string_view zCurrent,
                                    const IsWantedSayData& zIsWanted = nullptr);

}  // namespace loquitor
