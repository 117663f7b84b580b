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
      {"a\rb\nc\r\nd", "a\nb\nc\nd"},
      {"\r\r\n\n\r\r\n", "\n\n\n\n\n"},
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
      {"\r\n  \r\n", ""},
      {"[words]\r\nCat=\\KE \\AX \\TT\r\nant=\\AY\r\nbee=\r\n",
       "[words]\nant=\\AY\nbee=\ncat=\\KE \\AX \\TT\n"},
      {"b=1\r\n2nd=\\TU\r\n[Words]\r\n", "2nd=\\TU\n[words]\nb=1\n"},
      {"\xE9=1\r\n~=1\r\nz=1\r\n\x80=1\r\n", "z=1\n~=1\n\x80=1\n\xE9=1\n"},
      {"\t\r\n\xA0\r\n  x\r\n", "\t\n  x\n\xA0\n"},
  };
  for (const auto& [given, expected] : table) {
    EXPECT_EQ(SortedText(given), expected) << given;
  }
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

TEST(DictionaryText, SortedReversedAndEqualLinesAreNoTrouble) {
  std::string ascending, descending, equal;
  for (int i = 0; i < 100'000; ++i) {
    ascending += "w" + std::to_string(1'000'000 + i) + "=\n";
    descending += "w" + std::to_string(1'099'999 - i) + "=\n";
    equal += "w=\\AX\n";
  }
  EXPECT_EQ(SortedText(ascending), ascending);
  EXPECT_EQ(SortedText(descending), ascending);
  EXPECT_EQ(SortedText(equal), equal);
}

TEST(DictionaryText, CleaningKeepsEntriesThatHaveCodes) {
  const Conversion table[] = {
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
      {"one two one", "oNE", 0, 0}, {"one two one", "one", 1, 8},
      {"one two one", "ONE", 9, 0}, {"one two one", "one", 99, 0},
      {"one", "ones", 0, Nowhere},  {"one", "", 0, Nowhere},
      {"", "x", 0, Nowhere},        {"caf\xC9 caf\xE9", "\xE9", 4, 8},
      {"abab", "aba", 1, 0},        {"x\0y"s, "\0Y"s, 0, 1},
  };
  for (const auto& [text, sought, from, expected] : table) {
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

}  // namespace
}  // namespace loquitor
