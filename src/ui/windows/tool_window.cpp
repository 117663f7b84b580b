#include "ui/windows/tool_window.h"

#include <QKeyEvent>

#include "ui/controls/form.h"
#include "ui/controls/keys.h"
#include "ui/windows/centring.h"
#include "ui/windows/stray_double_click.h"

namespace loquitor {

ToolWindow::ToolWindow(QWidget* zOwner, const QString& zCaption, TwipSize zClientSize,
                       Sizing zSizing)
    : QDialog(zOwner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint) {
  setWindowTitle(zCaption);
  setFont(FormFont());
  setWindowModality(Qt::WindowModal);  // it blocks its owners, but not the manual
  IgnoreStrayDoubleClicks(this);
  if (zSizing == Sizing::Fixed) {
    setFixedSize(zClientSize.ToPixels());
  } else {
    resize(zClientSize.ToPixels());
  }
}

void ToolWindow::ShowModal() {
  if (parentWidget() != nullptr && !parentWidget()->isVisible()) {
    return;
  }
  LoadOnce();
  static_cast<void>(exec());  // the result code has no meaning here
}

void ToolWindow::Open() {
  LoadOnce();
  show();
}

void ToolWindow::LoadOnce() {
  if (isLoaded_) {
    return;
  }
  isLoaded_ = true;
  Centre(this);
  Load();
}

void ToolWindow::done(int zResult) {
  if (!isLoaded_ || isUnloaded_) {
    QDialog::done(zResult);
    return;
  }
  isUnloaded_ = true;
  // Hidden first, so that the owner is free even if Unload has to wait for the line.
  QDialog::done(zResult);
  Unload();
  emit Closed();
}

void ToolWindow::keyPressEvent(QKeyEvent* zEvent) {
  if (zEvent->key() != Qt::Key_Escape && !IsEnter(*zEvent)) {
    QDialog::keyPressEvent(zEvent);
  }
}

void ToolWindow::changeEvent(QEvent* zEvent) {
  QDialog::changeEvent(zEvent);
  if (zEvent->type() == QEvent::ActivationChange && isActiveWindow() && isLoaded_ && !isUnloaded_) {
    Activate();
  }
}

}  // namespace loquitor
