#pragma once

#include <signal.h>

#include <chrono>
#include <string>

#include "sim/pseudo_terminal.h"
#include "sim/sound_output.h"
#include "sim/virtual_chip.h"

namespace loquitor {

/// A run of the virtual Orvatone. Feeds the chip with the bytes from the pseudo-terminal, prints
/// and plays what they mean, and changes the chip's inputs by the lines of standard input.
class Session {
 public:
  /// Both must outlive the session. `zSound` may be null.
  Session(PseudoTerminal& zTerminal, SoundOutput* zSound)
      : terminal_(zTerminal), soundOutput_(zSound) {}

  /// Runs until a signal handler sets `zIsAskedToStop`, or until standard output fails. `zMask` is
  /// the signal mask while it waits; it must let in the signals of that handler. Throws
  /// std::system_error when the pseudo-terminal fails.
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
  std::string inputLine_;  // the beginning of the next line
};

}  // namespace loquitor
