#include "ui/windows/stray_double_click.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>
#include <QWindow>
#include <optional>
#include <utility>

namespace loquitor {
namespace {

/// Filters what the desktop sends to the native window, which exists once the widget is shown. The
/// second press of a double click arrives as a press followed by a double click.
class StrayDoubleClickFilter : public QObject {
 public:
  explicit StrayDoubleClickFilter(QWidget* zWindow) : QObject(zWindow) {
    zWindow->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override {
    if (!zWatched->isWindowType()) {
      if (zEvent->type() == QEvent::Show) {
        static_cast<QWidget*>(zWatched)->windowHandle()->installEventFilter(this);
      }
      return false;
    }
    if (zEvent->type() == QEvent::MouseButtonPress) {
      pressBefore_ = std::exchange(lastPress_, static_cast<QMouseEvent*>(zEvent)->timestamp());
    }
    return zEvent->type() == QEvent::MouseButtonDblClick && !HadFirstPress();
  }

 private:
  bool HadFirstPress() const {
    const int longest = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    return pressBefore_ && *lastPress_ - *pressBefore_ < static_cast<quint64>(longest);
  }

  std::optional<quint64> pressBefore_;
  std::optional<quint64> lastPress_;
};

}  // namespace

void IgnoreStrayDoubleClicks(QWidget* zWindow) {
  new StrayDoubleClickFilter(zWindow);
}

}  // namespace loquitor
