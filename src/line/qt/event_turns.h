#pragma once

#include <QTimer>
#include <functional>

#include "line/code_sender.h"

namespace loquitor {

/// Three functions of SenderHost on the Qt event loop; see there. Needs a QCoreApplication.
class EventTurns {
 public:
  /// `zOnTick` calls CodeSender::Tick.
  explicit EventTurns(std::function<void()> zOnTick);

  void LetEventsRun(UserInput zInput);

  /// Only while ticking: the tick ends a wait in which nothing else happens.
  void WaitForEvents(UserInput zInput);

  void SetTicking(bool zIsOn);

 private:
  QTimer ticks_;
};

}  // namespace loquitor
