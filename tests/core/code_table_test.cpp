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
  const struct {
    const char* mnemonic;
    int index;
  } rows[] = {
      {"\\P0", 0},       {"\\p6", 6},     {"\\Fast", 7},    {"\\STRESS", 14}, {"\\bend", 23},
      {"\\RESET", 31},   {"\\IY", 128},   {"\\iy", 128},    {"\\PO", 199},    {"\\c9", 239},
      {"\\D10", 250},    {"\\M2", 254},   {"\\NTC1", 301},  {"\\ntb1", 312},  {"\\NTF#2", 327},
      {"\\NTB3", 352},   {"IY", 401},     {"", 401},        {"\\", 401},      {"\\D12", 401},
      {"\\P7", 401},     {"\\NTC4", 401}, {"\\NTE#1", 401}, {"\\IY ", 401},   {"\\\\IY", 401},
      {"\\HE\xCC", 401},
  };
  for (const auto& row : rows) {
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
  for (int index = -1; index < 402; ++index) {
    const int pitch = table.GetNotePitch(static_cast<std::int16_t>(index));
    const bool isNote = index > 300 && index < 353 && (index - 1) % 20 < 12;
    EXPECT_EQ(pitch > 0, isNote) << index;
  }
  EXPECT_EQ(table.GetNotePitch(32767), 0);
}

TEST(EmptyCodeTableTest, KnowsNothingUntilItIsBuilt) {
  const CodeTable table;
  EXPECT_EQ(table.GetCodeIndex("\\IY"), CodeTable::NotFound);
  EXPECT_EQ(table.GetCodeMnemonic(128), "");
}

}  // namespace
}  // namespace loquitor
