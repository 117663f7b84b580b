#include "ui/phrase/palette_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/code_table.h"
#include "tests/support/rows.h"

namespace loquitor::testing {
namespace {

class PaletteTableTest : public ::testing::Test {
 protected:
  PaletteTableTest() { table.BuildCodeTable(); }

  CodeTable table;
};

TEST_F(PaletteTableTest, HoldsEveryMnemonicOfTheCodeTableOnceButTheVoiceSettings) {
  std::multiset<int> expected;
  for (std::int16_t index = 0; index < CodeTable::EntryCount; ++index) {
    const bool isCode = index < 20 || (index > 23 && index < 256);
    if (isCode && !table.GetCodeMnemonic(static_cast<std::uint8_t>(index)).empty()) {
      expected.insert(index);
    } else if (table.GetNotePitch(index) != 0) {
      expected.insert(index);
    }
  }
  std::multiset<int> found;
  for (const PaletteMember& member : PaletteTable) {
    found.insert(table.GetCodeIndex(MnemonicOf(member)));
    EXPECT_EQ(FindPaletteMember(member.index), &member) << "no index twice";
  }
  EXPECT_EQ(found, expected);
}

TEST_F(PaletteTableTest, NumbersCodesAndIndexesOfTheGeneratedRowsAlike) {
  for (const auto& [index, code, caption, place, tooltip] :
       Rows<int, int, const char*, TwipRect, const char*>{
           {72, 200, "R0", {1050, 240, 525, 255}, ""},
           {101, 229, "B9", {6180, 780, 525, 255}, ""},
           {123, 251, "D11", {7320, 1320, 525, 255}, ""},
           {125, 253, "M1", {7080, 690, 465, 255}, "Pistol Shot"},
           {196, 301, "NTC1", {60, 630, 615, 255}, "Set the Pitch to the Frequency for C1"},
           {170, 342, "NTC#3", {1380, 900, 615, 255}, "Set the Pitch to the Frequency for C#3"},
           {180, 332, "NTB2", {720, 3600, 615, 255}, "Set the Pitch to the Frequency for B2"},
           {50, 178, "GE", {1440, 240, 585, 255}, "Get, Gate, Guest,"}}) {
    const PaletteMember* member = FindPaletteMember(index);
    ASSERT_NE(member, nullptr) << caption;
    EXPECT_EQ(member->caption.Text(), caption);
    EXPECT_EQ(table.GetCodeIndex(MnemonicOf(*member)), code) << caption;
    EXPECT_EQ(member->place.ToPixels(), place.ToPixels()) << caption;
    EXPECT_EQ(TooltipOf(*member), tooltip);
  }
}

TEST_F(PaletteTableTest, LaysNoTwoMembersOfAFrameOverEachOther) {
  std::map<std::string, std::vector<QRect>> frames;
  for (const PaletteMember& member : PaletteTable) {
    const QRect place = member.place.ToPixels();
    for (const QRect& other : frames[member.frame]) {
      EXPECT_FALSE(place.intersects(other)) << member.caption.Text();
    }
    frames[member.frame].push_back(place);
  }
  EXPECT_EQ(frames.size(), 14u);
}

}  // namespace
}  // namespace loquitor::testing
