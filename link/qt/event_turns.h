#pragma once

#include <QTimer>
#include <functional>

#include "link/code_sender.h"

namespace loquitor {

/// The turns of the Qt event loop that a SenderHost gives to the sender; see there for each of the
/// three. Needs a QCoreApplication.
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
