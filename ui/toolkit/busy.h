#pragma once

#include <QPointer>
#include <QWidget>

namespace loquitor {

/// While it lives: the hourglass pointer over the window and `zButton` (may be null) disabled.
/// Pending events run at its beginning and at its end. Nests; safe when the window goes first.
class Busy {
 public:
  explicit Busy(QWidget* zWindow, QWidget* zButton = nullptr);
  ~Busy();
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  QPointer<QWidget> window_;
  QPointer<QWidget> button_;
};

}  // namespace loquitor
