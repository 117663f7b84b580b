#pragma once

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include "ui/windows/last_used_control.h"

namespace loquitor {

/// Tells the user why a send failed. Needs a QApplication.
class FailureHint {
 public:
  FailureHint();

  /// Shows `zText` as a hint at the control that was used last. The hint comes as soon as no mouse
  /// button is pressed, because a release would hide it. Of several calls until then only the last
  /// one shows its text.
  void Tell(const QString& zText);

 private:
  void ShowWhenReleased();

  LastUsedControl lastUsed_;
  QPointer<QWidget> control_;
  QString text_;
  QTimer wait_;
};

}  // namespace loquitor
