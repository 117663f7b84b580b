#include "ui/controls/fitting.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QStringList>
#include <algorithm>

namespace loquitor {
namespace {

constexpr int NarrowestStretch = 75;  // per cent; below that letters run together
constexpr int StretchStep = 5;
constexpr int SmallestPixels = 8;

/// Tries `zFont`, then narrower, then smaller versions of it. The first one for which `zFits` is
/// true, or the smallest one if there is none.
template <class Fits>
QFont FirstThatFits(QFont zFont, Fits zFits) {
  int stretch = 100;
  int pixels = QFontInfo(zFont).pixelSize();
  while (!zFits(QFontMetrics(zFont))) {
    if (stretch > NarrowestStretch) {
      stretch -= StretchStep;
      zFont.setStretch(stretch);
    } else if (pixels > SmallestPixels) {
      --pixels;
      zFont.setPixelSize(pixels);
    } else {
      break;
    }
  }
  return zFont;
}

}  // namespace

QFont FittingFont(const QFont& zFont, const QString& zText, int zWidth) {
  const QStringList lines = zText.split(u'\n');
  return FirstThatFits(zFont, [&](const QFontMetrics& zMetrics) {
    return std::all_of(lines.begin(), lines.end(), [&](const QString& zLine) {
      return zMetrics.horizontalAdvance(zLine) <= zWidth;
    });
  });
}

QFont WrappingFont(const QFont& zFont, const QString& zText, QSize zPlace) {
  return FirstThatFits(zFont, [&](const QFontMetrics& zMetrics) {
    const QRect needed =
        zMetrics.boundingRect(QRect(0, 0, zPlace.width(), 10 * zPlace.height() + 100),
                              Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, zText);
    return needed.width() <= zPlace.width() && needed.height() <= zPlace.height() + 1;
  });
}

QString ShownCaption(const QString& zCaption) {
  return QString(zCaption).replace(QLatin1String("&&"), QLatin1String("&"));
}

}  // namespace loquitor
