#include "ui/phrase/neighbour.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "tests/support/rows.h"
#include "ui/phrase/palette_table.h"

namespace loquitor::testing {
namespace {

using enum Direction;

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
