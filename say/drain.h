#pragma once

#include <chrono>
#include <functional>

namespace loquitor {

/// Calls `zWait` until `zUnsent`, the number of bytes that have not left, comes to 0. Gives up when
/// that number has not changed for `zLongestStandstill`. The number of bytes then left; 0 when all
/// have gone.
int AwaitDrained(const std::function<int()>& zUnsent, const std::function<void()>& zWait,
                 std::chrono::milliseconds zLongestStandstill);

}  // namespace loquitor
