#include "ui/chip/chip_write.h"

#include <QWidget>
#include <utility>

namespace loquitor {
namespace {

constexpr int WatchInterval = 50;  // milliseconds

}  // namespace

ChipWrite::ChipWrite(QWidget* zWindow, CodeSender& zSender, SendTicket& zTicket,
                     QWidgetList zControls)
    : QObject(zWindow),
      window_(zWindow),
      sender_(zSender),
      ticket_(zTicket),
      controls_(std::move(zControls)) {
  watch_.setInterval(WatchInterval);
  connect(&watch_, &QTimer::timeout, this, &ChipWrite::WatchEarlierWrite);
}

void ChipWrite::ShowEarlierWrite() {
  if (IsGoingOut()) {
    SetControlsEnabled(false);
    window_->setCursor(Qt::WaitCursor);
    watch_.start();
  }
}

void ChipWrite::WatchEarlierWrite() {
  if (!IsGoingOut()) {
    watch_.stop();
    window_->unsetCursor();
    SetControlsEnabled(true);
  }
}

void ChipWrite::Send(std::string_view zCommand) {
  SetControlsEnabled(false);
  sender_.SendCodesToOrvatone(zCommand, false, &ticket_);
  SetControlsEnabled(true);
}

/// A send whose last byte has gone out is still under way while a window that was opened meanwhile
/// holds up its loop.
bool ChipWrite::IsGoingOut() const {
  return sender_.IsUnderWay(ticket_) && !sender_.PendingOutput().empty();
}

void ChipWrite::SetControlsEnabled(bool zIsEnabled) {
  for (QWidget* control : controls_) {
    control->setEnabled(zIsEnabled);
  }
}

}  // namespace loquitor
