#include "say/drain.h"

#include <gtest/gtest.h>

#include <vector>

namespace loquitor {
namespace {

using namespace std::chrono_literals;

TEST(DrainTest, WaitsWhileBytesLeaveAndNoLonger) {
  struct Row {
    std::vector<int> unsent;  // as seen one after another; the last for ever
    int left;
    int waits;
  };
  for (const Row& row : {Row{{0}, 0, 0}, Row{{3, 2, 2, 1, 0, 5}, 0, 4}, Row{{1, 1, 1, 0}, 0, 3}}) {
    std::size_t looks = 0;
    int waits = 0;
    const auto unsent = [&] { return row.unsent[std::min(looks++, row.unsent.size() - 1)]; };
    EXPECT_EQ(AwaitDrained(
                  unsent, [&] { ++waits; }, 1h),
              row.left);
    EXPECT_EQ(waits, row.waits);
  }
}

TEST(DrainTest, GivesUpOnALineThatIsHeldBack) {
  int waits = 0;
  const auto heldBack = [&] { return waits < 10 ? 9 - waits / 2 : 4; };
  EXPECT_EQ(AwaitDrained(
                heldBack, [&] { ++waits; }, 20ms),
            4);
  EXPECT_GT(waits, 10);
}

}  // namespace
}  // namespace loquitor
