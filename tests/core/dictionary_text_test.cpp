// The dictionary as a whole text: its way into the box and back, sorting, cleaning, searching, and
// the words of an imported list.

#include "core/dictionary_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>

#include "core/word_import.h"
#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

using namespace std::string_literals;

/// `zConvert` makes of each row's first text its second.
template <class Conversion>
void Expect(const Conversion& zConvert, const Rows<std::string, std::string>& zRows) {
  for (const auto& [given, expected] : zRows) {
    EXPECT_EQ(zConvert(given), expected) << ::testing::PrintToString(given);
  }
}

TEST(DictionaryText, EveryKindOfLineEndBecomesOneLineBreakAndIsSavedAsCrLf) {
  Expect(BoxTextFromFile, {{"", ""},
                           {"a\rb\nc\r\nd", "a\nb\nc\nd"},
                           {"\r\r\n\n\r\r\n", "\n\n\n\n\n"},
                           {"a\v\f\t\x1C\x85\xA0 \0=\xFF"s, "a\v\f\t\x1C\x85\xA0 \0=\xFF"s}});
  Expect(FileBytesFromBox, {{"", "\r\n"},  // always one more
                            {"a=1\n", "a=1\r\n\r\n"},
                            {"[words]\nb=\xA0\n\nc\0d"s, "[words]\r\nb=\xA0\r\n\r\nc\0d\r\n"s}});
  using Lines = std::vector<std::string_view>;
  EXPECT_EQ(ReadLines(""), Lines());
  EXPECT_EQ(ReadLines("a\rb\nc\r\n\r\nd"), Lines({"a", "b", "c", "", "d"}));
  EXPECT_EQ(ReadLines("a\n\rb\r\n"), Lines({"a", "", "b"}));
}

TEST(DictionaryText, TheExtentCountsLinesAndFindsTheLongest) {
  const Rows<std::string, std::size_t, std::size_t, std::size_t> rows{
      {"", 1, 0, 1},         {"ab", 1, 2, 1},        {"\n", 2, 0, 1},
      {"a\nbcd\n", 3, 3, 2}, {"ab\ncd\ne", 3, 2, 1}, {"\n\n\xFF\0c"s, 3, 3, 3}};
  for (const auto& [text, lines, longestLine, longestAt] : rows) {
    const TextExtent extent = ExtentOf(text);
    EXPECT_EQ(extent.lines, lines) << text;
    EXPECT_EQ(extent.longestLine, longestLine) << text;
    EXPECT_EQ(extent.longestAt, longestAt) << text;
  }
}

TEST(DictionaryText, KeysBecomeLowerCaseAndValuesStay) {
  const auto lowerCased = [](std::string zBytes) {
    LowerCaseKeys(zBytes);
    return zBytes;
  };
  Expect(lowerCased, {{"Cat=\\KE \\AX=Q", "cat=\\KE \\AX=Q"},
                      {"NO EQUALS SIGN\r\nX=Y\nZ", "no equals sign\r\nx=Y\nz"},
                      {"=A\rB", "=A\rb"},
                      {"\xC9T\xC9 \x8A\x9F\xD7=\xC9", "\xE9t\xE9 \x9A\xFF\xD7=\xC9"}});
}

TEST(DictionaryText, SortingPutsTheLinesInOrderOfTheirBytesAndCleaningKeepsEntriesWithCodes) {
  const std::string file = "[Words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=\r\n";
  Expect(SortedText, {{"\r\n  \r\n", ""},
                      {file, "[words]\nant=\\AY\nbee=\ncat=\\KE \\AX \\TT\n"},
                      {"b=1\r\n2nd=\\TU\r\n[Words]\r\n", "2nd=\\TU\n[words]\nb=1\n"},
                      {"\xE9=1\r\n~=1\r\nz=1\r\n\x80=1\r\n", "z=1\n~=1\n\x80=1\n\xE9=1\n"},
                      {"\t\r\n\xA0\r\n  x\r\n", "\t\n  x\n\xA0\n"}});
  Expect(CleanedText, {{file, "[words]\ncat=\\KE \\AX \\TT\nant=\\AY\n"},
                       {"Z= x \r\nstray\r\n\r\na=   \r\nb==\r\n =1", "[words]\nz= x \nb==\n =1\n"},
                       {"tab=\t\nhard=\xA0\n", "[words]\ntab=\t\nhard=\xA0\n"}});
}

TEST(DictionaryText, SortingAStretchAgreesWithAPlainByteComparisonOnRandomLines) {
  std::mt19937 random(6);
  for (int round = 0; round < 300; ++round) {
    std::vector<std::string> texts(1 + random() % 60);
    for (std::string& text : texts) {
      text = random() % 2 == 0 ? "a common head" : "";
      for (auto length = random() % 12; length > 0; --length) {
        text += "\0\1aab\x7F\x80\xFF="[random() % 9];
      }
    }
    const std::vector<std::string> given = texts;
    std::vector<std::string_view> lines(given.begin(), given.end());
    const std::size_t first = random() % texts.size();
    const std::size_t last = first + random() % (texts.size() - first);
    SortDictionaryLines(lines, last + 1, last);  // an empty stretch
    SortDictionaryLines(lines, first, last);
    std::sort(texts.begin() + static_cast<int>(first), texts.begin() + static_cast<int>(last) + 1);
    EXPECT_TRUE(std::equal(lines.begin(), lines.end(), texts.begin(), texts.end())) << round;
  }
}

TEST(DictionaryText, SearchFindsTheNextPlaceAndWrapsAround) {
  constexpr auto Nowhere = std::string_view::npos;
  for (const auto& [text, sought, from, expected] :
       Rows<std::string, std::string, std::size_t, std::size_t>{{"one two one", "oNE", 0, 0},
                                                                {"one two one", "one", 1, 8},
                                                                {"one two one", "ONE", 9, 0},
                                                                {"one two one", "one", 99, 0},
                                                                {"one", "ones", 0, Nowhere},
                                                                {"one", "", 0, Nowhere},
                                                                {"", "x", 0, Nowhere},
                                                                {"caf\xC9 caf\xE9", "\xE9", 4, 8},
                                                                {"abab", "aba", 1, 0},
                                                                {"x\0y"s, "\0Y"s, 0, 1}}) {
    EXPECT_EQ(FindText(text, sought, from), expected) << text << '|' << sought << '|' << from;
  }
}

TEST(DictionaryText, RandomBytesSurviveTheWayToTheBoxAndBack) {
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    std::string file(1 + random() % 3000, '\0');
    std::generate(file.begin(), file.end(), [&] { return static_cast<char>(random()); });
    const std::string saved = FileBytesFromBox(BoxTextFromFile(file));
    EXPECT_EQ(BoxTextFromFile(saved), BoxTextFromFile(file) + "\n") << round;
    std::string expected;
    for (const std::string_view line : ReadLines(file)) {
      expected.append(line).append("\r\n");
    }
    const bool endsALine = file.back() == '\n' || file.back() == '\r';
    EXPECT_EQ(saved, endsALine ? expected + "\r\n" : expected) << round;
  }
}

struct Imported {
  std::string text;
  std::size_t count;
  std::vector<std::string> lookups;
};

Imported Import(std::string_view zList, std::size_t zPiece = std::string_view::npos,
                const std::set<std::string, std::less<>>& zKnown = {}) {
  std::vector<std::string> lookups;
  WordImport import([&](std::string_view zWord) {
    lookups.emplace_back(zWord);
    return zKnown.count(zWord) == 0;
  });
  for (std::size_t at = 0; at < zList.size(); at += std::min(zPiece, zList.size() - at)) {
    import.Feed(zList.substr(at, zPiece));
  }
  import.Finish();
  return {import.AddedText(), import.Count(), lookups};
}

TEST(WordImport, RunsOfLettersAreWordsAndAllElseStandsBetween) {
  for (const auto& [list, added, count] : Rows<std::string, std::string, std::size_t>{
           {" \r\n\t123'=\\", "", 0},
           {"don't", "don=\nt=\n", 2},
           {"a1b2c", "a=\nb=\nc=\n", 3},
           {"one two\r\nTHREE\nfour\rfive", "one=\ntwo=\nthree=\nfour=\nfive=\n", 5},
           {"na\xC3\xAFve", "na=\nve=\n", 2},
           {"\xEF\xBB\xBFgo", "go=\n", 1},
           {"x\0y\x7Fz"s, "x=\ny=\nz=\n", 3},
           {"@[`{AZaz@", "azaz=\n", 1}}) {
    for (const std::size_t piece : {1U, 2U, 3U, 1000U}) {
      const Imported imported = Import(list, piece);
      EXPECT_EQ(imported.text, added) << list << " in pieces of " << piece;
      EXPECT_EQ(imported.count, count) << list;
    }
  }
}

TEST(WordImport, OnlyWordsThatTheDictionaryLacksAreAdded) {
  const Imported imported = Import("The cat THE hat", 5, {"the", "hat"});
  EXPECT_EQ(imported.text, "cat=\n");
  EXPECT_EQ(imported.count, 1U);
  EXPECT_EQ(imported.lookups, (std::vector<std::string>{"the", "cat", "the", "hat"}));
}

TEST(WordImport, ALineOfAMegabyteIsOneLineLikeAnyOther) {
  const std::string longWord(1 << 20, 'Q');
  EXPECT_EQ(Import(longWord + "\r\nx", 4096).text, std::string(1 << 20, 'q') + "=\nx=\n");
}

}  // namespace
}  // namespace loquitor::testing
