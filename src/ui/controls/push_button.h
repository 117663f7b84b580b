#pragma once

#include <QKeySequence>
#include <QPushButton>

namespace loquitor {

/// A button that Enter never presses. Its caption is broken into lines and narrowed until it fits;
/// `text()` is the caption as it was given.
class PushButton : public QPushButton {
  Q_OBJECT
 public:
  PushButton(const QString& zCaption, QWidget* zParent);

  /// Makes `zKey` press the button from anywhere in its window. The focus moves to the button
  /// first, as it does when the button is clicked. The tooltip that the user sees ends with the
  /// key; `toolTip()` is without it. Call this once at most.
  void SetKey(const QKeySequence& zKey);

 protected:
  bool event(QEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;

 private:
  QKeySequence key_;
};

}  // namespace loquitor
