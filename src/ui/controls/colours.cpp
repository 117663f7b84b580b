#include "ui/controls/colours.h"

#include <QPainter>
#include <QWidget>
#include <cmath>

namespace loquitor {

QColor ReadableOn(const QColor& zBackground) {
  // Relative luminance and contrast ratio as in WCAG 2.1; at this luminance both are equal.
  constexpr double EqualContrast = 0.179;
  const auto linear = [](double zShare) {
    return zShare <= 0.04045 ? zShare / 12.92 : std::pow((zShare + 0.055) / 1.055, 2.4);
  };
  const double luminance = 0.2126 * linear(zBackground.redF()) +
                           0.7152 * linear(zBackground.greenF()) +
                           0.0722 * linear(zBackground.blueF());
  return luminance > EqualContrast ? Qt::black : Qt::white;
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
  QPalette palette;  // an empty one takes everything from the desktop
  if (zColour.isValid()) {
    palette.setColor(zBackground, zColour);
    palette.setColor(zText, ReadableOn(zColour));
    palette.setColor(QPalette::PlaceholderText, ReadableOn(zColour));
  }
  zWidget->setPalette(palette);
}

}  // namespace loquitor
