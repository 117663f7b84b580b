#include "ui/controls/click_label.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleHints>
#include <algorithm>

#include "ui/controls/colours.h"
#include "ui/controls/keys.h"

namespace loquitor {
namespace {

/// Whether `zReceiver` acts on such an event. Buttons act on the release of the mouse, all other
/// widgets on the press.
bool IsAction(const QObject* zReceiver, QEvent::Type zType) {
  switch (zType) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      return true;
    case QEvent::MouseButtonPress:
      return zReceiver->isWidgetType() &&
             qobject_cast<const QAbstractButton*>(zReceiver) == nullptr;
    case QEvent::MouseButtonRelease:
      return qobject_cast<const QAbstractButton*>(zReceiver) != nullptr;
    default:
      return false;
  }
}

}  // namespace

ClickLabel::ClickLabel(const QString& zCaption, QWidget* zParent) : QAbstractButton(zParent) {
  setText(zCaption);
  setFocusPolicy(Qt::NoFocus);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setAutoFillBackground(true);
  heldClick_.setSingleShot(true);
  connect(&heldClick_, &QTimer::timeout, this, &ClickLabel::RaiseHeldClick);
}

void ClickLabel::ShareTabStop() {
  setAutoExclusive(true);  // the arrow keys move among the buttons of such a group
  connect(this, &ClickLabel::clicked, this, &ClickLabel::TakeTabStop);
  connect(this, &ClickLabel::DoubleClick, this, &ClickLabel::TakeTabStop);
  const auto siblings = parentWidget()->findChildren<ClickLabel*>(Qt::FindDirectChildrenOnly);
  const bool isFirst = std::none_of(siblings.begin(), siblings.end(), [](const ClickLabel* zLabel) {
    return zLabel->focusPolicy() != Qt::NoFocus;
  });
  if (isFirst) {
    setFocusPolicy(Qt::TabFocus);
  }
}

void ClickLabel::TakeTabStop() {
  for (auto* label : parentWidget()->findChildren<ClickLabel*>(Qt::FindDirectChildrenOnly)) {
    label->setFocusPolicy(label == this ? Qt::TabFocus : Qt::NoFocus);
  }
}

void ClickLabel::SetBackground(const QColor& zColor) {
  SetColours(this, QPalette::Base, QPalette::Text, zColor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* zEvent) {
  if (holdsClick_ && isDown() && zEvent->button() == Qt::LeftButton) {
    setDown(false);  // so that the release does not click
    HoldClick();
  }
  QAbstractButton::mouseReleaseEvent(zEvent);
}

void ClickLabel::HoldClick() {
  heldClick_.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  QCoreApplication::instance()->installEventFilter(this);
}

void ClickLabel::RaiseHeldClick() {
  heldClick_.stop();
  QCoreApplication::instance()->removeEventFilter(this);
  click();
}

bool ClickLabel::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (zWatched != this && heldClick_.isActive() && IsAction(zWatched, zEvent->type())) {
    const QPointer<QObject> receiver = zWatched;
    RaiseHeldClick();
    return !receiver;  // events ran during the click, and may have destroyed it
  }
  return false;
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent* zEvent) {
  if (zEvent->button() != Qt::LeftButton) {
    return;
  }
  const QPointer<ClickLabel> self = this;
  if (heldClick_.isActive()) {
    RaiseHeldClick();
  }
  if (self) {
    emit DoubleClick();
  }
}

void ClickLabel::keyPressEvent(QKeyEvent* zEvent) {
  const bool isDouble = zEvent->key() == Qt::Key_Insert ||
                        (IsEnter(*zEvent) && zEvent->modifiers().testFlag(Qt::ControlModifier));
  if (!isDouble && !IsEnter(*zEvent)) {
    QAbstractButton::keyPressEvent(zEvent);
    return;
  }
  if (zEvent->isAutoRepeat()) {
    return;  // a key that is held down acts once
  }
  if (isDouble) {
    emit DoubleClick();
  } else {
    click();
  }
}

void ClickLabel::focusInEvent(QFocusEvent* zEvent) {
  QAbstractButton::focusInEvent(zEvent);
  if (autoExclusive()) {
    TakeTabStop();
  }
}

void ClickLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setLayoutDirection(layoutDirection());
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  if (hasFocus()) {
    DrawFocusMark(painter, rect(), palette());
  }
}

}  // namespace loquitor
