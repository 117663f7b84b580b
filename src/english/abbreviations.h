#pragma once

#include <string_view>

namespace loquitor {

/// How an abbreviation is read.
struct Abbreviation {
  enum class Needs { Nothing, Period, PeriodAndNumber, PeriodAndCapital };

  std::string_view shortForm;  ///< in lower case, without its period
  Needs needs;                 ///< what has to follow for it to be one
  std::string_view words;
  bool mayEndSentence = false;  ///< its period may be a full stop too
};

/// What follows a short form in the text.
struct AfterShortForm {
  bool hasPeriod;
  bool isBeforeNumber;
  bool isBeforeCapital;
};

/// The abbreviation that `zShortForm` (any letter case) is; null when it is none.
const Abbreviation* FindAbbreviation(std::string_view zShortForm, const AfterShortForm& zAfter);

/// A unit after a number.
struct Unit {
  std::string_view symbol;
  std::string_view one;
  std::string_view many;
  bool isWordToo = false;  ///< is a unit only when it touches the number
};

/// The unit with `zSymbol`, letter case counting; null when there is none.
const Unit* FindUnit(std::string_view zSymbol);

/// Whether `zWord` is spelled out: it has no vowel letter, or is written in capitals and known to
/// be spelled, such as USB.
bool IsSpelledOut(std::string_view zWord);

/// The number that `zWord` is as a Roman numeral from II to XX in capitals, in words; empty when it
/// is none.
std::string_view RomanNumeralWords(std::string_view zWord);

/// The name of a symbol, empty when it has none: "percent" for %.
std::string_view SymbolName(char zSymbol);

}  // namespace loquitor
