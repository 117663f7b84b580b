#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QTimer>

namespace loquitor {

/// A label that can be clicked and double-clicked, in the background and text colours of the
/// desktop's text boxes. A double click raises `clicked` for its first press and then DoubleClick.
/// The handler of `clicked` may let events run: the second press is seen while it does.
///
/// While it has the focus, Space and Enter click it, and Insert and Ctrl+Enter raise DoubleClick
/// alone. It takes no focus unless ShareTabStop is called or a derived class allows it.
class ClickLabel : public QAbstractButton {
  Q_OBJECT
 public:
  ClickLabel(const QString& zCaption, QWidget* zParent);

  /// Makes this one of the labels of its parent that share a Tab stop. Tab visits the one of them
  /// that was used last, at first the first one. The arrow keys move among them.
  void ShareTabStop();

  /// With true, `clicked` is raised only after the desktop's double-click interval. This is for a
  /// click that opens a box, which would swallow the second press of a double click. If anything
  /// else is pressed in the program meanwhile, `clicked` is raised before that acts. Clicks by key
  /// do not wait.
  void SetHoldsClick(bool zHolds) { holdsClick_ = zHolds; }

  /// The background; an invalid colour gives the normal one back. The text colour follows so that
  /// it stays readable.
  void SetBackground(const QColor& zColor);

  QSize sizeHint() const override { return size(); }

 signals:
  void DoubleClick();

 protected:
  void mouseReleaseEvent(QMouseEvent* zEvent) override;
  void mouseDoubleClickEvent(QMouseEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  void focusInEvent(QFocusEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void HoldClick();
  void RaiseHeldClick();
  void TakeTabStop();

  QTimer heldClick_;
  bool holdsClick_ = false;
};

}  // namespace loquitor
