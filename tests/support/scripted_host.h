#pragma once

#include <QCoreApplication>

#include "tests/support/turn_host.h"

namespace loquitor::testing {

/// The main window's side of sending, on the real event loop, for tests of other windows.
class ScriptedHost : public TurnHost {
 public:
  void LetEventsRun(UserInput zInput) override {
    QCoreApplication::processEvents(FlagsFor(zInput));
  }
  void WaitForEvents(UserInput zInput) override {
    QCoreApplication::processEvents(FlagsFor(zInput), 1);
  }

 private:
  static QEventLoop::ProcessEventsFlags FlagsFor(UserInput zInput) {
    return zInput == UserInput::Now ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
  }
};

}  // namespace loquitor::testing
