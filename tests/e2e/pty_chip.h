#pragma once

#include <algorithm>
#include <chrono>
#include <string>

#include "tests/support/pseudo_terminal.h"

namespace loquitor::testing {

/// The chip's end of a line that the program under test opens as its serial port. Nothing is taken
/// off the line before it is asked for, so a chip that is not asked holds the line back once the
/// line's own buffer is full.
class PtyChip : public PseudoTerminal {
 public:
  /// Everything received so far of the program.
  const std::string& Received() {
    received_ += PseudoTerminal::Received();
    const std::size_t fillers = std::min(fillers_, received_.size());
    received_.erase(0, fillers);
    fillers_ -= fillers;
    return received_;
  }

  /// Holds the line back as soon as the program has sent so many bytes.
  void HoldBackAfter(std::size_t zCount) { fillers_ = LeaveRoom(zCount); }

  /// Forgets what has been received.
  void Forget() { received_.clear(); }

  /// Lets bytes pass until at least so many have been received in all, and holds the line back
  /// again as soon as this process gets its turn. False when they do not come.
  bool LetPass(std::size_t zCount) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    Release();
    // Without a pause: the program writes a hundred bytes in a millisecond.
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
