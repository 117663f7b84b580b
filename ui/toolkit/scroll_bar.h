#pragma once

#include <QScrollBar>

namespace loquitor {

/// A horizontal scroll bar with the events that the windows are written for. `value()` is the
/// thumb's present position at any time, also in a drag; arrow step 1.
class ScrollBar : public QScrollBar {
  Q_OBJECT
 public:
  /// `zMaximum`, `zPage`: range 0 to zMaximum, page step; `zValue`: the value it is created with,
  /// which raises no event.
  ScrollBar(int zMaximum, int zPage, int zValue, QWidget* zParent);

 signals:
  /// The thumb is being dragged and has moved.
  void Scroll();

  /// The value has changed: by arrows, page, wheel or keys, by code (also in a drag), or by a drag
  /// at its end, once, when the thumb is released away from where the drag began. Setting the value
  /// that stands raises nothing.
  void Change();

  /// The focus has come in: by mouse (before the press moves anything), Tab or wheel (before it
  /// turns anything).
  void GotFocus();

 protected:
  void focusInEvent(QFocusEvent* zEvent) override;
  void focusOutEvent(QFocusEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  void wheelEvent(QWheelEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  void OnValueChanged();
  void OnPressed();
  void OnReleased();

  int valueAtPress_ = 0;
  bool isDragStep_ = false;
};

}  // namespace loquitor
