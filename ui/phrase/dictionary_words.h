#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "core/dictionary_store.h"

namespace loquitor {

/// What a step to the next dictionary word looks for.
enum class NextWordMode {
  WithData,     ///< the next word that has an entry
  WithoutData,  ///< the next word that has none
  Any,
};

/// Nothing when neither check box is ticked.
std::optional<NextWordMode> NextWordModeOf(bool zIsWithTicked, bool zIsWithoutTicked);

/// What loading the words of `zText` puts into an empty Say Data box: for each word its entry and
/// one blank.
std::string LoadedText(const DictionaryStore& zDictionary, std::string_view zText);

/// Whether a step in that mode ends at a word that loads as `zSayData`. With data, a text in
/// `zFindWith` must be part of it, in capitals.
bool IsWanted(NextWordMode zMode, std::string_view zSayData, std::string_view zFindWith);

/// What is said when a pass through the whole dictionary found no word in that mode.
QString NoWordNotice(NextWordMode zMode);

/// Why the dictionary cannot hold an entry under that single word, or nothing when it can.
std::optional<QString> RefusalOfWord(std::string_view zWord);

}  // namespace loquitor
