#include "say/drain.h"

namespace loquitor {

int AwaitDrained(const std::function<int()>& zUnsent, const std::function<void()>& zWait,
                 std::chrono::milliseconds zLongestStandstill) {
  using Clock = std::chrono::steady_clock;
  int unsent = zUnsent();
  Clock::time_point lastChange = Clock::now();
  while (unsent > 0 && Clock::now() - lastChange < zLongestStandstill) {
    zWait();
    const int before = unsent;
    unsent = zUnsent();
    if (unsent != before) {
      lastChange = Clock::now();
    }
  }
  return unsent;
}

}  // namespace loquitor
