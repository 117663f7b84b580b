#include "core/dictionary_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace loquitor {
namespace {

using namespace std::string_literals;

struct Conversion {
  std::string given;
  std::string expected;
};

TEST(DictionaryText, EveryKindOfLineEndBecomesOneLineBreak) {
  const Conversion table[] = {
      {"", ""},
      {"a=1", "a=1"},
      {"a=1\r\n", "a=1\n"},
      {"a\rb\nc\r\nd", "a\nb\nc\nd"},
      {"\r\r\n\n\r", "\n\n\n\n"},
      {"\r\n\r\n", "\n\n"},
      {"a\v\f\t\x1C\x85\xA0 \0=\xFF"s, "a\v\f\t\x1C\x85\xA0 \0=\xFF"s},
  };
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(BoxTextFromFile(given), expected) << given;
  }
}

TEST(DictionaryText, TheExtentCountsLinesAndFindsTheLongest) {
  const struct {
    std::string text;
    TextExtent expected;
  } table[] = {
      {"", {1, 0, 1}},         {"ab", {1, 2, 1}},        {"\n", {2, 0, 1}},
      {"a\nbcd\n", {3, 3, 2}}, {"ab\ncd\ne", {3, 2, 1}}, {"\n\n\xFF\0c"s, {3, 3, 3}},
  };
  for (const auto& [text, expected] : table) {
    const TextExtent extent = ExtentOf(text);
    EXPECT_EQ(extent.lines, expected.lines) << text;
    EXPECT_EQ(extent.longestLine, expected.longestLine) << text;
    EXPECT_EQ(extent.longestAt, expected.longestAt) << text;
  }
}

TEST(DictionaryText, SavingEndsLinesWithCrLfAndAddsOneMore) {
  const Conversion table[] = {
      {"", "\r\n"},
      {"a=1", "a=1\r\n"},
      {"a=1\n", "a=1\r\n\r\n"},
      {"[words]\nb=\xA0\n\nc\0d"s, "[words]\r\nb=\xA0\r\n\r\nc\0d\r\n"s},
  };
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(FileBytesFromBox(given), expected) << given;
  }
}

TEST(DictionaryText, LinesAreReadAtEveryKindOfLineEnd) {
  using Lines = std::vector<std::string_view>;
  EXPECT_EQ(ReadLines(""), Lines());
  EXPECT_EQ(ReadLines("\r\n"), Lines({""}));
  EXPECT_EQ(ReadLines("a\rb\nc\r\n\r\nd"), Lines({"a", "b", "c", "", "d"}));
  EXPECT_EQ(ReadLines("a\n\rb\r\n"), Lines({"a", "", "b"}));
}

TEST(DictionaryText, KeysBecomeLowerCaseAndValuesStay) {
  const Conversion table[] = {
      {"Cat=\\KE \\AX=Q", "cat=\\KE \\AX=Q"},
      {"NO EQUALS SIGN\r\nX=Y\nZ", "no equals sign\r\nx=Y\nz"},
      {"=A\rB", "=A\rb"},
      {"\xC9T\xC9 \x8A\x9F\xD7=\xC9", "\xE9t\xE9 \x9A\xFF\xD7=\xC9"},
  };
  for (const auto& [given, expected] : table) {
    std::string bytes = given;
    LowerCaseKeys(bytes);
    EXPECT_EQ(bytes, expected);
  }
}

TEST(DictionaryText, SortedTextHoldsTheLinesInOrderOfTheirBytes) {
  const Conversion table[] = {
      {"", ""},
      {"\r\n  \r\n", ""},
      {"[words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=\r\n",
       "[words]\nant=\\AY\nbee=\ncat=\\KE \\AX \\TT\n"},
      {"abcd=1\rab=2\rABC=3\r", "ab=2\nabc=3\nabcd=1\n"},
      {"b=1\r\n2nd=\\TU\r\n[Words]\r\n", "2nd=\\TU\n[words]\nb=1\n"},
      {"\xE9=1\r\n~=1\r\nz=1\r\n\x80=1\r\n", "z=1\n~=1\n\x80=1\n\xE9=1\n"},
      {"a=2\r\na=10\r\na\r\na=\r\na=2\r\n", "a\na=\na=10\na=2\na=2\n"},
      {"\t\r\n\xA0\r\n  x\r\n", "\t\n  x\n\xA0\n"},
      {"same-head-b\r\nsame-head-a\r\nsame-hea\r\nsame-hea\0\r\n"s,
       "same-hea\nsame-hea\0\nsame-head-a\nsame-head-b\n"s},
  };
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(SortedText(given), expected) << given;
  }
}

TEST(DictionaryText, OnlyTheGivenStretchIsSorted) {
  std::vector<std::string_view> lines = {"e", "d", "c", "b", "a"};
  SortDictionaryLines(lines, 1, 3);
  EXPECT_EQ(lines, (std::vector<std::string_view>{"e", "b", "c", "d", "a"}));
  SortDictionaryLines(lines, 4, 3);
  SortDictionaryLines(lines, 4, 4);
  EXPECT_EQ(lines.back(), "a");
}

TEST(DictionaryText, SortingAgreesWithAPlainByteComparisonOnRandomLines) {
  std::mt19937 random(6);
  for (int round = 0; round < 200; ++round) {
    std::vector<std::string> texts(random() % 60);
    for (std::string& text : texts) {
      text.resize(random() % 12);
      std::generate(text.begin(), text.end(), [&] { return "\0\1aab\x7F\x80\xFF="[random() % 9]; });
    }
    const std::vector<std::string> given = texts;
    std::vector<std::string_view> lines(given.begin(), given.end());
    if (!lines.empty()) {
      SortDictionaryLines(lines, 0, lines.size() - 1);
    }
    std::sort(texts.begin(), texts.end(), [](const std::string& zOne, const std::string& zOther) {
      return std::lexicographical_compare(
          zOne.begin(), zOne.end(), zOther.begin(), zOther.end(), [](char zA, char zB) {
            return static_cast<unsigned char>(zA) < static_cast<unsigned char>(zB);
          });
    });
    EXPECT_TRUE(std::equal(lines.begin(), lines.end(), texts.begin(), texts.end())) << round;
  }
}

TEST(DictionaryText, SortedReversedAndEqualLinesAreNoTrouble) {
  constexpr int Count = 100'000;
  std::string ascending;
  std::string descending;
  std::string equal;
  for (int i = 0; i < Count; ++i) {
    ascending += "w" + std::to_string(1'000'000 + i) + "=\n";
    descending += "w" + std::to_string(1'000'000 + Count - 1 - i) + "=\n";
    equal += "w=\\AX\n";
  }
  EXPECT_EQ(SortedText(ascending), ascending);
  EXPECT_EQ(SortedText(descending), ascending);
  EXPECT_EQ(SortedText(equal), equal);
}

TEST(DictionaryText, CleaningKeepsEntriesThatHaveCodes) {
  const Conversion table[] = {
      {"", "[words]\n"},
      {"[Words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=\r\n",
       "[words]\ncat=\\KE \\AX \\TT\nant=\\AY\n"},
      {"Z= x \r\nstray\r\n\r\na=   \r\nb==\r\n =1", "[words]\nz= x \nb==\n =1\n"},
      {"tab=\t\nhard=\xA0\n", "[words]\ntab=\t\nhard=\xA0\n"},
  };
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(CleanedText(given), expected) << given;
  }
}

TEST(DictionaryText, SearchFindsTheNextPlaceAndWrapsAround) {
  constexpr auto Nowhere = std::string_view::npos;
  const struct {
    std::string text;
    std::string sought;
    std::size_t from;
    std::size_t expected;
  } table[] = {
      {"one two one", "one", 0, 0},  {"one two one", "one", 1, 8},
      {"one two one", "ONE", 9, 0},  {"one two one", "one", 99, 0},
      {"One", "oNE", 0, 0},          {"one", "ones", 0, Nowhere},
      {"one", "", 0, Nowhere},       {"", "x", 0, Nowhere},
      {"a\nb=\n", "B=", 0, 2},       {"caf\xC9 caf\xE9", "\xE9", 4, 8},
      {"a\xA0z", "a z", 0, Nowhere}, {"abab", "aba", 1, 0},
      {"\\AX \\AX2", "\\ax2", 0, 4}, {"x\0y"s, "\0Y"s, 0, 1},
  };
  for (const auto& [text, sought, from, expected] : table) {
    EXPECT_EQ(FindText(text, sought, from), expected) << text << '|' << sought << '|' << from;
  }
}

TEST(DictionaryText, RandomBytesSurviveTheWayToTheBoxAndBack) {
  std::mt19937 random(1);
  for (int round = 0; round < 100; ++round) {
    std::string file(random() % 3000, '\0');
    std::generate(file.begin(), file.end(), [&] { return static_cast<char>(random()); });
    const std::string box = BoxTextFromFile(file);
    const std::string saved = FileBytesFromBox(box);
    EXPECT_EQ(BoxTextFromFile(saved), box + "\n") << round;
    std::vector<std::string_view> lines = ReadLines(file);
    std::string expected;
    for (const std::string_view line : lines) {
      expected.append(line).append("\r\n");
    }
    const bool endsALine = !file.empty() && (file.back() == '\n' || file.back() == '\r');
    EXPECT_EQ(saved, endsALine || file.empty() ? expected + "\r\n" : expected) << round;
  }
}

}  // namespace
}  // namespace loquitor
