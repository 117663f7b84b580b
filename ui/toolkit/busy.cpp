#include "ui/toolkit/busy.h"

#include <QCoreApplication>
#include <QCursor>
#include <utility>
#include <vector>

namespace loquitor {
namespace {

/// Events run within each other. Clicks that come faster than they are handled would otherwise nest
/// until the stack is full.
constexpr int DeepestTurn = 8;

/// The hourglass over one window: how many Busy objects ask for it and what was there before.
class Hourglass : public QObject {
 public:
  explicit Hourglass(QWidget* zWindow) : QObject(zWindow) {}

  static Hourglass* Of(QWidget* zWindow) {
    for (QObject* child : zWindow->children()) {
      if (auto* hourglass = dynamic_cast<Hourglass*>(child)) {
        return hourglass;
      }
    }
    return new Hourglass(zWindow);
  }

  void Show() {
    if (depth_++ > 0) {
      return;
    }
    auto* window = static_cast<QWidget*>(parent());
    Cover(window);
    for (QWidget* child : window->findChildren<QWidget*>()) {
      if (child->testAttribute(Qt::WA_SetCursor) && !child->isWindow()) {
        Cover(child);
      }
    }
  }

  void Hide() {
    if (--depth_ > 0) {
      return;
    }
    for (const Covered& covered : std::exchange(covered_, {})) {
      if (!covered.widget) {
        continue;
      }
      if (covered.hadCursor) {
        covered.widget->setCursor(covered.cursor);
      } else {
        covered.widget->unsetCursor();
      }
    }
  }

  void LetEventsRun() {
    if (turns_ == DeepestTurn) {
      return;  // those that run around this one go on to what is pending
    }
    const QPointer<Hourglass> self = this;
    ++turns_;
    // The dispatcher alone may leave what was posted for a later turn when it has something else.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    if (self) {
      --turns_;
    }
  }

 private:
  struct Covered {
    QPointer<QWidget> widget;
    bool hadCursor;
    QCursor cursor;
  };

  void Cover(QWidget* zWidget) {
    covered_.push_back({zWidget, zWidget->testAttribute(Qt::WA_SetCursor), zWidget->cursor()});
    zWidget->setCursor(Qt::WaitCursor);
  }

  int depth_ = 0;
  int turns_ = 0;
  std::vector<Covered> covered_;
};

}  // namespace

Busy::Busy(QWidget* zWindow, QWidget* zButton) : window_(zWindow) {
  Hourglass::Of(zWindow)->Show();
  if (zButton != nullptr && zButton->isEnabled()) {
    button_ = zButton;
    hadFocus_ = zButton->hasFocus();
    if (hadFocus_) {
      zButton->clearFocus();  // else disabling it would push the focus on to its neighbour
    }
    zButton->setEnabled(false);
  }
  Hourglass::Of(zWindow)->LetEventsRun();
}

Busy::~Busy() {
  if (window_) {
    Hourglass::Of(window_)->Hide();
    Hourglass::Of(window_)->LetEventsRun();
  }
  if (button_) {
    button_->setEnabled(true);
    if (hadFocus_ && button_->window()->focusWidget() == nullptr) {
      button_->setFocus(Qt::OtherFocusReason);
    }
  }
}

}  // namespace loquitor
