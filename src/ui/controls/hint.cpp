#include "ui/controls/hint.h"

#include <QAccessible>
#include <QTextDocument>
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

QString PlainTooltip(const QString& zText) {
  return Qt::mightBeRichText(zText) ? Qt::convertFromPlainText(zText, Qt::WhiteSpaceNormal) : zText;
}

void ShowHint(QWidget* zControl, const QString& zText) {
  const QString shown = PlainTooltip(zText);
  if (QToolTip::isVisible() && QToolTip::text() == shown) {
    return;
  }
  const QRect caret = zControl->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  QToolTip::showText(zControl->mapToGlobal(caret.bottomLeft()), shown, zControl, {},
                     ShownMilliseconds);
  Describe(zControl, zText);
  QAccessibleEvent announcement(zControl, QAccessible::Alert);
  QAccessible::updateAccessibility(&announcement);
}

}  // namespace loquitor
