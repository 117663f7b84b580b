#include "ui/windows/busy.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

namespace loquitor {
namespace {

/// Without a limit, clicks that come faster than they are handled would nest until the stack is
/// full.
constexpr int DeepestTurn = 8;

/// Counts the work that nests in one window, and shows the hourglass over it. Belongs to the
/// window.
class WorkCount : public QObject {
 public:
  explicit WorkCount(QWidget* zWindow) : QObject(zWindow) {}

  static WorkCount* Of(QWidget* zWindow) {
    for (QObject* child : zWindow->children()) {
      if (auto* count = dynamic_cast<WorkCount*>(child)) {
        return count;
      }
    }
    return new WorkCount(zWindow);
  }

  void Begin() {
    if (depth_++ == 0) {
      Window()->setCursor(Qt::WaitCursor);
    }
    LetEventsRun();
  }

  void End() {
    if (--depth_ == 0) {
      Window()->unsetCursor();
    }
    LetEventsRun();
  }

 private:
  QWidget* Window() const { return static_cast<QWidget*>(parent()); }

  void LetEventsRun() {
    if (turns_ == DeepestTurn) {
      return;  // the work around this one lets them run
    }
    const QPointer<QObject> self = this;
    ++turns_;
    // When the dispatcher has other work, it alone may leave posted events for a later turn.
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    if (self) {
      --turns_;
    }
  }

  int depth_ = 0;
  int turns_ = 0;
};

/// Keeps a button disabled while it lives. The button may be destroyed before it.
class DisabledButton {
 public:
  explicit DisabledButton(QWidget* zButton) {
    if (zButton == nullptr || !zButton->isEnabled()) {
      return;
    }
    button_ = zButton;
    hadFocus_ = zButton->hasFocus();
    if (hadFocus_) {
      zButton->clearFocus();  // otherwise disabling it would move the focus to its neighbour
    }
    zButton->setEnabled(false);
  }
  ~DisabledButton() {
    if (!button_) {
      return;
    }
    button_->setEnabled(true);
    if (hadFocus_ && button_->window()->focusWidget() == nullptr) {
      button_->setFocus(Qt::OtherFocusReason);
    }
  }
  DisabledButton(const DisabledButton&) = delete;
  DisabledButton& operator=(const DisabledButton&) = delete;

 private:
  QPointer<QWidget> button_;
  bool hadFocus_ = false;
};

}  // namespace

bool RunBusy(QWidget* zWindow, QWidget* zButton, const std::function<void()>& zWork) {
  const QPointer<QWidget> window = zWindow;
  const auto isOpen = [&] { return window && window->isVisible(); };
  const DisabledButton disabled(zButton);
  WorkCount::Of(zWindow)->Begin();
  if (isOpen()) {
    zWork();
  }
  if (window) {
    WorkCount::Of(window)->End();
  }
  return isOpen();
}

}  // namespace loquitor
