#pragma once

#include <QCoreApplication>

#include "tests/support/turn_host.h"

namespace loquitor::testing {

/// A host on the real event loop, in place of the main window, for tests of other windows.
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
