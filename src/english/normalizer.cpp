#include "english/normalizer.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/say_data_runs.h"
#include "english/abbreviations.h"
#include "english/number_cursor.h"
#include "english/number_words.h"
#include "english/phone_source.h"
#include "english/plain_text.h"
#include "english/roman_numerals.h"
#include "english/symbols.h"
#include "text/letters.h"
#include "text/words.h"

namespace loquitor {

namespace {

using Kind = SpokenPiece::Kind;

/// Reads the plain text from its start to its end. Each Read function reads what is at `at_` and
/// moves `at_` past it.
class Normalizer {
 public:
  Normalizer(PlainText zPlain, const SayDataWords& zWords)
      : text_(std::move(zPlain.text)), words_(zWords) {
    spoken_.unread = std::move(zPlain.unread);
  }

  SpokenText Normalize() {
    while (at_ < text_.size()) {
      ReadNext();
    }
    return std::move(spoken_);
  }

 private:
  char At(std::size_t zSteps = 0) const {
    return at_ + zSteps < text_.size() ? text_[at_ + zSteps] : '\0';
  }
  char Before() const { return at_ > 0 ? text_[at_ - 1] : ' '; }
  std::string_view Rest() const { return std::string_view(text_).substr(at_); }

  void ReadNext() {
    if (At() == '\\') {
      ReadMnemonic();
    } else if (IsNameCharacter(At()) && !IsNameCharacter(Before()) && ReadEntryWithDigits()) {
    } else if (StartsWithNumber(Rest()) && (At() != '.' || !IsNameCharacter(Before()))) {
      const std::size_t start = at_;
      Read(NumberHere());
      ReadInchSign(Since(start));
    } else if (const std::optional<NumberReading> phone = ReadPhoneNumber(Rest())) {
      Read(*phone);
    } else if (IsLetter(At()) && !words_.hasEntry(Rest().substr(0, 1)) &&
               !NameOfX(text_, at_).empty()) {
      AddWord(NameOfX(text_, at_));
      ++at_;
    } else if (IsLetter(At())) {
      ReadLetters();
    } else {
      ReadSymbol();
    }
  }

  /// The number here. In the name of a part, such as RS232, it is read digit by digit.
  NumberReading NumberHere() const {
    constexpr std::size_t ShortestName = 3;
    const std::string_view digits = DigitsAt(text_, at_);
    const bool isHundreds = digits.ends_with("00");
    const NumberReading reading = ReadNumber(Rest());
    const bool isAlone = reading.size == digits.size() || At(digits.size()) == '-';
    if (digits.empty() || !isAlone || !IsInPartName(text_, at_)) {
      return reading;
    }
    const bool isShort = digits.size() < ShortestName || isHundreds || IsYear(digits);
    return {isShort ? PlainWords(digits) : DigitWords(digits), digits.size()};
  }

  void Read(const NumberReading& zReading) {
    AddWords(zReading.words);
    at_ += zReading.size;
  }

  /// 3.5": a quotation mark after a number stands for inches, unless it closes a quotation.
  void ReadInchSign(std::string_view zNumber) {
    if (At() == '"' && IsDigit(Before()) && !isInQuotation_) {
      AddWord(zNumber == "1" || zNumber.starts_with("1/") ? "inch" : "inches");
      ++at_;
    }
  }

  // Pieces

  void Add(Kind zKind, std::string_view zText) {
    spoken_.pieces.push_back({zKind, std::string(zText)});
  }

  /// There is no pause at the beginning. Of two pauses in a row the longer one counts.
  void AddPause(Kind zKind) {
    if (spoken_.pieces.empty()) {
      return;
    }
    SpokenPiece& last = spoken_.pieces.back();
    if (last.kind != Kind::Clause && last.kind != Kind::Sentence) {
      Add(zKind, {});
    } else if (zKind == Kind::Sentence) {
      last.kind = zKind;
    }
  }

  /// Adds words in the form of NumberReading::words.
  void AddWords(std::string_view zWords) {
    ForEachWord(zWords, [this](std::string_view zWord) {
      if (zWord == ",") {
        AddPause(Kind::Clause);
      } else if (zWord.size() == 1 && IsCapital(zWord[0])) {
        AddLetters(zWord);
      } else {
        AddWord(zWord);
      }
    });
  }

  void AddWord(std::string_view zWord) {
    const bool hasApostrophe = zWord.find('\'') != std::string_view::npos;
    if (!hasApostrophe && words_.hasEntry(zWord)) {
      Add(Kind::Entry, zWord);
      return;
    }
    for (; zWord.size() > PhoneSource::MaxWordLength;
         zWord.remove_prefix(PhoneSource::MaxWordLength)) {
      AddWordPart(zWord.substr(0, PhoneSource::MaxWordLength));
    }
    AddWordPart(zWord);
  }

  void AddWordPart(std::string_view zWord) {
    if (std::any_of(zWord.begin(), zWord.end(), IsLetter)) {
      Add(Kind::Word, ToLower(zWord));
    }
  }

  void AddLetters(std::string_view zLetters) {
    for (const char letter : zLetters) {
      Add(Kind::Letter, std::string(1, LowerCase(letter)));
    }
  }

  // Say Data in the text

  void ReadMnemonic() {
    const std::size_t start = at_++;
    SkipWhile(IsNameCharacter);
    const std::string_view mnemonic = Since(start);
    const bool isJoined = start > 0 && IsNameCharacter(text_[start - 1]);
    if (!words_.isMnemonic(mnemonic)) {
      spoken_.unread.emplace_back(mnemonic);
    } else if (isJoined && !spoken_.pieces.empty() &&
               spoken_.pieces.back().kind == Kind::Mnemonic) {
      spoken_.pieces.back().text += mnemonic;
    } else {
      Add(Kind::Mnemonic, mnemonic);
    }
  }

  /// A word of the dictionary with digits in it, such as R2D2 or 100.
  bool ReadEntryWithDigits() {
    const std::size_t start = at_;
    SkipWhile(IsNameCharacter);
    const std::string_view word = Since(start);
    const bool hasOther = !std::all_of(word.begin(), word.end(), IsLetter);
    if (hasOther && words_.hasEntry(word)) {
      Add(Kind::Entry, word);
      return true;
    }
    at_ = start;
    return false;
  }

  template <typename Class>
  void SkipWhile(Class zIsOne) {
    while (at_ < text_.size() && zIsOne(text_[at_])) {
      ++at_;
    }
  }
  std::string_view Since(std::size_t zStart) const {
    return std::string_view(text_).substr(zStart, at_ - zStart);
  }

  // Words

  void ReadLetters() {
    if (ReadDottedLetters() || ReadWith()) {
      return;
    }
    const std::string_view word = TakeLetters();
    if (word.find('\'') != std::string_view::npos) {
      ReadApostropheWord(word);
    } else if (!ReadAbbreviation(word)) {
      ReadPlainWord(word);
    }
  }

  /// w/o and w/
  bool ReadWith() {
    if (IsNameCharacter(Before()) || LowerCase(At()) != 'w' || At(1) != '/') {
      return false;
    }
    const bool isWithout = LowerCase(At(2)) == 'o' && !IsNameCharacter(At(3));
    if (!isWithout && At(2) != ' ') {
      return false;
    }
    AddWord(isWithout ? "without" : "with");
    at_ += isWithout ? 3 : 2;
    return true;
  }

  /// Letters, and apostrophes between two of them.
  std::string_view TakeLetters() {
    const std::size_t start = at_;
    while (IsLetter(At()) || (At() == '\'' && at_ > start && IsLetter(At(1)))) {
      ++at_;
    }
    return Since(start);
  }

  /// The letters at the start of `zText`, at most three, if a period follows. One of several begins
  /// with a capital. Empty when they are not there.
  static std::string_view DottedLetters(std::string_view zText) {
    constexpr std::size_t Longest = 3;
    std::size_t size = 0;
    while (size < zText.size() && size <= Longest && IsLetter(zText[size])) {
      ++size;
    }
    const bool hasForm = size == 1 || (size > 1 && size <= Longest && IsCapital(zText[0]));
    return hasForm && zText.substr(size).starts_with('.') ? zText.substr(0, size) : "";
  }

  /// U.S.A., e.g., Ph.D.: letters with periods, one of them alone.
  bool ReadDottedLetters() {
    const std::string_view first = DottedLetters(Rest());
    if (IsNameCharacter(Before()) || first.empty()) {
      return false;
    }
    const std::string_view second = DottedLetters(Rest().substr(first.size() + 1));
    if (second.empty() || (first.size() > 1 && second.size() > 1)) {
      return false;
    }
    std::string letters;
    for (std::string_view next = first; !next.empty(); next = DottedLetters(Rest())) {
      letters += next;
      at_ += next.size() + 1;
    }
    const Abbreviation* const known = FindAbbreviation(letters, {true, false, false});
    known != nullptr ? AddWords(known->words) : AddLetters(letters);
    if (EndsSentenceHere() && !IsBeforeName()) {
      AddPause(Kind::Sentence);
    }
    return true;
  }

  /// Whether the period of an abbreviation, which has been read, also ends the sentence.
  bool EndsSentenceHere() const {
    return at_ >= text_.size() || (At() == ' ' && (At(1) == '\0' || IsCapital(At(1))));
  }

  /// Whether a space and a capital follow that most likely begin a name, not a sentence.
  bool IsBeforeName() const {
    constexpr std::size_t LongestOpener = 8;
    if (At() != ' ' || !IsCapital(At(1))) {
      return false;
    }
    if (At(2) == '.') {
      return true;
    }
    std::size_t size = 1;
    while (size <= LongestOpener && IsLetter(At(1 + size))) {
      ++size;
    }
    return size > LongestOpener || !OftenBeginsSentence(Rest().substr(1, size));
  }

  bool IsBeforeSmallLetter() const { return At() == ' ' && IsLetter(At(1)) && !IsCapital(At(1)); }

  /// Whether the period here belongs to a name of the net or of a file: robots.co.uk.
  bool IsPeriodInName() const { return At() == '.' && IsLetter(At(1)) && !IsCapital(At(1)); }

  bool ReadAbbreviation(std::string_view zWord) {
    const bool isFolder = zWord.size() < at_ && text_[at_ - zWord.size() - 1] == '/';
    const bool hasPeriod = At() == '.' && !IsPeriodInName();
    const std::size_t next = hasPeriod ? 1 : 0;
    const bool hasBlank = At(next) == ' ';
    const char first = At(next + (hasBlank ? 1 : 0));
    const bool isBeforeCapital = (hasBlank && IsCapital(first)) || At(next) == ',';
    const Abbreviation* const found =
        FindAbbreviation(zWord, {hasPeriod, IsDigit(first), isBeforeCapital});
    const bool isNumbered =
        found != nullptr && found->needs == Abbreviation::Needs::PeriodAndNumber;
    if (found == nullptr || isFolder || (words_.hasEntry(zWord) && !isNumbered)) {
      return false;
    }
    at_ += next;
    AddWords(found->words);
    if (hasPeriod && found->mayEndSentence && EndsSentenceHere()) {
      AddPause(Kind::Sentence);
    }
    return true;
  }

  void ReadApostropheWord(std::string_view zWord) {
    const std::string_view stem = zWord.substr(0, zWord.find('\''));
    const bool isPlural = zWord.substr(stem.size()) == "'s" || zWord.substr(stem.size()) == "'S";
    const bool isItIs = zWord == "IT'S";
    if (isPlural && !isItIs && IsSpelled(stem)) {
      AddSpelledPlural(stem);
    } else {
      AddWord(zWord);
    }
  }

  /// For the word before 's: Bs and USBs are plurals.
  static bool IsSpelled(std::string_view zWord) {
    const bool isOneCapital = zWord.size() == 1 && IsCapital(zWord[0]);
    return isOneCapital || IsSpelledOut(zWord);
  }

  void AddSpelledPlural(std::string_view zWord) {
    AddLetters(zWord);
    spoken_.pieces.back().text += 's';
  }

  /// NE555, CO2, AT&T: two capitals beside a digit or an ampersand are spelled.
  bool IsPairInName(std::string_view zWord) const {
    constexpr std::size_t Pair = 2;
    const std::size_t start = at_ - zWord.size();
    const char before = start > 0 ? text_[start - 1] : ' ';
    const auto joins = [](char zCharacter) { return IsDigit(zCharacter) || zCharacter == '&'; };
    return zWord.size() == Pair && IsCapital(zWord[0]) && IsCapital(zWord[1]) &&
           (joins(At()) || joins(before));
  }

  void ReadPlainWord(std::string_view zWord) {
    const std::string_view stem = zWord.substr(0, zWord.size() - 1);
    const bool isPlural =
        zWord.ends_with('s') && stem.size() > 1 && std::all_of(stem.begin(), stem.end(), IsCapital);
    if (words_.hasEntry(zWord)) {
      Add(Kind::Entry, zWord);
    } else if (zWord.size() == 1) {
      ReadSingleLetter(zWord);
    } else if (const std::string number = RomanNumeralWords(zWord); !number.empty()) {
      AddWords(number);
    } else if (isPlural && IsSpelledOut(stem)) {
      AddSpelledPlural(stem);
    } else if (IsSpelledOut(zWord) || IsPairInName(zWord)) {
      AddLetters(zWord);
    } else {
      ReadHumps(zWord);
    }
  }

  /// A and I are words, except for the A in "vitamin A".
  void ReadSingleLetter(std::string_view zLetter) {
    const char letter = LowerCase(zLetter[0]);
    const bool isBeforeWord = At() == ' ' && (IsLetter(At(1)) || At(1) == '"' || At(1) == '\'' ||
                                              StartsWithNumber(Rest().substr(1)));
    const bool isWord = letter == 'i' || (letter == 'a' && (zLetter[0] == 'a' || isBeforeWord));
    isWord ? AddWord(zLetter) : AddLetters(zLetter);
  }

  /// Splits WiFi and YouTube at their humps, but not McDonald.
  void ReadHumps(std::string_view zWord) {
    std::size_t start = 0;
    for (std::size_t i = 1; i < zWord.size(); ++i) {
      const std::string_view hump = zWord.substr(start, i - start);
      const bool isHump = IsCapital(zWord[i]) && !IsCapital(zWord[i - 1]);
      if (isHump && hump != "Mc" && hump != "Mac") {
        ReadHump(hump);
        start = i;
      }
    }
    ReadHump(zWord.substr(start));
  }

  void ReadHump(std::string_view zWord) {
    const bool isLetter = zWord.size() == 1 && LowerCase(zWord[0]) != 'a';
    isLetter || IsSpelledOut(zWord) ? AddLetters(zWord) : AddWord(zWord);
  }

  // Symbols

  void ReadSymbol() {
    if (const SymbolPair* const pair = FindSymbolPair(Rest())) {
      AddWords(pair->words);
      at_ += pair->symbols.size();
      return;
    }
    const char symbol = At();
    const std::size_t start = at_;
    SkipWhile([symbol](char zCharacter) { return zCharacter == symbol; });
    const auto isOneOf = [symbol](std::string_view zSymbols) {
      return zSymbols.find(symbol) != std::string_view::npos;
    };
    isInQuotation_ = isInQuotation_ != (symbol == '"' && (at_ - start) % 2 == 1);
    if (symbol == '.') {
      ReadPeriods(start);
    } else if (symbol == '-') {
      ReadHyphens(start);
    } else if (isOneOf("!?")) {
      AddPause(Kind::Sentence);
    } else if (isOneOf(",;:()[]{}")) {
      AddPause(Kind::Clause);
    } else if (!isOneOf(" \"'`_")) {
      ReadNamedSymbol(start);
    }
  }

  void ReadPeriods(std::size_t zStart) {
    const bool isOne = at_ - zStart == 1;
    const std::string_view name = isOne ? PeriodName(text_, zStart) : "";
    if (!name.empty()) {
      AddWord(name);
    } else if (!isOne || !IsInitial()) {
      AddPause(Kind::Sentence);
    }
  }

  /// Whether the period that has been read belongs to the initial of a name: J. Smith.
  bool IsInitial() const {
    constexpr std::size_t Size = 2;
    const char letter = at_ >= Size ? text_[at_ - Size] : ' ';
    const char before = at_ > Size ? text_[at_ - Size - 1] : ' ';
    return IsCapital(letter) && letter != 'I' && (before == ' ' || before == '(') &&
           (IsBeforeName() || IsBeforeSmallLetter());
  }

  /// A hyphen is "minus" before a number, a pause as a dash, and silent within a word.
  void ReadHyphens(std::size_t zStart) {
    const bool isOne = at_ - zStart == 1;
    const char before = zStart > 0 ? text_[zStart - 1] : ' ';
    if (isOne && IsMinus(text_, zStart)) {
      AddWord("minus");
    } else if (!isOne || before == ' ' || before == '(') {
      AddPause(Kind::Clause);
    }
  }

  /// A row of the same symbol is a ruled line and gives a pause.
  void ReadNamedSymbol(std::size_t zStart) {
    constexpr std::size_t ShortestRule = 3;
    const std::size_t count = at_ - zStart;
    if (count >= ShortestRule) {
      AddPause(Kind::Sentence);
      return;
    }
    const std::string_view name = SymbolName(text_, zStart, at_);
    for (std::size_t i = 0; i < count; ++i) {
      AddWords(name);
    }
  }

  std::string text_;
  const SayDataWords& words_;
  std::size_t at_ = 0;
  bool isInQuotation_ = false;  ///< whether a quotation mark has opened and none has closed
  SpokenText spoken_;
};

}  // namespace

SpokenText NormalizeEnglish(std::string_view zText, const SayDataWords& zWords) {
  return Normalizer(ToPlainText(zText), zWords).Normalize();
}

}  // namespace loquitor
