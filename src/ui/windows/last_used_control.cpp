#include "ui/windows/last_used_control.h"

#include <QApplication>
#include <QInputEvent>

namespace loquitor {

LastUsedControl::LastUsedControl() {
  qApp->installEventFilter(this);
}

QWidget* LastUsedControl::Get() const {
  if (control_ && control_->isVisible()) {
    return control_;
  }
  QWidget* focused = QApplication::focusWidget();
  return focused != nullptr ? focused : QApplication::activeWindow();
}

bool LastUsedControl::eventFilter(QObject* zWatched, QEvent* zEvent) {
  switch (zEvent->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      control_.clear();
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
      if (zWatched->isWidgetType()) {
        TakeFirst(static_cast<QWidget*>(zWatched), static_cast<QInputEvent*>(zEvent)->timestamp());
      }
      break;
    default:
      break;
  }
  return false;
}

/// Takes the first widget that gets a press. Qt passes a press that the widget ignores to the
/// widgets around it, with the same timestamp.
void LastUsedControl::TakeFirst(QWidget* zWidget, quint64 zTimestamp) {
  if (!control_ || zTimestamp != timestamp_) {
    control_ = zWidget;
    timestamp_ = zTimestamp;
  }
}

}  // namespace loquitor
