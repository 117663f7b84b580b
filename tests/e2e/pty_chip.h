#pragma once

#include <algorithm>
#include <chrono>
#include <string>

#include "tests/support/pseudo_terminal.h"

namespace loquitor::testing {

/// The chip's end of a line that the program under test opens as its serial port. It takes bytes
/// off the line only when Received or LetPass is called. Until then the line holds the program back
/// once its own buffer is full.
class PtyChip : public PseudoTerminal {
 public:
  /// Everything that the program has sent so far.
  const std::string& Received() {
    received_ += PseudoTerminal::Received();
    const std::size_t fillers = std::min(fillers_, received_.size());
    received_.erase(0, fillers);
    fillers_ -= fillers;
    return received_;
  }

  /// Holds the line back as soon as the program has sent `zCount` bytes.
  void HoldBackAfter(std::size_t zCount) { fillers_ = LeaveRoom(zCount); }

  /// Forgets what has been received.
  void Forget() { received_.clear(); }

  /// Lets bytes pass until at least `zCount` have been received in all, then holds the line back
  /// again. False when they do not come within five seconds.
  bool LetPass(std::size_t zCount) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    Release();
    // Loops without a pause, because the program writes a hundred bytes in a millisecond.
    while (Received().size() < zCount && std::chrono::steady_clock::now() < end) {
    }
    HoldBack();
    return Received().size() >= zCount;
  }

 private:
  std::string received_;
  std::size_t fillers_ = 0;
};

}  // namespace loquitor::testing
