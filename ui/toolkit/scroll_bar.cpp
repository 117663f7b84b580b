#include "ui/toolkit/scroll_bar.h"

#include <QFocusEvent>
#include <QPainter>
#include <utility>

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
  connect(this, &QScrollBar::sliderMoved, this, [this] { isDragStep_ = true; });
  connect(this, &QScrollBar::valueChanged, this, &ScrollBar::OnValueChanged);
}

void ScrollBar::OnPressed() {
  valueAtPress_ = value();
}

void ScrollBar::OnValueChanged() {
  // A drag announces each of its steps by sliderMoved just before the value changes.
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

void ScrollBar::paintEvent(QPaintEvent* zEvent) {
  QScrollBar::paintEvent(zEvent);
  if (hasFocus()) {
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }
}

}  // namespace loquitor
