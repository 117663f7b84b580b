#pragma once

#include <string>

#include "tests/support/pseudo_terminal.h"

namespace loquitor::testing {

/// The chip's end of a line that the program under test opens as its serial port. Nothing is taken
/// off the line before it is asked for, so a chip that is not asked holds the line back once the
/// line's own buffer is full.
class PtyChip : public PseudoTerminal {
 public:
  /// Everything received so far.
  const std::string& Received() { return received_ += PseudoTerminal::Received(); }

  /// Forgets what has been received.
  void Forget() { received_.clear(); }

 private:
  std::string received_;
};

}  // namespace loquitor::testing
