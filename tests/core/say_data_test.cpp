#include "core/say_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/support/temp_folder.h"

namespace loquitor {
namespace {

using testing::TempFolder;
using testing::WriteBytes;

class SayDataTest : public ::testing::Test {
 protected:
  SayDataTest() { table.BuildCodeTable(); }

  void GivenDictionary(std::string_view zEntries) {
    WriteBytes(folder / "Loquitor.Dic", "[words]\r\n" + std::string(zEntries));
  }

  /// a0=`zPattern`, a1=`zPattern` and so on, each @ in it replaced by the next word.
  static std::string Levels(int zCount, std::string_view zPattern) {
    std::ostringstream entries;
    for (int level = 0; level < zCount; ++level) {
      entries << 'a' << level << '=';
      for (const char character : zPattern) {
        character == '@' ? entries << 'a' << level + 1 : entries << character;
      }
      entries << "\r\n";
    }
    return entries.str();
  }

  std::string Expand(std::string_view zSayData) { return translator.ExpandSayData(zSayData); }

  std::string Codes(std::string_view zSayData) {
    return CodeListText(translator.MnemonicsToCodes(Expand(zSayData)));
  }

  TempFolder folder;
  CodeTable table;
  DictionaryStore dictionary{folder.Path()};
  SayDataTranslator translator{table, dictionary};
};

struct TextRow {
  std::string_view text;
  std::string_view result;
};

TEST_F(SayDataTest, ExpandsWordsAndPauses) {
  GivenDictionary(
      "hello=\\HE \\EH \\LO \\OW\r\n"
      "world=\\WW\\AXRR,\\LO\r\n"
      "both=hello  world\r\n"
      "commas=\\IY,,\r\n"
      "a=b\r\nb=A\r\nself=\\IY SELF \\EH\r\n"
      "empty=\r\n"
      "100=\\UW\r\n"
      "x\\IY=\\OW\r\n"
      "dont=\\DO\r\n");
  const TextRow rows[] = {
      {"", ""},
      {"   ", ""},
      {"\\iy\\EH", "\\iy\\EH"},
      {"  \\IY", " \\P6\\IY"},
      {"   \\IY", " \\P4 \\P1\\IY"},
      {"\\IY      \\EH", "\\IY \\P4 \\P1\\EH"},
      {"\\IY  ", "\\IY"},
      {"\\IY, ", "\\IY \\P2"},
      {"\\IY,,,", "\\IY \\P2 \\P2 \\P2"},
      {",\\IY", " \\P2\\IY"},
      {"\\IY,  \\EH", "\\IY \\P2 \\P6\\EH"},
      {"HeLLo", "\\HE\\EH\\LO\\OW"},
      {"hello,  world", "\\HE\\EH\\LO\\OW \\P2 \\P6\\WW\\AXRR \\P2\\LO"},
      {"both", "\\HE\\EH\\LO\\OW \\P6\\WW\\AXRR \\P2\\LO"},
      {"hel\r\n\tlo", "\\HE\\EH\\LO\\OW"},
      {"hel\xE9lo", "\\HE\\EH\\LO\\OW"},
      {"hello.world", ""},
      {"don't", "\\DO"},
      {"\\IY . \\EH", "\\IY \\P6\\EH"},
      {".,. ", " \\P2"},
      {"commas,\\UW", "\\IY \\P2 \\P2 \\P2\\UW"},
      {"unknown empty \\IY", "\\IY"},
      {"100 \\100", "\\UW\\100"},
      {"x\\iy", "\\OW"},
      {"\\xhello hello", "\\xhello\\HE\\EH\\LO\\OW"},
      {"#hello", ""},
      {"B \\IY", "\\IY"},
      {"Self \\UW", "\\IY\\EH\\UW"},
      {"self self", "\\IY\\EH\\IY\\EH"},  // no longer under expansion the second time
  };
  for (const TextRow& row : rows) {
    EXPECT_EQ(Expand(row.text), row.result) << ::testing::PrintToString(row.text);
  }
}

TEST_F(SayDataTest, TurnsMnemonicTextIntoTokens) {
  const TextRow rows[] = {
      {"", ""},
      {"\\", ""},
      {"\\PITCH\\100", " \\PITCH \\100"},
      {"\\iy,,eh", " \\IY \\EH"},
      {"IY \\\\ eh ", "IY \\EH"},
      {"\\NTC#1.\\p2", " \\NTC#1 \\P2"},
      {"\\\xE9\\IY", " \\IY"},
  };
  for (const TextRow& row : rows) {
    EXPECT_EQ(NormalizeCodeText(row.text), row.result) << row.text;
  }
}

TEST_F(SayDataTest, TurnsTokensIntoCodes) {
  const TextRow rows[] = {
      {"", ""},
      {"\\PITCH 100", "22"},
      {"\\PITCH,\\100", "22, 2, 100"},
      {"  \\IY   \\EH,,", "6, 128, 4, 1, 131, 2, 2"},
      {"\\0", "0"},
      {"\\00", ""},
      {"\\255 \\256 \\9", "255, 9"},
      {"\\300\\IY", "128"},
      {"\\1E2 \\1D2 \\1e1 \\25d0", "100, 100, 10, 25"},
      {"\\1E3 \\1E400 \\1E99999999999999999999 \\7", "7"},
      {"\\0E5 \\0D0", ""},
      {"\\5A \\1E \\1EX", "5, 1, 1"},
      {"\\12#3", "12"},
      {"\\D10 \\D11 \\D12", "250, 251"},
      {"\\D2", "242"},  // a number does not begin with its exponent
      {"\\NTA2\\ntf#2", "22, 110, 22, 93"},
      {"\\IY\\ZZ", "128, 167"},
      {"\\#", ""},
      {"\\ \\\\ \\IY", "128"},
  };
  for (const TextRow& row : rows) {
    EXPECT_EQ(Codes(row.text), row.result) << row.text;
  }
  // Text that no expansion makes: a first token without its backslash.
  EXPECT_EQ(CodeListText(translator.MnemonicsToCodes("IY\\EH")), "131");
  EXPECT_EQ(CodeListText(translator.MnemonicsToCodes("0\\EH")), "131");
}

TEST_F(SayDataTest, ReadsEveryMnemonicAndNumberBackWithoutADictionary) {
  for (int code = 1; code < 256; ++code) {
    const std::string mnemonic = table.GetCodeMnemonic(static_cast<std::uint8_t>(code));
    const std::string number = std::to_string(code);
    EXPECT_EQ(Codes("unknown " + mnemonic), mnemonic.empty() ? "" : number);
    EXPECT_EQ(Codes("\\" + number), number);
  }
}

TEST_F(SayDataTest, FollowsAChainOfAHundredThousandWords) {
  GivenDictionary(Levels(100'000, "@") + "a100000=\\IY\r\n");
  EXPECT_EQ(Expand("a0 a1"), "\\IY\\IY");
}

TEST_F(SayDataTest, EndsWhereWordsDoubleAtEveryLevel) {
  GivenDictionary(Levels(60, "@ @") + "a60=\\IY\r\n");
  const std::string text = Expand("a0");
  EXPECT_GT(text.size(), 100'000u);
  EXPECT_LE(text.size(), SayDataTranslator::MaxExpansion);
  EXPECT_EQ(text.substr(0, 9), "\\IY\\IY\\IY");

  GivenDictionary(Levels(60, "@ @"));  // doubles, but adds nothing
  EXPECT_EQ(Expand("a0 \\EH"), "\\EH");

  GivenDictionary(Levels(60, "@ @") + "a60=a0 a1\r\n");  // in a circle
  EXPECT_EQ(Expand("a0 \\EH"), "\\EH");
}

TEST_F(SayDataTest, KeepsALongTextUpToTheBound) {
  std::string text(SayDataTranslator::MaxExpansion / 3, ',');
  EXPECT_EQ(Expand(text).size(), SayDataTranslator::MaxExpansion / 4 * 4);
  text.clear();
  for (int i = 0; i < 200'000; ++i) {
    text += "\\IY ";
  }
  EXPECT_EQ(Codes(text).size(), 200'000u * 5 - 2);
}

TEST(StarterDictionaryTest, SpeaksEveryWordWhole) {
  const std::filesystem::path folder = LOQUITOR_DATA;
  const std::string file = testing::ReadBytes(folder / "Loquitor.Dic");
  const DictionaryStore dictionary(folder);
  CodeTable table;
  table.BuildCodeTable();
  const SayDataTranslator translator(table, dictionary);
  std::istringstream lines(file);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "[words]\r");
  std::string previous;
  int count = 0;
  for (; std::getline(lines, line); ++count) {
    const std::string word = line.substr(0, line.find('='));
    const auto sounds = std::count(line.begin(), line.end(), '\\');
    EXPECT_LT(previous, word);
    EXPECT_EQ(line.back(), '\r') << word;
    EXPECT_TRUE(std::all_of(word.begin(), word.end(), [](char c) { return c >= 'a' && c <= 'z'; }));
    const std::string codes = translator.MnemonicsToCodes(translator.ExpandSayData(word));
    EXPECT_EQ(codes.size(), static_cast<std::size_t>(sounds)) << word;
    EXPECT_FALSE(codes.empty()) << word;
    previous = word;
  }
  EXPECT_GE(count, 200);
  EXPECT_EQ(CodeListText(translator.MnemonicsToCodes(translator.ExpandSayData("hello world"))),
            "183, 131, 146, 164, 147, 151, 146, 176");
}

}  // namespace
}  // namespace loquitor
