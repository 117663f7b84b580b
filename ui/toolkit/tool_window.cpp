#include "ui/toolkit/tool_window.h"

#include <QKeyEvent>
#include <QScreen>

#include "ui/toolkit/centring.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/half_click.h"

namespace loquitor {

ToolWindow::ToolWindow(QWidget* zOwner, const QString& zCaption, TwipSize zClientSize,
                       Sizing zSizing)
    : QDialog(zOwner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint) {
  setWindowTitle(zCaption);
  setFont(FormFont());
  setModal(true);
  KeepHalfClicksOut(this);
  if (zSizing == Sizing::Fixed) {
    setFixedSize(zClientSize.ToPixels());
  } else {
    resize(zClientSize.ToPixels());
  }
}

void ToolWindow::ShowModal() {
  LoadOnce();
  static_cast<void>(exec());  // how a window was closed says nothing
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
  // Hidden first: the owner is free again even if the unloading has to wait for the line.
  QDialog::done(zResult);
  Unload();
  emit Closed();
}

void ToolWindow::keyPressEvent(QKeyEvent* zEvent) {
  switch (zEvent->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return;
    default:
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
