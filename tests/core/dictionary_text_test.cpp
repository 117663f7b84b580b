#include "core/dictionary_text.h"

#include <gtest/gtest.h>

#include <string>

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

TEST(DictionaryText, AByteOrderMarkSurvivesNoSort) {
  const std::string mark = "\xEF\xBB\xBF";
  const std::string file = mark + "[Words]\r\nCat=1\r\n";
  Expect(BoxTextFromFile,
         {{file, "[Words]\nCat=1\n"}, {mark + mark, ""}, {"\xEF\xBB", "\xEF\xBB"}});
  // Also where an earlier sort has left it.
  const std::string damaged = "Ant=\r\ncat=1\r\n" + mark + "[words]\r\n" + mark + "dog=" + mark;
  Expect(SortedText,
         {{file, "[words]\ncat=1\n"}, {damaged, "[words]\nant=\ncat=1\ndog=" + mark + "\n"}});
  Expect(CleanedText, {{mark + "Cat=1\r\n", "[words]\ncat=1\n"}});
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

TEST(DictionaryText, AStretchOfTheLinesCanBeSorted) {
  const std::vector<std::string_view> given = {"d", "\xFF", "b=", "\x7F", "ab", "a", "c"};
  for (const auto& [first, last, sorted] :
       Rows<std::size_t, std::size_t, std::vector<std::string_view>>{
           {0, 6, {"a", "ab", "b=", "c", "d", "\x7F", "\xFF"}},
           {1, 5, {"d", "a", "ab", "b=", "\x7F", "\xFF", "c"}},
           {3, 3, given},
           {4, 3, given}}) {
    std::vector<std::string_view> lines = given;
    SortDictionaryLines(lines, first, last);
    EXPECT_EQ(lines, sorted) << first << " to " << last;
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

}  // namespace
}  // namespace loquitor::testing
