#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "ui/windows/pressed_control.h"

namespace loquitor {

/// Shows the user, at the control that was used last, why a send failed. Needs a QApplication.
class FailureHint {
 public:
  FailureHint();

  /// Shows `zText` as a hint as soon as no mouse button is pressed, because a release would hide
  /// it. Failures until then show one hint, with the last text.
  void Tell(const QString& zText);

 private:
  void ShowWhenReleased();

  PressedControl pressed_;
  QPointer<QWidget> control_;
  QString text_;
  QTimer wait_;
};

}  // namespace loquitor
