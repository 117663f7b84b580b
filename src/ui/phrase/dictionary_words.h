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

/// The entries of the words of `zText`, each followed by one blank.
std::string LoadedText(const DictionaryStore& zDictionary, std::string_view zText);

/// Whether a step in that mode stops at a word whose entry loads as `zSayData`. In the mode
/// WithData, `zSayData` must contain the capitals of `zFindWith`.
bool IsWanted(NextWordMode zMode, std::string_view zSayData, std::string_view zFindWith);

/// Tells the user that the dictionary has no word for that mode.
QString NoWordNotice(NextWordMode zMode);

/// Why the dictionary cannot hold an entry under `zWord` (not empty), as a message to the user;
/// nothing when it can.
std::optional<QString> RefusalOfWord(std::string_view zWord);

/// What to tell the user who has saved `zSayData` as an entry that is too long to come back whole;
/// empty when it comes back whole.
QString CutNotice(std::string_view zSayData);

}  // namespace loquitor
