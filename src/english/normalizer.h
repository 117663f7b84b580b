#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "english/say_data_words.h"

namespace loquitor {

/// A piece of an English text as it is spoken.
struct SpokenPiece {
  enum class Kind {
    Entry,     ///< a word of the dictionary, as it was typed: letters, digits and #
    Word,      ///< a word to find the phones of: 1 to 60 characters a to z and apostrophe
    Letter,    ///< a letter to spell, a to z; "ds" is the plural
    Mnemonic,  ///< one or several without blanks between, with their backslashes, as typed
    Clause,    ///< a short pause; never two pauses in a row
    Sentence,  ///< a long pause
  };

  Kind kind;
  std::string text;  ///< empty for a pause
};

/// An English text as it is spoken.
struct SpokenText {
  std::vector<SpokenPiece> pieces;
  std::vector<std::string> unread;  ///< what has no reading, in UTF-8, in the order of the text
};

/// Turns English text into what is said: numbers, abbreviations and symbols in words, capitals
/// spelled, a pause for each stop. `zText` is UTF-8 (a byte that is none of it counts as
/// Windows-1252). What docs/english.md does not list has no reading; it is told in `unread` and
/// everything around it is read. The time is proportional to the length of the text.
SpokenText NormalizeEnglish(std::string_view zText, const SayDataWords& zWords);

}  // namespace loquitor
