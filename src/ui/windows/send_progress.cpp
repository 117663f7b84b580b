#include "ui/windows/send_progress.h"

#include <QApplication>

#include "ui/windows/tool_window.h"

namespace loquitor {
namespace {

constexpr int LookInterval = 250;    // milliseconds
constexpr int LooksBeforeShown = 4;  // a second

/// The topmost editor, also when a message box is over it. `zMainWindow` when no editor is open.
QWidget* TopmostWindow(QWidget* zMainWindow) {
  QWidget* window = QApplication::activeModalWidget();
  while (window != nullptr && qobject_cast<ToolWindow*>(window) == nullptr) {
    window = window->parentWidget();
  }
  return window != nullptr ? window : zMainWindow;
}

}  // namespace

SendProgress::SendProgress(QWidget* zMainWindow, const CodeSender& zSender)
    : mainWindow_(zMainWindow), sender_(zSender) {
  timer_.setInterval(LookInterval);
  connect(&timer_, &QTimer::timeout, this, &SendProgress::Update);
}

void SendProgress::SetSending(bool zIsSending) {
  toGo_ = 0;
  if (zIsSending) {
    Update();
    timer_.start();
  } else {
    timer_.stop();
    Clear();
  }
}

void SendProgress::Update() {
  const std::size_t toGo = sender_.PendingOutput().size();
  const bool isNewSend = toGo > toGo_;
  if (isNewSend) {
    total_ = toGo;
    looks_ = 0;
  }
  toGo_ = toGo;
  if (toGo == 0 || looks_++ < LooksBeforeShown) {
    Clear();
    return;
  }
  const std::size_t percent = (toGo * 100 + total_ - 1) / total_;
  Show(TopmostWindow(mainWindow_), QStringLiteral("%1% to go - ").arg(percent));
}

void SendProgress::Show(QWidget* zWindow, const QString& zProgress) {
  if (zWindow != shownIn_) {
    Clear();
    shownIn_ = zWindow;
    title_ = zWindow->windowTitle();
  }
  zWindow->setWindowTitle(zProgress + title_);
}

void SendProgress::Clear() {
  if (shownIn_) {
    shownIn_->setWindowTitle(title_);
    shownIn_.clear();
  }
}

}  // namespace loquitor
