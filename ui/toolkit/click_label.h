#pragma once

#include <QColor>
#include <QLabel>

namespace loquitor {

/// A label that is clicked and double-clicked. A double click raises Click for its first press and
/// then DoubleClick; its second press raises no second Click. Drawn in the window-background and
/// window-text colours of the desktop, captions as they are ("&&" is not treated).
class ClickLabel : public QLabel {
  Q_OBJECT
 public:
  ClickLabel(const QString& zCaption, QWidget* zParent);

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
  bool isPressed_ = false;
  bool isCurrent_ = false;
};

}  // namespace loquitor
