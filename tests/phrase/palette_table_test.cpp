#include "ui/phrase/palette_table.h"

#include <map>
#include <set>

#include "tests/support/window_test.h"

namespace loquitor::testing {
namespace {

class PaletteTableTest : public WindowTest {
 protected:
  const CodeTable& table = codeTable;
};

TEST_F(PaletteTableTest, HoldsEveryMnemonicOfTheCodeTableOnceExceptTheVoiceSettings) {
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
  std::set<int> indexes;
  for (const PaletteMember& member : PaletteTable) {
    found.insert(table.GetCodeIndex(MnemonicOf(member)));
    EXPECT_TRUE(indexes.insert(member.index).second) << "index " << member.index << " twice";
    EXPECT_LT(member.index, static_cast<int>(PaletteIndexCount));
  }
  EXPECT_EQ(found, expected);
}

TEST_F(PaletteTableTest, NoTwoMembersOfAFrameOverlap) {
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
