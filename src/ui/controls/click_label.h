#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QTimer>

namespace loquitor {

/// A label that is clicked and double-clicked, in the window-background and window-text colours of
/// the desktop. A double click raises `clicked` for its first press and then DoubleClick. The
/// handler of `clicked` may let events run: the second press is seen while it does.
///
/// With the focus, Space and Enter click it, Insert and Ctrl+Enter raise DoubleClick alone. The
/// mouse gives it no focus.
class ClickLabel : public QAbstractButton {
  Q_OBJECT
 public:
  ClickLabel(const QString& zCaption, QWidget* zParent);

  /// The labels of one parent that share a Tab stop are visited by Tab once, at the one that was
  /// used last; the arrow keys move among them.
  void ShareTabStop();

  /// For a label whose click opens a box, which would swallow the second press of a double click:
  /// `clicked` waits for the desktop's double-click interval. It is raised at once when anything
  /// else is pressed in the program, before that acts.
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
