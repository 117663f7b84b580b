#pragma once

#include <string_view>

namespace loquitor {

/// An abbreviation and its words. docs/english.md lists all.
struct Abbreviation {
  enum class Needs { Nothing, Period, PeriodAndNumber, PeriodAndCapital };

  std::string_view shortForm;   ///< in lower case, without its period
  Needs needs;                  ///< what must follow the short form
  std::string_view words;       ///< in lower case
  bool mayEndSentence = false;  ///< its period may also end the sentence
};

/// What follows a short form in the text.
struct AfterShortForm {
  bool hasPeriod;
  bool isBeforeNumber;   ///< a digit follows, after the period and a space if there are any
  bool isBeforeCapital;  ///< a space and a capital, or a comma, follow after the period if there is
                         ///< one
};

/// The first abbreviation with this short form (any letter case) whose needs are met; null when
/// there is none.
const Abbreviation* FindAbbreviation(std::string_view zShortForm, const AfterShortForm& zAfter);

/// A unit that may follow a number.
struct Unit {
  std::string_view symbol;
  std::string_view one;    ///< its name after the number 1
  std::string_view many;   ///< its name after other numbers
  bool isWordToo = false;  ///< the symbol is a unit only right after the number, without a space
};

/// The unit with this symbol; letter case counts. Null when there is none.
const Unit* FindUnit(std::string_view zSymbol);

/// Whether `zWord` is spelled letter by letter: it has no vowel letter and is none of the few such
/// words that are spoken (hmm), or it is in capitals and on a list (USB).
bool IsSpelledOut(std::string_view zWord);

/// Whether `zWord` is one of the words that begin many sentences and few names (any letter case).
bool OftenBeginsSentence(std::string_view zWord);

}  // namespace loquitor
