#pragma once

#include <QPushButton>

namespace loquitor {

/// A button that Enter never presses and whose caption breaks into several lines, and is narrowed,
/// as its place asks for. `text()` is the caption as it was given.
class PushButton : public QPushButton {
  Q_OBJECT
 public:
  PushButton(const QString& zCaption, QWidget* zParent);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
};

}  // namespace loquitor
