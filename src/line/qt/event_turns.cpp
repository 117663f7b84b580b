#include "line/qt/event_turns.h"

#include <QCoreApplication>

namespace loquitor {

namespace {

// A queue of sixteen bytes lasts 8 ms at 19200 bits per second. A tick every 2 ms keeps it filled.
constexpr int TickMilliseconds = 2;

QEventLoop::ProcessEventsFlags FlagsFor(UserInput zInput) {
  return zInput == UserInput::Now ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents;
}

}  // namespace

EventTurns::EventTurns(std::function<void()> zOnTick) {
  ticks_.setInterval(TickMilliseconds);
  ticks_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&ticks_, &QTimer::timeout, &ticks_, std::move(zOnTick));
}

void EventTurns::LetEventsRun(UserInput zInput) {
  QCoreApplication::processEvents(FlagsFor(zInput));
}

void EventTurns::WaitForEvents(UserInput zInput) {
  Q_ASSERT(ticks_.isActive());
  // When this is called from a posted event, the dispatcher does not know of the events that were
  // posted after it. It would leave them until another one is posted.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents(FlagsFor(zInput) | QEventLoop::WaitForMoreEvents);
}

void EventTurns::SetTicking(bool zIsOn) {
  if (zIsOn) {
    ticks_.start();
  } else {
    ticks_.stop();
  }
}

}  // namespace loquitor
