#include "ui/phrase/neighbour.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "ui/phrase/palette_table.h"

namespace loquitor {
namespace {

/// The members of one frame by caption.
class FrameMap {
 public:
  explicit FrameMap(std::string_view zFrame) {
    for (const PaletteMember& member : PaletteTable) {
      if (member.frame == zFrame) {
        captions_.emplace_back(member.caption.Text());
        places_.push_back(member.place);
      }
    }
  }

  std::size_t Size() const { return places_.size(); }
  std::size_t Step(std::size_t zFrom, Direction zDirection) const {
    return NeighbourOf(places_, zFrom, zDirection);
  }
  std::string Step(const std::string& zFrom, Direction zDirection) const {
    const auto from = std::find(captions_.begin(), captions_.end(), zFrom) - captions_.begin();
    return captions_[Step(static_cast<std::size_t>(from), zDirection)];
  }

  std::set<std::size_t> ReachedFromTheFirst() const {
    std::set<std::size_t> reached;
    std::vector<std::size_t> open{0};
    while (!open.empty()) {
      const std::size_t member = open.back();
      open.pop_back();
      if (reached.insert(member).second) {
        for (const Direction way :
             {Direction::Left, Direction::Right, Direction::Up, Direction::Down}) {
          open.push_back(Step(member, way));
        }
      }
    }
    return reached;
  }

 private:
  std::vector<std::string> captions_;
  std::vector<TwipRect> places_;
};

TEST(Neighbour, FollowsRowsAndColumns) {
  struct Case {
    const char* frame;
    const char* from;
    Direction way;
    const char* to;
  };
  for (const Case& expected : {
           Case{"Frame1", "IY", Direction::Right, "UW"},
           Case{"Frame1", "IY", Direction::Down, "IH"},
           Case{"Frame1", "IY", Direction::Left, "IY"},
           Case{"Frame1", "AX", Direction::Left, "EY"},
           Case{"Frame1", "AY", Direction::Down, "AY"},
           Case{"Frame4", "AXUW", Direction::Down, "EHLE"},
           Case{"Frame4", "EHLE", Direction::Right, "IHWW"},
           Case{"Frame8", "R0", Direction::Down, "A0"},
           Case{"Frame8", "R9", Direction::Right, "M0"},
           Case{"Frame8", "D11", Direction::Up, "M2"},
           Case{"Frame13", "NTC#1", Direction::Right, "NTC#2"},
           Case{"Frame13", "NTB3", Direction::Up, "NTA#3"},
           Case{"Frame14", "P3", Direction::Right, "Delay"},
           Case{"Frame14", "Wait", Direction::Left, "P4"},
       }) {
    EXPECT_EQ(FrameMap(expected.frame).Step(expected.from, expected.way), expected.to)
        << "from " << expected.from;
  }
}

TEST(Neighbour, LeadsFromEveryFramesFirstMemberToAllOfThem) {
  std::set<std::string> frames;
  for (const PaletteMember& member : PaletteTable) {
    frames.insert(member.frame);
  }
  for (const std::string& name : frames) {
    const FrameMap frame(name);
    EXPECT_EQ(frame.ReachedFromTheFirst().size(), frame.Size()) << name;
  }
}

}  // namespace
}  // namespace loquitor
