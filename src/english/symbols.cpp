#include "english/symbols.h"

#include <algorithm>
#include <iterator>

#include "core/say_data_runs.h"
#include "english/number_reading.h"
#include "english/plain_text.h"
#include "text/letters.h"

namespace loquitor {

namespace {

struct NamedSymbol {
  char symbol;
  std::string_view name;
};
constexpr NamedSymbol NamedSymbols[] = {
    {'#', "number"},        {'$', "dollar"},      {'%', "percent"},
    {'&', "and"},           {'*', "star"},        {'+', "plus"},
    {'/', "slash"},         {'<', "less than"},   {'=', "equals"},
    {'>', "greater than"},  {'@', "at"},          {'^', "caret"},
    {'|', "bar"},           {'~', "tilde"},       {EuroSign, "euro"},
    {CentSign, "cent"},     {PoundSign, "pound"}, {YenSign, "yen"},
    {DegreeSign, "degree"}, {MicroSign, "micro"}};

constexpr SymbolPair SymbolPairs[] = {
    {"==", "equals"}, {"!=", "is not"}, {"<=", "at most"}, {">=", "at least"}, {"->", "arrow"},
    {"=>", "arrow"},  {"&&", "and"},    {"||", "or"},      {"^2", "squared"},  {"^3", "cubed"}};

bool IsOneOf(char zCharacter, std::string_view zCharacters) {
  return zCharacters.find(zCharacter) != std::string_view::npos;
}

/// The characters around a symbol. Spaces stand for what is beyond the ends of the text.
class Neighbours {
 public:
  Neighbours(std::string_view zText, std::size_t zStart, std::size_t zEnd)
      : text_(zText), start_(zStart), end_(zEnd) {}

  char Before(std::size_t zSteps = 1) const {
    return zSteps <= start_ ? text_[start_ - zSteps] : ' ';
  }
  char After(std::size_t zSteps = 0) const {
    return end_ + zSteps < text_.size() ? text_[end_ + zSteps] : ' ';
  }
  char BeforeBlank() const { return Before(Before() == ' ' ? 2 : 1); }
  char AfterBlank() const { return After(After() == ' ' ? 1 : 0); }
  std::string_view Rest() const { return text_.substr(end_); }
  bool IsAtStart() const { return start_ == 0; }

 private:
  std::string_view text_;
  std::size_t start_;
  std::size_t end_;
};

/// Whether digits are at both sides, both after a space or both without one.
bool IsBetweenDigits(const Neighbours& zAround) {
  return (zAround.Before() == ' ') == (zAround.After() == ' ') && IsDigit(zAround.BeforeBlank()) &&
         IsDigit(zAround.AfterBlank());
}

/// *word*, **word**: the stars are at one side of a word.
bool IsEmphasis(const Neighbours& zAround) {
  const bool opens = IsOneOf(zAround.Before(), " (\"'") && IsLetter(zAround.After());
  const bool isAfterWord = IsLetter(zAround.Before()) || IsOneOf(zAround.Before(), ".!?");
  return opens || (isAfterWord && !IsNameCharacter(zAround.After()));
}

std::string_view StarName(const Neighbours& zAround) {
  if (IsDigit(zAround.AfterBlank()) && (IsDigit(zAround.Before()) || zAround.Before() == ' ')) {
    return "times";
  }
  return IsEmphasis(zAround) ? "" : "star";
}

/// The # of a heading is silent, that of F# is "sharp".
std::string_view NumberSignName(const Neighbours& zAround) {
  const bool isNote = zAround.Before() >= 'A' && zAround.Before() <= 'G' &&
                      !IsNameCharacter(zAround.Before(2)) && !IsNameCharacter(zAround.After());
  const bool isHeading =
      zAround.IsAtStart() && zAround.After() == ' ' && IsCapital(zAround.After(1));
  return isNote ? "sharp" : isHeading ? "" : "number";
}

/// Whether an equals sign ends the sum that `zRest` begins with.
bool IsSum(std::string_view zRest) {
  constexpr std::size_t Longest = 40;
  const std::size_t end = zRest.substr(0, Longest).find_first_not_of("0123456789 .+-*/x");
  return end != std::string_view::npos && zRest[end] == '=';
}

}  // namespace

const SymbolPair* FindSymbolPair(std::string_view zText) {
  const auto* const found =
      std::find_if(std::begin(SymbolPairs), std::end(SymbolPairs),
                   [zText](const SymbolPair& p) { return zText.starts_with(p.symbols); });
  if (found == std::end(SymbolPairs)) {
    return nullptr;
  }
  const char after = zText.size() > 2 ? zText[2] : ' ';
  const bool isLonger =
      IsDigit(zText[1]) ? IsNameCharacter(after) || after == '.' : after == zText[1];
  return isLonger ? nullptr : found;
}

std::string_view SymbolName(std::string_view zText, std::size_t zStart, std::size_t zEnd) {
  const Neighbours around(zText, zStart, zEnd);
  switch (zText[zStart]) {
    case '*':
      return StarName(around);
    case '#':
      return NumberSignName(around);
    case '/':
      if (IsBetweenDigits(around) && (around.After() == ' ' || IsSum(around.Rest()))) {
        return "divided by";
      }
      break;
    case '^':
      if (IsNameCharacter(around.Before()) &&
          (IsNameCharacter(around.After()) || around.After() == '-')) {
        return "to the power of";
      }
      break;
    case '~':
      if (IsDigit(around.After())) {
        return "about";
      }
      break;
    default:
      break;
  }
  const auto* const found =
      std::find_if(std::begin(NamedSymbols), std::end(NamedSymbols),
                   [&](const NamedSymbol& zNamed) { return zNamed.symbol == zText[zStart]; });
  return found == std::end(NamedSymbols) ? std::string_view() : found->name;
}

bool IsMinus(std::string_view zText, std::size_t zAt) {
  const Neighbours around(zText, zAt, zAt + 1);
  const bool isExponent =
      (around.Before() == 'e' || around.Before() == 'E') && IsDigit(around.Before(2));
  const bool isSign = IsOneOf(around.Before(), " ([{\"=<>^*/+~") || isExponent;
  const bool isOperator = around.Before() == ' ' && IsNameCharacter(around.BeforeBlank()) &&
                          around.After() == ' ' && IsDigit(around.AfterBlank()) &&
                          IsSum(around.Rest());
  return (isSign && StartsWithNumber(around.Rest())) || isOperator;
}

std::string_view PeriodName(std::string_view zText, std::size_t zAt) {
  const Neighbours around(zText, zAt, zAt + 1);
  const char before = around.Before();
  const char after = around.After();
  const bool isWithin = IsNameCharacter(before) && IsNameCharacter(after);
  const bool isFirst = IsOneOf(before, " /(\"'") && (IsLetter(after) || after == '/');
  if (!isWithin && !isFirst) {
    return "";
  }
  return IsDigit(before) && IsDigit(after) ? "point" : "dot";
}

bool IsInPartName(std::string_view zText, std::size_t zAt) {
  const Neighbours around(zText, zAt, zAt);
  const bool isAfterLetter =
      IsLetter(around.Before()) && (zAt == 0 || NameOfX(zText, zAt - 1).empty());
  const bool isJoined = around.Before() == '-' || around.Before() == '.';
  return isAfterLetter || (isJoined && IsCapital(around.Before(2)));
}

std::string_view NameOfX(std::string_view zText, std::size_t zAt) {
  const Neighbours around(zText, zAt, zAt + 1);
  const bool isHexadecimal = around.Before() == '0' && !IsDigit(around.Before(2));
  const bool isAfterInches = around.Before() == ' ' && around.Before(2) == '"' &&
                             around.After() == ' ' && IsDigit(around.After(1));
  const bool isX =
      LowerCase(zText[zAt]) == 'x' && !isHexadecimal && (IsBetweenDigits(around) || isAfterInches);
  return !isX ? "" : IsSum(around.Rest()) ? "times" : "by";
}

}  // namespace loquitor
