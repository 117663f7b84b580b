#include "ui/toolkit/colours.h"

#include <QPainter>
#include <QWidget>

namespace loquitor {

QColor ReadableOn(const QColor& zBackground) {
  // The brightness weights of ITU-R BT.601.
  const double brightness =
      0.299 * zBackground.redF() + 0.587 * zBackground.greenF() + 0.114 * zBackground.blueF();
  return brightness > 0.5 ? Qt::black : Qt::white;
}

QColor LineColour(const QPalette& zPalette) {
  constexpr float Share = 0.35F;  // of the text colour in the background
  const QColor back = zPalette.color(QPalette::Window);
  const QColor text = zPalette.color(QPalette::WindowText);
  const auto mix = [](float zBack, float zText) { return zBack + (zText - zBack) * Share; };
  return QColor::fromRgbF(mix(back.redF(), text.redF()), mix(back.greenF(), text.greenF()),
                          mix(back.blueF(), text.blueF()));
}

void DrawFocusMark(QPainter& zPainter, const QRect& zPlace, const QPalette& zPalette) {
  zPainter.setPen(zPalette.color(QPalette::Highlight));
  zPainter.setBrush(Qt::NoBrush);
  zPainter.drawRect(zPlace.adjusted(0, 0, -1, -1));
  zPainter.drawRect(zPlace.adjusted(1, 1, -2, -2));
}

void SetColours(QWidget* zWidget, QPalette::ColorRole zBackground, QPalette::ColorRole zText,
                const QColor& zColour) {
  QPalette palette;
  if (zColour.isValid()) {
    palette.setColor(zBackground, zColour);
    palette.setColor(zText, ReadableOn(zColour));
    palette.setColor(QPalette::PlaceholderText, ReadableOn(zColour));
  }
  // A palette without anything of its own set takes everything from the desktop again.
  zWidget->setPalette(zColour.isValid() ? palette : QPalette());
}

}  // namespace loquitor
