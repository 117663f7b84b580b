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

  /// A key that presses the button from anywhere in its window, as a click does: the focus moves to
  /// the button first. The key is shown after the tooltip; `toolTip()` does not hold it. To be
  /// called once.
  void SetKey(const QKeySequence& zKey);

 protected:
  bool event(QEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;

 private:
  QKeySequence key_;
};

}  // namespace loquitor
