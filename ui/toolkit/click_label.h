#pragma once

#include <QColor>
#include <QLabel>
#include <QTimer>

namespace loquitor {

/// A label that is clicked and double-clicked. A double click raises Click for its first press and
/// then DoubleClick; its second press raises no second Click. The handler of Click may let events
/// run: the second press is seen while it does. Drawn in the window-background and window-text
/// colours of the desktop, captions as they are ("&&" is not treated).
class ClickLabel : public QLabel {
  Q_OBJECT
 public:
  ClickLabel(const QString& zCaption, QWidget* zParent);

  /// For a label whose click opens a box, which would swallow the second press of a double click:
  /// the click is held back for the desktop's double-click interval, to learn whether a second
  /// press comes. Then Click is raised and, behind it, DoubleClick if there was one.
  void SetDelaysClick(bool zDelays) { delaysClick_ = zDelays; }

  /// Marks it as the current member of its group (keyboard): a focus rectangle.
  void SetCurrent(bool zIsCurrent);

  /// The background; an invalid colour gives the normal one back. The text colour follows so that
  /// it stays readable.
  void SetBackground(const QColor& zColor);

 signals:
  void Click();
  void DoubleClick();

 protected:
  void mouseReleaseEvent(QMouseEvent* zEvent) override;
  void mousePressEvent(QMouseEvent* zEvent) override;
  void mouseDoubleClickEvent(QMouseEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  QTimer delay_;
  bool isPressed_ = false;
  bool isCurrent_ = false;
  bool delaysClick_ = false;
};

}  // namespace loquitor
