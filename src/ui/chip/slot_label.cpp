#include "ui/chip/slot_label.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include "ui/chip/phrase_tooltip.h"
#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"

namespace loquitor {
namespace {

constexpr int SidePadding = 6;               ///< pixels between the edge and the text
constexpr int MostPaintedCharacters = 1000;  ///< more than a row can show; keeps painting fast
constexpr QChar LineBreakArrow(0x21b5);
constexpr QChar WarningSign(0x26a0);
const QString HowToFill = QStringLiteral("Click to write a phrase");
const QString HowToEdit = QStringLiteral("A click or Enter opens the phrase editor.");

QString OneLine(const QString& zText) {
  QString line = zText.left(MostPaintedCharacters);
  line.replace(QLatin1Char('\n'), LineBreakArrow);
  line.replace(QLatin1Char('\t'), QLatin1Char(' '));
  return line;
}

}  // namespace

SlotLabel::SlotLabel(const QString& zCaption, QWidget* zParent) : ClickLabel(zCaption, zParent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void SlotLabel::paintEvent(QPaintEvent*) {
  Draw(text(), Qt::AlignRight, palette().color(foregroundRole()));
}

void SlotLabel::Draw(const QString& zText, Qt::Alignment zAlignment, const QColor& zColour) {
  QPainter painter(this);
  painter.setLayoutDirection(layoutDirection());
  QStyleOptionFrame border;
  border.initFrom(this);
  border.frameShape = QFrame::StyledPanel;
  border.lineWidth = 1;
  border.state |= QStyle::State_Sunken;
  style()->drawControl(QStyle::CE_ShapedFrame, &border, &painter, this);
  const QRect place = rect().adjusted(SidePadding, 0, -SidePadding, 0);
  const QString shown = fontMetrics().elidedText(zText, Qt::ElideRight, place.width());
  painter.setPen(zColour);
  painter.drawText(place, Qt::AlignVCenter | zAlignment | Qt::TextSingleLine, shown);
  if (hasFocus()) {
    DrawFocusMark(painter, rect(), palette());
  }
}

PhraseLabel::PhraseLabel(int zSlot, QWidget* zParent)
    : SlotLabel(QString(), zParent), slot_(zSlot) {}

std::string PhraseLabel::Phrase() const {
  return ToBytes(text());
}

void PhraseLabel::SetPhrase(std::string_view zPhrase, const QString& zWarning) {
  const QString phrase = ToQString(zPhrase);
  isMarked_ = !zWarning.isEmpty();
  setText(phrase);
  setShortcut({});  // setText makes one of an & in the phrase
  setAccessibleName(QStringLiteral("Phrase %1: ").arg(slot_) +
                    (phrase.isEmpty() ? QStringLiteral("empty") : phrase));
  // Never empty: a screen reader would then read the tooltip with its HTML.
  setAccessibleDescription(isMarked_ ? zWarning : HowToEdit);
  setToolTip((isMarked_ ? PhraseTooltip(zWarning) : QString()) +
             PhraseTooltip(phrase.isEmpty() ? HowToEdit : phrase));
  SetBackground(isMarked_ ? WarningBackground : QColor());
}

void PhraseLabel::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) {
    // A click does nothing while the row is disabled, and the style's colour would not show that.
    const auto colour = isEnabled() ? QPalette::PlaceholderText : foregroundRole();
    Draw(HowToFill, Qt::AlignLeft, palette().color(colour));
    return;
  }
  const QString mark = isMarked_ ? QString(WarningSign) + QLatin1Char(' ') : QString();
  Draw(mark + OneLine(text()), Qt::AlignLeft, palette().color(foregroundRole()));
}

}  // namespace loquitor
