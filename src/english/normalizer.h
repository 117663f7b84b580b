#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "english/say_data_words.h"

namespace loquitor {

/// A piece of an English text as it is spoken.
struct SpokenPiece {
  enum class Kind {
    Entry,     ///< a word of the dictionary, as in the text: letters, digits and #
    Word,      ///< any other word, as PhoneSource takes it
    Letter,    ///< a letter to spell, a to z, or such a letter and an s for the plural
    Mnemonic,  ///< one or several without spaces between them, with their backslashes, as in the
               ///< text
    Clause,    ///< a short pause; a pause never follows another
    Sentence,  ///< a long pause
  };

  Kind kind;
  std::string text;  ///< empty for a pause
};

/// An English text as it is spoken.
struct SpokenText {
  std::vector<SpokenPiece> pieces;
  std::vector<std::string> unread;  ///< what has no reading, in UTF-8: characters, then mnemonics
};

/// Turns English text into what is said: numbers, abbreviations and symbols become words, acronyms
/// are spelled, punctuation becomes pauses. A line break is a space, except that a word goes on
/// after a hyphen at the end of a line. `zText` is UTF-8; a byte that is not UTF-8 counts as
/// Windows-1252. What has no reading by docs/english.md is in `unread`, and everything around it is
/// read. Takes time proportional to the length of the text.
SpokenText NormalizeEnglish(std::string_view zText, const SayDataWords& zWords);

}  // namespace loquitor
