#include "ui/chip/slot_label.h"

#include <QKeyEvent>
#include <QPainter>

#include "ui/toolkit/code_page.h"
#include "ui/toolkit/colours.h"

namespace loquitor {
namespace {

constexpr int SidePadding = 5;
constexpr int MostPaintedCharacters = 1000;  ///< no row is wider; keeps long texts quick to paint
constexpr QRgb WarningBackground = qRgb(255, 232, 160);
constexpr QChar LineBreakArrow(0x21b5);
constexpr QChar WarningSign(0x26a0);

QString OneLine(const QString& zText) {
  QString line = zText.left(MostPaintedCharacters);
  line.replace(QLatin1Char('\n'), LineBreakArrow);
  line.replace(QLatin1Char('\t'), QLatin1Char(' '));
  return line;
}

/// As much of the text as a tooltip has room for: one that is higher than the screen loses its
/// beginning, where the warning stands.
QString FittingTooltip(const QString& zText) {
  constexpr int MostLines = 25;
  constexpr int MostCharacters = 2000;  // about as many lines of a tooltip
  const QString shown = zText.section(u'\n', 0, MostLines - 1).left(MostCharacters);
  return shown.size() < zText.size() ? shown + u'…' : shown;
}

/// As rich text, which tooltips break into lines; blanks and line breaks stay as they are.
QString AsTooltip(const QString& zText) {
  return QStringLiteral("<p style='white-space:pre-wrap'>") + zText.toHtmlEscaped() +
         QStringLiteral("</p>");
}

}  // namespace

SlotLabel::SlotLabel(const QString& zCaption, QWidget* zParent) : ClickLabel(zCaption, zParent) {
  setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void SlotLabel::keyPressEvent(QKeyEvent* zEvent) {
  const int key = zEvent->key();
  const bool isClick = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!isClick) {
    ClickLabel::keyPressEvent(zEvent);
    return;
  }
  zEvent->accept();
  if (!zEvent->isAutoRepeat()) {
    emit Click();
  }
}

void SlotLabel::focusInEvent(QFocusEvent* zEvent) {
  ClickLabel::focusInEvent(zEvent);
  SetCurrent(true);
}

void SlotLabel::focusOutEvent(QFocusEvent* zEvent) {
  ClickLabel::focusOutEvent(zEvent);
  SetCurrent(false);
}

PhraseLabel::PhraseLabel(int zSlot, QWidget* zParent)
    : SlotLabel(QString(), zParent), slot_(zSlot) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

std::string PhraseLabel::Phrase() const {
  return ToBytes(text());
}

void PhraseLabel::SetPhrase(std::string_view zPhrase, const QString& zWarning) {
  const QString phrase = ToQString(zPhrase);
  isMarked_ = !zWarning.isEmpty();
  setText(phrase);
  setAccessibleName(QStringLiteral("Phrase %1: ").arg(slot_) +
                    (phrase.isEmpty() ? QStringLiteral("empty") : phrase));
  setAccessibleDescription(zWarning);
  setToolTip((isMarked_ ? AsTooltip(zWarning) : QString()) +
             (phrase.isEmpty() ? QString() : AsTooltip(FittingTooltip(phrase))));
  SetBackground(isMarked_ ? QColor(WarningBackground) : QColor());
}

void PhraseLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect place = contentsRect().adjusted(SidePadding, 0, -SidePadding, 0);
  const QString line =
      (isMarked_ ? QString(WarningSign) + QLatin1Char(' ') : QString()) + OneLine(text());
  const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, place.width());
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, shown);
  if (hasFocus()) {
    DrawFocusMark(painter, rect(), palette());
  }
}

}  // namespace loquitor
