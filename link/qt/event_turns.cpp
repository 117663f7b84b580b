#include "link/qt/event_turns.h"

#include <QCoreApplication>

namespace loquitor {

namespace {

// A queue of sixteen bytes lasts 8 ms at 19200 bits a second; looking every 2 ms keeps it filled.
constexpr int TickMilliseconds = 2;

}  // namespace

EventTurns::EventTurns(std::function<void()> zOnTick) {
  ticks_.setInterval(TickMilliseconds);
  ticks_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&ticks_, &QTimer::timeout, &ticks_, std::move(zOnTick));
}

void EventTurns::LetEventsRun() {
  QCoreApplication::processEvents();
}

void EventTurns::WaitForEvents() {
  Q_ASSERT(ticks_.isActive());
  // Where this is called out of a posted event, the dispatcher does not know of those behind it and
  // would leave them until another one is posted.
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void EventTurns::SetTicking(bool zIsOn) {
  if (zIsOn) {
    ticks_.start();
  } else {
    ticks_.stop();
  }
}

}  // namespace loquitor
