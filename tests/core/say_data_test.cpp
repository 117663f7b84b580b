// From mnemonics and Say Data to codes: the code table, the translation, and what docs/say-data.md
// and the starter dictionary promise of both.

#include "core/say_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <sstream>

#include "tests/support/rows.h"
#include "tests/support/temp_folder.h"

namespace loquitor::testing {
namespace {

using Text = std::string_view;

class SayDataTest : public ::testing::Test {
 protected:
  SayDataTest() { table.BuildCodeTable(); }

  void GivenDictionary(Text zEntries) {
    WriteBytes(dictionary.File(), "[words]\r\n" + std::string(zEntries));
  }

  /// a0=`zPattern`, a1=`zPattern` and so on, each @ in it replaced by the next word.
  static std::string Levels(int zCount, const std::string& zPattern) {
    const std::regex at("@");
    std::string entries;
    for (int level = 0; level < zCount; ++level) {
      const std::string next = "a" + std::to_string(level + 1);
      entries +=
          "a" + std::to_string(level) + "=" + std::regex_replace(zPattern, at, next) + "\r\n";
    }
    return entries;
  }

  /// The places of the document that match `zPattern`.
  std::vector<std::smatch> Places(const char* zPattern) const {
    const std::regex pattern(zPattern);
    return {std::sregex_iterator(document.begin(), document.end(), pattern), {}};
  }

  std::string Expand(Text zSayData) { return translator.ExpandSayData(zSayData); }
  std::string Codes(Text zSayData) {
    return CodeListText(translator.MnemonicsToCodes(Expand(zSayData)));
  }

  const std::filesystem::path data = LOQUITOR_DATA;
  const std::string document = ReadBytes(data / "../docs/say-data.md");
  TempFolder folder;
  CodeTable table;
  DictionaryStore dictionary{folder.Path()};
  SayDataTranslator translator{table, dictionary};
};

TEST_F(SayDataTest, MnemonicsAreFoundInAnyLetterCaseAndNothingElseIs) {
  for (const auto& [mnemonic, index] : Rows<Text, int>{
           {"\\P0", 0},      {"\\p6", 6},     {"\\Fast", 7},    {"\\STRESS", 14}, {"\\bend", 23},
           {"\\RESET", 31},  {"\\IY", 128},   {"\\iy", 128},    {"\\PO", 199},    {"\\c9", 239},
           {"\\D10", 250},   {"\\M2", 254},   {"\\NTC1", 301},  {"\\ntb1", 312},  {"\\NTF#2", 327},
           {"\\NTB3", 352},  {"IY", 401},     {"", 401},        {"\\", 401},      {"\\D12", 401},
           {"\\P7", 401},    {"\\NTC4", 401}, {"\\NTE#1", 401}, {"\\IY ", 401},   {"\\\\IY", 401},
           {"\\HE\xCC", 401}}) {
    EXPECT_EQ(table.GetCodeIndex(mnemonic), index) << mnemonic;
  }
  for (int index = -1; index < 402; ++index) {
    const bool isNote = index > 300 && index < 353 && (index - 1) % 20 < 12;
    EXPECT_EQ(table.GetNotePitch(static_cast<std::int16_t>(index)) > 0, isNote) << index;
  }
  EXPECT_EQ(table.GetNotePitch(32767), 0);
}

TEST_F(SayDataTest, EveryCodeIsReadBackFromItsNameAndItsNumber) {
  for (int code = 1; code < 256; ++code) {
    const bool isNameless = (code >= 9 && code <= 13) || code == 17 || code == 19 || code == 27 ||
                            (code >= 32 && code <= 127) || code == 255;
    const std::string name = table.GetCodeMnemonic(static_cast<std::uint8_t>(code));
    const std::string number = std::to_string(code);
    EXPECT_EQ(name.empty(), isNameless) << code;
    EXPECT_EQ(Codes("unknown " + name), isNameless ? "" : number);
    EXPECT_EQ(Codes("\\" + number), number);
  }
}

TEST_F(SayDataTest, TheDocumentListsTheSoundsAndNotesWithTheirCodes) {
  int sounds = 0;
  for (const std::smatch& row : Places(R"(`(\\[^`\\]+)` \| (\d+) \|)")) {
    EXPECT_EQ(table.GetCodeIndex(row.str(1)), std::stoi(row[2])) << row.str(1);
    sounds += table.GetCodeIndex(row.str(1)) >= 128 ? 1 : 0;
  }
  EXPECT_EQ(sounds, 200 - 128);
  int notes = 0;
  for (const std::smatch& row : Places(R"(\n\| (\d) \|((?: \d+ \|){12}))")) {
    int index = 300 + 20 * (std::stoi(row[1]) - 1);
    std::istringstream pitches(row[2]);
    for (std::string pitch, bar; pitches >> pitch >> bar; ++notes) {
      EXPECT_EQ(table.GetNotePitch(static_cast<std::int16_t>(++index)), std::stoi(pitch));
    }
  }
  EXPECT_EQ(notes, 36);
}

TEST_F(SayDataTest, TheDocumentsExamplesAreTranslatedAsItSays) {
  GivenDictionary("hello=\\HE \\EH \\LO \\OW\r\n");
  const auto examples = Places(R"(\| `([^`]+)` \| `([^`]+)` \| ([^|]+) \|)");
  for (const std::smatch& row : examples) {
    EXPECT_EQ(Expand(row.str(1)), row[2]);
    const std::string codes = Codes(row.str(1));
    EXPECT_EQ(codes.empty() ? "none" : codes, row[3]);
  }
  EXPECT_EQ(examples.size(), 5U);
}

TEST_F(SayDataTest, WordsAndPausesAreExpanded) {
  GivenDictionary(
      "hi=\\HE \\EH\r\nwo=\\WW,\\LO\r\nboth=hi  wo\r\ncommas=\\IY,,\r\na=b\r\nb=A\r\n"
      "self=\\IY SELF \\EH\r\nempty=\r\n100=\\UW\r\nx\\IY=\\OW\r\ndont=\\DO\r\n");
  for (const auto& [text, result] : Rows<Text, Text>{{"", ""},
                                                     {"\\iy\\EH", "\\iy\\EH"},
                                                     {"  \\IY", " \\P6\\IY"},
                                                     {"   \\IY", " \\P4 \\P1\\IY"},
                                                     {"\\IY      \\EH", "\\IY \\P4 \\P1\\EH"},
                                                     {"\\IY  ", "\\IY"},
                                                     {"\\IY, ", "\\IY \\P2"},
                                                     {"\\IY,,,", "\\IY \\P2 \\P2 \\P2"},
                                                     {"Hi", "\\HE\\EH"},
                                                     {"hi,  wo", "\\HE\\EH \\P2 \\P6\\WW \\P2\\LO"},
                                                     {"both", "\\HE\\EH \\P6\\WW \\P2\\LO"},
                                                     {"h\r\n\ti", "\\HE\\EH"},
                                                     {"h\xE9i", "\\HE\\EH"},
                                                     {"hi.wo", ""},
                                                     {"don't", "\\DO"},
                                                     {"\\IY . \\EH", "\\IY \\P6\\EH"},
                                                     {".,. ", " \\P2"},
                                                     {"commas,\\UW", "\\IY \\P2 \\P2 \\P2\\UW"},
                                                     {"100 \\100", "\\UW\\100"},
                                                     {"x\\iy", "\\OW"},
                                                     {"\\xhi hi", "\\xhi\\HE\\EH"},
                                                     {"B unknown empty \\IY", "\\IY"},
                                                     {"Self self", "\\IY\\EH\\IY\\EH"}}) {
    EXPECT_EQ(Expand(text), result) << ::testing::PrintToString(text);
  }
}

TEST_F(SayDataTest, MnemonicTextIsSplitIntoTokensAndTheseIntoCodes) {
  for (const auto& [text, result] : Rows<Text, Text>{{"", ""},
                                                     {"\\", ""},
                                                     {"\\PITCH\\100", " \\PITCH \\100"},
                                                     {"\\iy,,eh", " \\IY \\EH"},
                                                     {"IY \\\\ eh ", "IY \\EH"},
                                                     {"\\NTC#1.\\p2", " \\NTC#1 \\P2"},
                                                     {"\\\xE9\\IY", " \\IY"}}) {
    EXPECT_EQ(NormalizeCodeText(text), result) << text;
  }
  for (const auto& [text, codes] : Rows<Text, Text>{
           {"", ""},
           {"\\PITCH 100", "22"},
           {"\\PITCH,\\100", "22, 2, 100"},
           {"  \\IY   \\EH,,", "6, 128, 4, 1, 131, 2, 2"},
           {"\\0", "0"},
           {"\\00 \\0E5 \\0D0", ""},
           {"\\255 \\256 \\9", "255, 9"},
           {"\\300\\IY", "128"},
           {"\\1E2 \\1D2 \\1e1 \\25d0", "100, 100, 10, 25"},
           {"\\1E3 \\1E400 \\1E99999999999999999999 \\7", "7"},
           {"\\5A \\1E \\1EX \\12#3", "5, 1, 1, 12"},
           {"\\D10 \\D11 \\D12 \\D2", "250, 251, 242"},  // a D without digits before it
           {"\\NTA2\\ntf#2", "22, 110, 22, 93"},
           {"\\# \\ \\\\ \\IY\\ZZ", "128, 167"}}) {
    EXPECT_EQ(Codes(text), codes) << text;
  }
  // Text that no expansion makes: a first token without its backslash.
  EXPECT_EQ(CodeListText(translator.MnemonicsToCodes("IY\\EH")), "131");
  EXPECT_EQ(CodeListText(translator.MnemonicsToCodes("0\\EH")), "131");
}

TEST_F(SayDataTest, AChainOfAHundredThousandWordsIsFollowed) {
  GivenDictionary(Levels(100'000, "@") + "a100000=\\IY\r\n");
  EXPECT_EQ(Expand("a0 a1"), "\\IY\\IY");
}

TEST_F(SayDataTest, WordsThatDoubleAtEveryLevelEndAtTheBound) {
  GivenDictionary(Levels(60, "@ @") + "a60=\\IY\r\n");
  const std::string text = Expand("a0");
  EXPECT_GT(text.size(), 100'000u);
  EXPECT_LE(text.size(), SayDataTranslator::MaxExpansion + 100);
  EXPECT_EQ(text.substr(0, 9), "\\IY\\IY\\IY");
  for (const char* last : {"", "a60=a0 a1\r\n"}) {  // adds nothing; runs in a circle
    GivenDictionary(Levels(60, "@ @") + last);
    EXPECT_EQ(Expand("a0 \\EH"), "\\EH") << last;
  }
}

TEST_F(SayDataTest, ALongTextIsKeptWhole) {
  const std::size_t count = 2 * SayDataTranslator::MaxExpansion;
  EXPECT_EQ(Expand(std::string(count, ',')).size(), 4 * count);
  std::string text;
  for (int i = 0; i < 200'000; ++i) {
    text += "\\IY ";
  }
  EXPECT_EQ(Codes(text).size(), 200'000u * 5 - 2);
}

TEST_F(SayDataTest, TheStarterDictionarySpeaksEveryWordWhole) {
  const std::string file = ReadBytes(data / "Loquitor.Dic");
  WriteBytes(dictionary.File(), file);
  std::istringstream lines(file);
  std::string line, previous;
  std::getline(lines, line);
  EXPECT_EQ(line, "[words]\r");
  int count = 0;
  for (; std::getline(lines, line); ++count) {
    const std::string word = line.substr(0, line.find('='));
    EXPECT_LT(std::exchange(previous, word), word);
    EXPECT_EQ(line.back(), '\r') << word;
    EXPECT_EQ(word.find_first_not_of("abcdefghijklmnopqrstuvwxyz"), std::string::npos) << word;
    const auto sounds = std::count(line.begin(), line.end(), '\\');
    const std::string codes = translator.MnemonicsToCodes(Expand(word));
    EXPECT_EQ(codes.size(), static_cast<std::size_t>(sounds)) << word;
    EXPECT_FALSE(codes.empty()) << word;
  }
  EXPECT_GE(count, 200);
  EXPECT_EQ(Codes("hello world"), "183, 131, 146, 164, 147, 151, 146, 176");
}

}  // namespace
}  // namespace loquitor::testing
