#include "ui/controls/scroll_bar.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>
#include <utility>

#include "ui/controls/colours.h"
#include "ui/controls/focus_reason.h"

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
  thumbBeforeFocus_ = zEvent->reason() == Qt::MouseFocusReason ? Thumb() : QRect();
  if (IsMoveAmongControls(zEvent->reason())) {
    emit GotFocus();
  }
}

void ScrollBar::focusOutEvent(QFocusEvent* zEvent) {
  QScrollBar::focusOutEvent(zEvent);
  update();
}

QRect ScrollBar::Thumb() const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}

QMouseEvent ScrollBar::AtThumb(const QMouseEvent& zEvent) const {
  return {zEvent.type(),           zEvent.position() + thumbMove_,
          zEvent.globalPosition(), zEvent.button(),
          zEvent.buttons(),        zEvent.modifiers()};
}

void ScrollBar::mousePressEvent(QMouseEvent* zEvent) {
  const QRect before = std::exchange(thumbBeforeFocus_, QRect());
  const bool isOnThumb = before.contains(zEvent->position().toPoint());
  thumbMove_ = isOnThumb ? Thumb().topLeft() - before.topLeft() : QPoint();
  QMouseEvent press = AtThumb(*zEvent);
  QScrollBar::mousePressEvent(&press);
}

void ScrollBar::mouseMoveEvent(QMouseEvent* zEvent) {
  QMouseEvent move = AtThumb(*zEvent);
  QScrollBar::mouseMoveEvent(&move);
}

void ScrollBar::mouseReleaseEvent(QMouseEvent* zEvent) {
  QMouseEvent release = AtThumb(*zEvent);
  QScrollBar::mouseReleaseEvent(&release);
}

void ScrollBar::wheelEvent(QWheelEvent* zEvent) {
  if (!hasFocus()) {
    setFocus(Qt::MouseFocusReason);
  }
  thumbBeforeFocus_ = {};
  QScrollBar::wheelEvent(zEvent);
}

void ScrollBar::keyPressEvent(QKeyEvent* zEvent) {
  // Qt reverses all keys of a scroll bar, so these two would go the wrong way.
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
