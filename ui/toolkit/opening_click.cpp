#include "ui/toolkit/opening_click.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace loquitor {
namespace {

/// A double click whose first press went to another window shows as one that comes to a window
/// before any release. Watches what the desktop sends to the native window, which exists once the
/// window is shown, up to its first release.
class OpeningClick : public QObject {
 public:
  explicit OpeningClick(QWidget* zWindow) : QObject(zWindow) { zWindow->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override {
    if (!zWatched->isWindowType()) {
      if (zEvent->type() == QEvent::Show) {
        zWatched->removeEventFilter(this);
        static_cast<QWidget*>(zWatched)->windowHandle()->installEventFilter(this);
      }
      return false;
    }
    if (zEvent->type() == QEvent::MouseButtonRelease) {
      zWatched->removeEventFilter(this);
    }
    return zEvent->type() == QEvent::MouseButtonDblClick;
  }
};

}  // namespace

void KeepOpeningClickOut(QWidget* zWindow) {
  new OpeningClick(zWindow);
}

}  // namespace loquitor
