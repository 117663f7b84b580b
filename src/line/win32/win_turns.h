#pragma once

#include <functional>
#include <vector>

#include "line/code_sender.h"

namespace loquitor {

/// Three functions of SenderHost for a program without windows; see there. Nobody clicks or types
/// in it, so UserInput makes no difference.
class WinTurns {
 public:
  /// `zOnTick` calls CodeSender::Tick.
  explicit WinTurns(std::function<void()> zOnTick);
  ~WinTurns();
  WinTurns(const WinTurns&) = delete;
  WinTurns& operator=(const WinTurns&) = delete;

  /// Has the next call of LetEventsRun or WaitForEvents run `zAction`. For WinSerialPort.
  void RunLater(std::function<void()> zAction);

  void LetEventsRun(UserInput zInput);

  /// Ticks, if that is on.
  void WaitForEvents(UserInput zInput);

  void SetTicking(bool zIsOn) { isTicking_ = zIsOn; }

 private:
  std::function<void()> onTick_;
  std::vector<std::function<void()>> later_;
  bool isTicking_ = false;
};

}  // namespace loquitor
