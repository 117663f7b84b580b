#pragma once

#include <QTimer>
#include <functional>

#include "line/code_sender.h"

namespace loquitor {

/// The last three functions of SenderHost, on the Qt event loop. Needs a QCoreApplication.
class EventTurns {
 public:
  /// `zOnTick` must call CodeSender::Tick.
  explicit EventTurns(std::function<void()> zOnTick);

  void LetEventsRun(UserInput zInput);

  /// To be called only while ticking is on: the tick ends a wait in which nothing else happens.
  void WaitForEvents(UserInput zInput);

  void SetTicking(bool zIsOn);

 private:
  QTimer ticks_;
};

}  // namespace loquitor
