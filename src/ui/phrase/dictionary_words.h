#pragma once

#include <QString>
#include <optional>
#include <string_view>

namespace loquitor {

/// What a step to the next dictionary word looks for.
enum class NextWordMode {
  WithData,     ///< the next word that has an entry
  WithoutData,  ///< the next word that has none
  Any,
};

/// The mode that the two check boxes mean. Nothing when neither is ticked.
std::optional<NextWordMode> NextWordModeOf(bool zIsWithTicked, bool zIsWithoutTicked);

/// Whether a step in that mode stops at a word whose entry loads as `zSayData`. In the mode
/// WithData, `zSayData` must also contain `zFindWith` converted to upper case.
bool IsWanted(NextWordMode zMode, std::string_view zSayData, std::string_view zFindWith);

/// The message that the dictionary has no word for that mode.
QString NoWordNotice(NextWordMode zMode);

/// Why `zWord` (not empty) cannot be a word of the dictionary, as a message to the user. Nothing
/// when it can.
std::optional<QString> RefusalOfWord(std::string_view zWord);

/// The message that `zSayData`, saved as an entry, is too long to come back whole. Empty when it
/// comes back whole.
QString CutNotice(std::string_view zSayData);

}  // namespace loquitor
