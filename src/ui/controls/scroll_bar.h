#pragma once

#include <QScrollBar>

namespace loquitor {

/// A horizontal scroll bar with arrow step 1. `value()` is the thumb's present position at any
/// time, also during a drag.
class ScrollBar : public QScrollBar {
  Q_OBJECT
 public:
  /// `zMaximum`, `zPage`: range 0 to zMaximum, page step; `zValue`: the value it is created with,
  /// which raises no event.
  ScrollBar(int zMaximum, int zPage, int zValue, QWidget* zParent);

 signals:
  /// The thumb is being dragged and has moved.
  void Scroll();

  /// The value has changed: by arrows, page, wheel or keys, by code (also during a drag), or by a
  /// drag, once, when the thumb is released away from where the drag began. Setting the present
  /// value raises nothing.
  void Change();

  /// The focus has come in: by mouse (before the press moves anything), Tab or wheel (before it
  /// turns anything). If the handler moves the thumb that the mouse has pressed, a drag goes on
  /// from where the thumb is then.
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

  QRect thumbBeforeFocus_;  ///< where a press that brings the focus found it
  QPoint thumbMove_;        ///< how far it was moved away from under that press
  int valueAtPress_ = 0;
  bool isDragStep_ = false;
};

}  // namespace loquitor
