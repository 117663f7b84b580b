#pragma once

#include <signal.h>

#include <chrono>
#include <string>

#include "sim/pseudo_terminal.h"
#include "sim/sound_output.h"
#include "sim/virtual_chip.h"

namespace loquitor {

/// The virtual Orvatone at work: feeds the chip from the pseudo-terminal, prints what it
/// understands and lets it sound, and changes its inputs as the lines of standard input ask for.
class Session {
 public:
  /// Both outlive the session. `zSound` may be nothing.
  Session(PseudoTerminal& zTerminal, SoundOutput* zSound)
      : terminal_(zTerminal), soundOutput_(zSound) {}

  /// Runs until `zIsAskedToStop`, which a signal handler sets, or until standard output fails.
  /// `zMask`: the signals that are held back while it works.
  void Run(const sigset_t& zMask, const volatile sig_atomic_t& zIsAskedToStop);

 private:
  using Clock = std::chrono::steady_clock;
  void Wait(const sigset_t& zMask);
  std::chrono::milliseconds LongestWait() const;
  bool ReceiveAll();
  void ShowPending();
  void ReadInputLines();
  void ChangeInput(const std::string& zLine);

  PseudoTerminal& terminal_;
  SoundOutput* const soundOutput_;
  VirtualChip chip_;
  bool isPendingShown_ = false;
  Clock::time_point lastArrival_{};
  bool isInputOpen_ = true;
  std::string inputLine_;  // not yet whole
};

}  // namespace loquitor
