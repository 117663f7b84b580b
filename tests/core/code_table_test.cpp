#include "core/code_table.h"

#include <gtest/gtest.h>

namespace loquitor {
namespace {

class CodeTableTest : public ::testing::Test {
 protected:
  CodeTableTest() { table.BuildCodeTable(); }
  CodeTable table;
};

TEST_F(CodeTableTest, FindsMnemonicsInAnyLetterCaseAndNothingElse) {
  struct Row {
    const char* mnemonic;
    int index;
  };
  const Row rows[] = {
      {"\\P0", 0},      {"\\p6", 6},      {"\\Fast", 7},     {"\\SLOW", 8},   {"\\STRESS", 14},
      {"\\Wait", 16},   {"\\SOFT", 18},   {"\\VOLUME", 20},  {"\\bend", 23},  {"\\PCTRL", 24},
      {"\\REPEAT", 26}, {"\\CALL", 28},   {"\\RESET", 31},   {"\\IY", 128},   {"\\iy", 128},
      {"\\UW", 139},    {"\\MM", 140},    {"\\WW", 147},     {"\\RR", 148},   {"\\OWRR", 153},
      {"\\EYIY", 154},  {"\\OWWW", 164},  {"\\JH", 165},     {"\\DH", 169},   {"\\BE", 170},
      {"\\OG", 181},    {"\\CH", 182},    {"\\TH", 190},     {"\\TT", 191},   {"\\PO", 199},
      {"\\R0", 200},    {"\\A9", 219},    {"\\B0", 220},     {"\\c9", 239},   {"\\D9", 249},
      {"\\D10", 250},   {"\\D11", 251},   {"\\M2", 254},     {"\\NTC1", 301}, {"\\NTC#1", 302},
      {"\\ntb1", 312},  {"\\NTF#2", 327}, {"\\NTB3", 352},   {"IY", 401},     {"", 401},
      {"\\", 401},      {"\\D12", 401},   {"\\P7", 401},     {"\\NTC4", 401}, {"\\NTE#1", 401},
      {"\\IY ", 401},   {"\\\\IY", 401},  {"\\HE\xCC", 401},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(table.GetCodeIndex(row.mnemonic), row.index) << row.mnemonic;
  }
}

TEST_F(CodeTableTest, NamesEveryCodeThatHasAName) {
  const auto isNameless = [](int zCode) {
    return (zCode >= 9 && zCode <= 13) || zCode == 17 || zCode == 19 || zCode == 27 ||
           (zCode >= 32 && zCode <= 127) || zCode == 255;
  };
  for (int code = 0; code < 256; ++code) {
    const std::string mnemonic = table.GetCodeMnemonic(static_cast<std::uint8_t>(code));
    EXPECT_EQ(mnemonic.empty(), isNameless(code)) << code;
    EXPECT_EQ(table.GetCodeIndex(mnemonic), isNameless(code) ? CodeTable::NotFound : code);
  }
  EXPECT_EQ(table.GetCodeMnemonic(23), "\\BEND");
}

TEST_F(CodeTableTest, KnowsThePitchOfNotesOnly) {
  struct Row {
    std::int16_t index;
    int pitch;
  };
  for (const Row& row :
       {Row{301, 33},  Row{302, 35},  Row{312, 62},  Row{321, 65}, Row{327, 93},
        Row{330, 110}, Row{341, 131}, Row{352, 247}, Row{300, 0},  Row{313, 0},
        Row{320, 0},   Row{333, 0},   Row{340, 0},   Row{353, 0},  Row{361, 0},
        Row{400, 0},   Row{401, 0},   Row{22, 0},    Row{-1, 0},   Row{32767, 0}}) {
    EXPECT_EQ(table.GetNotePitch(row.index), row.pitch) << row.index;
  }
}

TEST(EmptyCodeTableTest, KnowsNothingUntilItIsBuilt) {
  const CodeTable table;
  EXPECT_EQ(table.GetCodeIndex("\\IY"), CodeTable::NotFound);
  EXPECT_EQ(table.GetCodeMnemonic(128), "");
}

}  // namespace
}  // namespace loquitor
