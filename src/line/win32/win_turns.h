#pragma once

#include <functional>
#include <vector>

#include "line/code_sender.h"

namespace loquitor {

/// The last three functions of SenderHost, for a program without windows. It has no user input, so
/// UserInput makes no difference.
class WinTurns {
 public:
  /// `zOnTick` must call CodeSender::Tick.
  explicit WinTurns(std::function<void()> zOnTick);
  ~WinTurns();
  WinTurns(const WinTurns&) = delete;
  WinTurns& operator=(const WinTurns&) = delete;

  /// The next call of LetEventsRun or WaitForEvents runs `zAction`. For WinSerialPort.
  void RunLater(std::function<void()> zAction);

  void LetEventsRun(UserInput zInput);

  /// Waits one tick, runs the actions, and calls `zOnTick` while ticking is on.
  void WaitForEvents(UserInput zInput);

  void SetTicking(bool zIsOn) { isTicking_ = zIsOn; }

 private:
  std::function<void()> onTick_;
  std::vector<std::function<void()>> later_;
  bool isTicking_ = false;
};

}  // namespace loquitor
