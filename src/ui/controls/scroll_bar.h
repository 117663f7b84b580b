#pragma once

#include <QScrollBar>

namespace loquitor {

/// A horizontal scroll bar with arrow step 1. `value()` is the thumb's present position at any
/// time, also during a drag.
class ScrollBar : public QScrollBar {
  Q_OBJECT
 public:
  /// The range is 0 to `zMaximum`, the page step `zPage`. The first value, `zValue`, raises no
  /// event.
  ScrollBar(int zMaximum, int zPage, int zValue, QWidget* zParent);

 signals:
  /// The thumb is being dragged and has moved.
  void Scroll();

  /// The value has changed: by arrows, page, wheel or keys, by code (also during a drag), or by a
  /// drag, once, when the thumb is released away from where the drag began. Setting the present
  /// value raises nothing.
  void Change();

  /// The focus has come from another control. Raised before the press or the turn of the wheel that
  /// brought it moves anything. If the mouse has pressed the thumb and the handler moves it, a drag
  /// continues from the thumb's new place.
  void GotFocus();

 protected:
  void focusInEvent(QFocusEvent* zEvent) override;
  void focusOutEvent(QFocusEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  void mousePressEvent(QMouseEvent* zEvent) override;
  void mouseMoveEvent(QMouseEvent* zEvent) override;
  void mouseReleaseEvent(QMouseEvent* zEvent) override;
  void wheelEvent(QWheelEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  void OnValueChanged();
  void OnPressed();
  void OnReleased();

  QRect Thumb() const;
  QMouseEvent AtThumb(const QMouseEvent& zEvent) const;

  QRect thumbBeforeFocus_;  ///< where it was when a press of the mouse brought the focus
  QPoint thumbMove_;        ///< how far GotFocus then moved it away from the mouse
  int valueAtPress_ = 0;
  bool isDragStep_ = false;
};

}  // namespace loquitor
