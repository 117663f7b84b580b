#include "ui/controls/frame.h"

#include <QPainter>

#include "ui/controls/colours.h"
#include "ui/controls/fitting.h"

namespace loquitor {
namespace {

constexpr int CaptionIndent = 8;  // pixels from the left edge to the caption
constexpr int CaptionGap = 3;     // between the caption and the border, on both sides

}  // namespace

void Frame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setLayoutDirection(layoutDirection());
  QFont bold = font();
  bold.setBold(true);
  const QString caption = ShownCaption(title());
  bold = FittingFont(bold, caption, width() - 2 * (CaptionIndent + CaptionGap));
  painter.setFont(bold);
  const QFontMetrics metrics(bold);
  const int lineTop = metrics.height() / 2;
  painter.setPen(LineColour(palette()));
  const QRect border = rect().adjusted(0, lineTop, -1, -1);
  if (!caption.isEmpty()) {
    const QRect gap(CaptionIndent - CaptionGap, 0,
                    metrics.horizontalAdvance(caption) + 2 * CaptionGap, metrics.height());
    painter.setClipRegion(QRegion(rect()).subtracted(gap));
  }
  painter.drawRect(border);
  painter.setClipping(false);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(CaptionIndent, metrics.ascent(), caption);
}

}  // namespace loquitor
