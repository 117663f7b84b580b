#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "english/english_reader.h"
#include "files/profile_edit.h"

namespace loquitor {

/// The words of a list that the dictionary has no sounds for.
struct NewWords {
  std::vector<ProfileValue>
      entries;                      ///< the words in lower case, in their order, with their sounds
  std::vector<std::string> unread;  ///< words that Say Data cannot hold, or without a reading
};

/// Finds the words of `zList` (UTF-8; a byte that is not UTF-8 counts as Windows-1252) that
/// `zWords` has no entry for, and their sounds. A word is a run of letters, digits, #, apostrophes
/// and characters beyond ASCII, with at least one letter. Quotation marks, dashes and spaces beyond
/// ASCII count as those of ASCII. Apostrophes at its ends are removed. Say Data cannot hold a word
/// with an apostrophe or a character beyond ASCII, so such a word is in `unread`. Each word is
/// listed once.
NewWords SoundOutNewWords(std::string_view zList, const EnglishReader& zReader,
                          const SayDataWords& zWords);

}  // namespace loquitor
