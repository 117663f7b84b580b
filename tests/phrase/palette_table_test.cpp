#include "ui/phrase/palette_table.h"

#include <map>
#include <set>

#include "tests/support/window_test.h"
#include "ui/phrase/neighbour.h"

namespace loquitor::testing {
namespace {

using enum Direction;

class PaletteTableTest : public WindowTest {
 protected:
  const CodeTable& table = codeTable;
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
           {123, 251, "D11", {7320, 1320, 525, 255}, ""},
           {125, 253, "M1", {7080, 690, 465, 255}, "Pistol Shot"},
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

/// The members of one frame.
struct FrameMap {
  explicit FrameMap(std::string_view zFrame) {
    for (const PaletteMember& member : PaletteTable) {
      if (member.frame == zFrame) {
        captions.emplace_back(member.caption.Text());
        places.push_back(member.place);
      }
    }
  }

  std::vector<std::string> captions;
  std::vector<TwipRect> places;
};

TEST(Neighbour, FollowsRowsAndColumns) {
  const Rows<const char*, const char*, Direction, const char*> rows = {
      {"Frame1", "IY", Right, "UW"},     {"Frame1", "IY", Down, "IH"},
      {"Frame1", "IY", Left, "IY"},      {"Frame1", "AX", Left, "EY"},
      {"Frame1", "AY", Down, "AY"},      {"Frame4", "AXUW", Down, "EHLE"},
      {"Frame4", "EHLE", Right, "IHWW"}, {"Frame8", "R9", Right, "M0"},
      {"Frame8", "D11", Up, "M2"},       {"Frame13", "NTB3", Up, "NTA#3"},
      {"Frame14", "P3", Right, "Delay"}, {"Frame14", "Wait", Left, "P4"}};
  for (const auto& [frame, from, way, to] : rows) {
    const FrameMap map(frame);
    const auto at = std::find(map.captions.begin(), map.captions.end(), from);
    const auto current = static_cast<std::size_t>(at - map.captions.begin());
    EXPECT_EQ(map.captions.at(NeighbourOf(map.places, current, way)), to) << "from " << from;
  }
}

TEST(Neighbour, LeadsFromEveryFramesFirstMemberToAllOfThem) {
  for (const PaletteMember& member : PaletteTable) {
    const FrameMap map(member.frame);
    std::set<std::size_t> reached{0};
    for (std::size_t before = 0; before != reached.size();) {
      before = reached.size();
      for (const std::size_t from : std::set(reached)) {
        for (const Direction way : {Left, Right, Up, Down}) {
          reached.insert(NeighbourOf(map.places, from, way));
        }
      }
    }
    EXPECT_EQ(reached.size(), map.places.size()) << member.frame;
  }
}

}  // namespace
}  // namespace loquitor::testing
