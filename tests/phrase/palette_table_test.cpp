#include "ui/phrase/palette_table.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/code_table.h"

namespace loquitor {
namespace {

CodeTable BuiltTable() {
  CodeTable table;
  table.BuildCodeTable();
  return table;
}

TEST(PaletteTable, HoldsEveryMnemonicOfTheCodeTableOnceButTheVoiceSettings) {
  const CodeTable table = BuiltTable();
  std::set<int> expected;
  for (int code = 0; code < 256; ++code) {
    const bool isVoiceSetting = code >= 20 && code <= 23;
    if (!isVoiceSetting && !table.GetCodeMnemonic(static_cast<std::uint8_t>(code)).empty()) {
      expected.insert(code);
    }
  }
  for (std::int16_t note = CodeTable::FirstNote; note < CodeTable::EntryCount; ++note) {
    if (table.GetNotePitch(note) != 0) {
      expected.insert(note);
    }
  }
  std::multiset<int> found;
  for (const PaletteMember& member : PaletteTable) {
    found.insert(table.GetCodeIndex(MnemonicOf(member)));
    EXPECT_EQ(FindPaletteMember(member.index), &member) << "no index twice";
  }
  EXPECT_EQ(found, std::multiset<int>(expected.begin(), expected.end()));
  EXPECT_EQ(found.size(), 183u);
}

TEST(PaletteTable, NumbersCodesAndIndexesOfTheGeneratedRowsAlike) {
  struct Case {
    int index;
    int code;
    const char* caption;
    TwipRect place;
    const char* tooltip;
  };
  const CodeTable table = BuiltTable();
  for (const Case& expected : {
           Case{72, 200, "R0", {1050, 240, 525, 255}, ""},
           Case{101, 229, "B9", {6180, 780, 525, 255}, ""},
           Case{123, 251, "D11", {7320, 1320, 525, 255}, ""},
           Case{125, 253, "M1", {7080, 690, 465, 255}, "Pistol Shot"},
           Case{196, 301, "NTC1", {60, 630, 615, 255}, "Set the Pitch to the Frequency for C1"},
           Case{170, 342, "NTC#3", {1380, 900, 615, 255}, "Set the Pitch to the Frequency for C#3"},
           Case{180, 332, "NTB2", {720, 3600, 615, 255}, "Set the Pitch to the Frequency for B2"},
           Case{50, 178, "GE", {1440, 240, 585, 255}, "Get, Gate, Guest,"},
           Case{141, 18, "Soft", {90, 1530, 825, 255}, "Play the Next Sound Soft."},
       }) {
    SCOPED_TRACE(expected.caption);
    const PaletteMember* member = FindPaletteMember(expected.index);
    ASSERT_NE(member, nullptr);
    EXPECT_EQ(member->caption.Text(), expected.caption);
    EXPECT_EQ(table.GetCodeIndex(MnemonicOf(*member)), expected.code);
    EXPECT_EQ(member->place.ToPixels(), expected.place.ToPixels());
    EXPECT_EQ(TooltipOf(*member), expected.tooltip);
  }
}

TEST(PaletteTable, LaysNoTwoMembersOfAFrameOverEachOther) {
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
}  // namespace loquitor
