#include "ui/windows/centring.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace loquitor {

void Centre(QWidget* zWindow) {
  const QWidget* owner = zWindow->parentWidget();
  const QScreen* screen = owner == nullptr ? QGuiApplication::primaryScreen() : owner->screen();
  if (screen == nullptr) {
    return;
  }
  const QRect place = screen->availableGeometry();
  QPoint corner = place.center() - zWindow->rect().center();
  corner.setX(std::max(corner.x(), place.left()));
  corner.setY(std::max(corner.y(), place.top()));
  zWindow->move(corner);
}

}  // namespace loquitor
