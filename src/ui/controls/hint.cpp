#include "ui/controls/hint.h"

#include <QAccessible>
#include <QTimer>
#include <QToolTip>
#include <QVariant>
#include <QWidget>

namespace loquitor {
namespace {

constexpr int ShownMilliseconds = 8000;  // long enough to read it twice
constexpr char OwnDescription[] = "descriptionBeforeTheHint";
constexpr char LastHint[] = "lastHint";

/// Makes the hint the accessible description of `zControl` while it is shown.
void Describe(QWidget* zControl, const QString& zText) {
  if (zControl->accessibleDescription() != zControl->property(LastHint).toString()) {
    zControl->setProperty(OwnDescription, zControl->accessibleDescription());
  }
  zControl->setProperty(LastHint, zText);
  zControl->setAccessibleDescription(zText);
  QTimer::singleShot(ShownMilliseconds, zControl, [zControl, zText] {
    if (zControl->accessibleDescription() == zText) {
      zControl->setAccessibleDescription(zControl->property(OwnDescription).toString());
    }
  });
}

}  // namespace

void ShowHint(QWidget* zControl, const QString& zText) {
  if (QToolTip::isVisible() && QToolTip::text() == zText) {
    return;
  }
  const QRect caret = zControl->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  QToolTip::showText(zControl->mapToGlobal(caret.bottomLeft()), zText, zControl, {},
                     ShownMilliseconds);
  Describe(zControl, zText);
  QAccessibleEvent announcement(zControl, QAccessible::Alert);
  QAccessible::updateAccessibility(&announcement);
}

}  // namespace loquitor
