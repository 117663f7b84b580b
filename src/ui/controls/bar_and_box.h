#pragma once

#include <QObject>

#include "ui/controls/scroll_bar.h"
#include "ui/controls/text_box.h"

namespace loquitor {

/// A scroll bar that holds a value, and a text box that shows the value and takes typed ones. The
/// box shows each new value of the bar. What the user types reaches the bar only by TakeText.
class BarAndBox : public QObject {
  Q_OBJECT
 public:
  BarAndBox(ScrollBar* zBar, TextBox* zBox, QObject* zParent);

  int Value() const { return bar_->value(); }
  void SetValue(int zValue) { bar_->setValue(zValue); }

  /// Sets the bar to the number at the start of the box's text, made whole (halves to the even
  /// neighbour). A number outside the bar's range is replaced in the box by the nearest one inside.
  /// When that does not move the bar, the box keeps the text as typed.
  void TakeText();

 signals:
  /// The bar has moved: by the user, also during a drag, or by code. The box shows its value.
  void Changed();

  /// The focus has left the box for another control. The text is not yet taken.
  void BoxLeft();

 private:
  ScrollBar* bar_;
  TextBox* box_;
};

}  // namespace loquitor
