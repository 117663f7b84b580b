#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "english/english_reader.h"
#include "files/profile_file.h"

namespace loquitor {

/// The words of a list that the dictionary cannot speak yet.
struct NewWords {
  std::vector<ProfileValue>
      entries;                      ///< the words in lower case, in their order, with their sounds
  std::vector<std::string> unread;  ///< words that Say Data cannot hold, or without a reading
};

/// Finds the words of `zList` that `zWords` has no entry for, and their sounds. A word is letters
/// and digits with at least one letter. One with an apostrophe or an accent cannot be a word of Say
/// Data and is among `unread`; everything else between the words separates them.
NewWords SoundOutNewWords(std::string_view zList, const EnglishReader& zReader,
                          const SayDataWords& zWords);

}  // namespace loquitor
