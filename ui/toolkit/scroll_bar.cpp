#include "ui/toolkit/scroll_bar.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "ui/toolkit/colours.h"
#include "ui/toolkit/focus_reason.h"

namespace loquitor {

ScrollBar::ScrollBar(int zMaximum, int zPage, int zValue, QWidget* zParent)
    : QScrollBar(Qt::Horizontal, zParent) {
  setRange(0, zMaximum);
  setSingleStep(1);
  setPageStep(zPage);
  setValue(zValue);
  setFocusPolicy(Qt::WheelFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  connect(this, &QScrollBar::sliderPressed, this, &ScrollBar::OnPressed);
  connect(this, &QScrollBar::sliderReleased, this, &ScrollBar::OnReleased);
  connect(this, &QScrollBar::actionTriggered, this,
          [this](int zAction) { isDragStep_ = zAction == SliderMove && isSliderDown(); });
  connect(this, &QScrollBar::valueChanged, this, &ScrollBar::OnValueChanged);
}

void ScrollBar::OnPressed() {
  valueAtPress_ = value();
}

void ScrollBar::OnValueChanged() {
  // A drag announces each of its steps as an action just before the value changes; code does not.
  if (std::exchange(isDragStep_, false)) {
    emit Scroll();
    return;
  }
  valueAtPress_ = value();
  emit Change();
}

void ScrollBar::OnReleased() {
  if (value() != valueAtPress_) {
    valueAtPress_ = value();
    emit Change();
  }
}

void ScrollBar::focusInEvent(QFocusEvent* zEvent) {
  QScrollBar::focusInEvent(zEvent);
  update();
  if (IsMoveAmongControls(zEvent->reason())) {
    emit GotFocus();
  }
}

void ScrollBar::focusOutEvent(QFocusEvent* zEvent) {
  QScrollBar::focusOutEvent(zEvent);
  update();
}

void ScrollBar::wheelEvent(QWheelEvent* zEvent) {
  if (!hasFocus()) {
    setFocus(Qt::MouseFocusReason);
  }
  QScrollBar::wheelEvent(zEvent);
}

void ScrollBar::keyPressEvent(QKeyEvent* zEvent) {
  // Qt turns all keys of a scroll bar round, which makes these two go the wrong way.
  switch (zEvent->key()) {
    case Qt::Key_Left:
      triggerAction(SliderSingleStepSub);
      break;
    case Qt::Key_Right:
      triggerAction(SliderSingleStepAdd);
      break;
    default:
      QScrollBar::keyPressEvent(zEvent);
  }
}

void ScrollBar::paintEvent(QPaintEvent* zEvent) {
  QScrollBar::paintEvent(zEvent);
  if (hasFocus()) {
    QPainter painter(this);
    DrawFocusMark(painter, rect(), palette());
  }
}

}  // namespace loquitor
