#pragma once

#include <chrono>
#include <thread>

namespace loquitor::testing {

/// Waits until `zCondition` holds, and tries it every few milliseconds. False when it does not hold
/// within `zSeconds`.
template <class Condition>
bool Await(Condition zCondition, int zSeconds = 30) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(zSeconds);
  while (!zCondition()) {
    if (std::chrono::steady_clock::now() > end) {
      return false;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

}  // namespace loquitor::testing
