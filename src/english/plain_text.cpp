#include "english/plain_text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <utility>

#include "text/letters.h"
#include "text/windows_1252.h"

namespace loquitor {

namespace {

struct Replacement {
  char32_t character;
  std::string_view text;
};

/// In the order of the code points. The table below has the letters of Latin-1 and Latin
/// Extended-A.
constexpr Replacement Replacements[] = {{0xA1, ""},
                                        {0xA2, "\xA2"},
                                        {0xA3, "\xA3"},
                                        {0xA5, "\xA5"},
                                        {0xA7, " section "},
                                        {0xA9, " copyright "},
                                        {0xAB, "\""},
                                        {0xAD, ""},
                                        {0xAE, " registered "},
                                        {0xB0, "\xB0"},
                                        {0xB1, " plus or minus "},
                                        {0xB2, " squared "},
                                        {0xB3, " cubed "},
                                        {0xB4, "'"},
                                        {0xB5, "\xB5"},
                                        {0xB7, " "},
                                        {0xBB, "\""},
                                        {0xBC, " 1/4 "},
                                        {0xBD, " 1/2 "},
                                        {0xBE, " 3/4 "},
                                        {0xBF, ""},
                                        {0xD7, " times "},
                                        {0xF7, " divided by "},
                                        {0x02BC, "'"},
                                        {0x03A9, "Ohm"},
                                        {0x03BC, "\xB5"},
                                        {0x03C0, " pi "},
                                        {0x200B, ""},
                                        {0x200C, ""},
                                        {0x200D, ""},
                                        {0x2010, "-"},
                                        {0x2011, "-"},
                                        {0x2012, "-"},
                                        {0x2013, "-"},
                                        {0x2014, " - "},
                                        {0x2015, " - "},
                                        {0x2018, "'"},
                                        {0x2019, "'"},
                                        {0x201A, "'"},
                                        {0x201B, "'"},
                                        {0x201C, "\""},
                                        {0x201D, "\""},
                                        {0x201E, "\""},
                                        {0x201F, "\""},
                                        {0x2022, " - "},
                                        {0x2023, " - "},
                                        {0x2026, "... "},
                                        {0x2032, "'"},
                                        {0x2033, "\""},
                                        {0x2039, "'"},
                                        {0x203A, "'"},
                                        {0x2044, "/"},
                                        {0x2080, "0"},
                                        {0x2081, "1"},
                                        {0x2082, "2"},
                                        {0x2083, "3"},
                                        {0x2084, "4"},
                                        {0x2085, "5"},
                                        {0x2086, "6"},
                                        {0x2087, "7"},
                                        {0x2088, "8"},
                                        {0x2089, "9"},
                                        {0x20AC, "\x80"},
                                        {0x2103,
                                         "\xB0"
                                         "C"},
                                        {0x2109,
                                         "\xB0"
                                         "F"},
                                        {0x2116, " number "},
                                        {0x2122, " trademark "},
                                        {0x2126, "Ohm"},
                                        {0x2153, " 1/3 "},
                                        {0x2154, " 2/3 "},
                                        {0x215B, " 1/8 "},
                                        {0x215C, " 3/8 "},
                                        {0x215D, " 5/8 "},
                                        {0x215E, " 7/8 "},
                                        {0x2192, " arrow "},
                                        {0x2212, "-"},
                                        {0x221A, " square root of "},
                                        {0x221E, " infinity "},
                                        {0x2248, " about "},
                                        {0x2260, " is not "},
                                        {0x2264, " at most "},
                                        {0x2265, " at least "},
                                        {0x25E6, " - "},
                                        {0xFB00, "ff"},
                                        {0xFB01, "fi"},
                                        {0xFB02, "fl"},
                                        {0xFB03, "ffi"},
                                        {0xFB04, "ffl"},
                                        {0xFE0F, ""},
                                        {0xFEFF, ""}};

/// The plain letters of U+00C0 to U+017F, each followed by a space. The hyphens are the places of
/// the multiplication and division signs.
constexpr std::string_view LatinLetters =
    "A A A A A A AE C E E E E I I I I D N O O O O O - O U U U U Y Th ss "
    "a a a a a a ae c e e e e i i i i d n o o o o o - o u u u u y th y "
    "A a A a A a C c C c C c C c D d D d E e E e E e E e E e G g G g G g G g H h H h "
    "I i I i I i I i I i IJ ij J j K k k L l L l L l L l L l N n N n N n n N n "
    "O o O o O o OE oe R r R r R r S s S s S s S s T t T t T t U u U u U u U u U u U u "
    "W w Y y Y Z z Z z Z z s ";
constexpr char32_t FirstLatinLetter = 0xC0;

bool IsBetween(char32_t zCharacter, char32_t zFirst, char32_t zLast) {
  return zCharacter >= zFirst && zCharacter <= zLast;
}

/// A character of a text and the number of its bytes.
struct Decoded {
  char32_t character;
  std::size_t size;
};

/// The first character of `zText`, which is not empty. Source: RFC 3629, section 3.
Decoded DecodeFirst(std::string_view zText) {
  const auto byte = [zText](std::size_t i) { return static_cast<std::uint8_t>(zText[i]); };
  const std::uint8_t first = byte(0);
  const std::size_t size = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  constexpr char32_t Smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  char32_t character = size == 1 ? first : first & (0xFFU >> (size + 1));
  bool isWhole = first < 0x80 || (IsBetween(first, 0xC2, 0xF4) && size <= zText.size());
  for (std::size_t i = 1; isWhole && i < size; ++i) {
    isWhole = (byte(i) & 0xC0) == 0x80;
    character = (character << 6) | (byte(i) & 0x3FU);
  }
  isWhole = isWhole && character >= Smallest[size] && character <= 0x10FFFF &&
            !IsBetween(character, 0xD800, 0xDFFF);
  return isWhole ? Decoded{character, size} : Decoded{CharacterOf(zText[0]), 1};
}

void AppendUtf8(std::string& zText, char32_t zCharacter) {
  const auto add = [&zText](char32_t zByte) { zText += static_cast<char>(zByte); };
  if (zCharacter < 0x80) {
    add(zCharacter);
  } else if (zCharacter < 0x800) {
    add(0xC0 | (zCharacter >> 6));
  } else if (zCharacter < 0x10000) {
    add(0xE0 | (zCharacter >> 12));
    add(0x80 | ((zCharacter >> 6) & 0x3F));
  } else {
    add(0xF0 | (zCharacter >> 18));
    add(0x80 | ((zCharacter >> 12) & 0x3F));
    add(0x80 | ((zCharacter >> 6) & 0x3F));
  }
  if (zCharacter >= 0x80) {
    add(0x80 | (zCharacter & 0x3F));
  }
}

/// The letters of LatinLetters. The index is the code point minus FirstLatinLetter.
std::vector<std::string_view> LatinLetterTable() {
  std::vector<std::string_view> table;
  for (std::string_view rest = LatinLetters; !rest.empty();) {
    const std::size_t end = rest.find(' ');
    table.push_back(rest.substr(0, end));
    rest.remove_prefix(end + 1);
  }
  return table;
}

bool IsCombiningAccent(char32_t zCharacter) {
  return IsBetween(zCharacter, 0x300, 0x36F);
}

/// The text to read for `zCharacter`, which is U+0080 or above. Null when it has no reading.
const std::string_view* ReplacementOf(char32_t zCharacter) {
  static const std::vector<std::string_view> latin = LatinLetterTable();
  static constexpr std::string_view Nothing;
  static constexpr std::string_view Blank = " ";
  const auto* const found =
      std::lower_bound(std::begin(Replacements), std::end(Replacements), zCharacter,
                       [](const Replacement& r, char32_t c) { return r.character < c; });
  if (found != std::end(Replacements) && found->character == zCharacter) {
    return &found->text;
  }
  if (IsBetween(zCharacter, FirstLatinLetter,
                static_cast<char32_t>(FirstLatinLetter + latin.size() - 1))) {
    return &latin[zCharacter - FirstLatinLetter];
  }
  if (IsCombiningAccent(zCharacter)) {
    return &Nothing;
  }
  const bool isBlank = zCharacter == 0xA0 || IsBetween(zCharacter, 0x2000, 0x200A) ||
                       zCharacter == 0x2028 || zCharacter == 0x2029 || zCharacter == 0x202F ||
                       zCharacter == 0x3000;
  return isBlank ? &Blank : nullptr;
}

bool IsSmall(char zCharacter) {
  return IsLetter(zCharacter) && !IsCapital(zCharacter);
}

class PlainTextMaker {
 public:
  PlainText Make(std::string_view zText) {
    while (!zText.empty()) {
      const Decoded decoded = DecodeFirst(zText);
      zText.remove_prefix(decoded.size);
      const bool isBullet = isLineStart_ && decoded.character == '*' && zText.starts_with(' ');
      isWordCut_ = isWordCut_ || (decoded.character == '\n' && EndsInHyphenatedWord());
      isLineStart_ = decoded.character == '\n' || (isLineStart_ && decoded.character == ' ');
      Take(isBullet ? U'-' : decoded.character);
    }
    return std::move(plain_);
  }

 private:
  void Take(char32_t zCharacter) {
    if (IsBetween(zCharacter, 0xFF01, 0xFF5E)) {  // full-width forms of ASCII
      zCharacter -= 0xFF01 - '!';
    }
    const bool isBlank = zCharacter == ' ' || IsBetween(zCharacter, '\t', '\r');
    if (isBlank) {
      TakeBlank();
    } else if (IsBetween(zCharacter, '!', '~')) {
      Append(static_cast<char>(zCharacter));
    } else if (const std::string_view* text =
                   zCharacter < 0x80 ? nullptr : ReplacementOf(zCharacter)) {
      for (const char character : *text) {
        character == ' ' ? TakeBlank() : Append(character);
      }
    } else {
      Miss(zCharacter);
      return;
    }
    isMissing_ = false;
  }

  void TakeBlank() {
    if (!plain_.text.empty() && plain_.text.back() != ' ') {
      plain_.text += ' ';
    }
  }

  /// Whether the text ends in a small letter, a hyphen and perhaps a space.
  bool EndsInHyphenatedWord() const {
    std::string_view text = plain_.text;
    text.remove_suffix(text.ends_with(' ') ? 1 : 0);
    return text.size() > 1 && text.ends_with('-') && IsSmall(text[text.size() - 2]);
  }

  void Append(char zCharacter) {
    if (isWordCut_ && IsSmall(zCharacter)) {
      plain_.text.resize(plain_.text.rfind('-'));
    }
    isWordCut_ = false;
    plain_.text += zCharacter;
  }

  void Miss(char32_t zCharacter) {
    TakeBlank();
    if (!isMissing_) {
      plain_.unread.emplace_back();
    }
    isMissing_ = true;
    if (zCharacter < 0x20 || IsBetween(zCharacter, 0x7F, 0x9F)) {
      char name[8];
      std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(zCharacter));
      plain_.unread.back() += name;
    } else {
      AppendUtf8(plain_.unread.back(), zCharacter);
    }
  }

  PlainText plain_;
  bool isWordCut_ = false;   ///< whether a hyphen ended the line before
  bool isLineStart_ = true;  ///< whether the line has had nothing but spaces
  bool isMissing_ = false;   ///< whether the character before had no reading
};

}  // namespace

std::string WithPlainPunctuation(std::string_view zText) {
  std::string text;
  while (!zText.empty()) {
    const Decoded decoded = DecodeFirst(zText);
    const std::string_view* const plain =
        decoded.character < 0x80 || IsCombiningAccent(decoded.character)
            ? nullptr
            : ReplacementOf(decoded.character);
    if (plain != nullptr && plain->find_first_not_of(" \"'-./") == std::string_view::npos) {
      text += *plain;
    } else {
      AppendUtf8(text, decoded.character);
    }
    zText.remove_prefix(decoded.size);
  }
  return text;
}

PlainText ToPlainText(std::string_view zText) {
  return PlainTextMaker().Make(zText);
}

}  // namespace loquitor
