#pragma once

#include <QPointer>
#include <QWidget>

namespace loquitor {

/// While it lives: the hourglass pointer over the window and `zButton` (may be null) disabled; the
/// focus returns to the button afterwards if the user has not moved it. Pending events run at its
/// beginning and at its end, unless that would nest them deeply. Nests, also out of order; safe
/// when the window goes first.
class Busy {
 public:
  explicit Busy(QWidget* zWindow, QWidget* zButton = nullptr);
  ~Busy();
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  QPointer<QWidget> window_;
  QPointer<QWidget> button_;
  bool hadFocus_ = false;
};

}  // namespace loquitor
