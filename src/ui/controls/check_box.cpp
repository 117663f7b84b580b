#include "ui/controls/check_box.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "ui/controls/colours.h"
#include "ui/controls/fitting.h"
#include "ui/controls/keys.h"

namespace loquitor {
namespace {

constexpr int Gap = 4;  // pixels between the mark and the caption

/// The part of the button inside the border of its frame.
QRect VisiblePart(const QWidget* zButton) {
  const QWidget* parent = zButton->parentWidget();
  return parent == nullptr
             ? zButton->rect()
             : zButton->rect() & parent->rect().adjusted(0, 0, -1, -1).translated(-zButton->pos());
}

/// Draws a clear outline of the mark. The one of the style hardly shows on dark windows.
void DrawOutline(QPainter& zPainter, QStyle::PrimitiveElement zMark, const QStyleOption& zOption) {
  zPainter.setRenderHint(QPainter::Antialiasing);
  zPainter.setPen(LineColour(zOption.palette));
  zPainter.setBrush(Qt::NoBrush);
  const QRectF outline = QRectF(zOption.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  if (zMark == QStyle::PE_IndicatorRadioButton) {
    zPainter.drawEllipse(outline);
  } else {
    zPainter.drawRoundedRect(outline, 1, 1);
  }
  zPainter.setRenderHint(QPainter::Antialiasing, false);
}

/// Draws the wrapped caption in `zPlace` and returns the place that its text takes.
QRect DrawCaption(QPainter& zPainter, const QWidget* zButton, const QString& zCaption,
                  const QRect& zPlace) {
  constexpr int Flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
  zPainter.setFont(WrappingFont(zButton->font(), zCaption, {zPlace.width(), zButton->height()}));
  zPainter.setPen(zButton->palette().color(QPalette::WindowText));
  zPainter.drawText(zPlace, Flags, zCaption);
  return zPainter.fontMetrics().boundingRect(zPlace, Flags, zCaption);
}

/// Draws the mark and the wrapped caption. The style itself would keep the caption on one line.
/// Without a caption the mark is in the middle.
void PaintWrapped(QAbstractButton* zButton, QStyleOptionButton zOption,
                  QStyle::PrimitiveElement zMark, QSize zMarkSize) {
  // In the dark mode of Windows, Qt fills the mark with the accent colour, ticked or not.
  const QBrush ground = zButton->window()->palette().brush(QPalette::Base);
  zOption.palette.setBrush(QPalette::Base, ground);
  QStylePainter painter(zButton);
  painter.setLayoutDirection(zButton->layoutDirection());
  const QRect all = VisiblePart(zButton);
  const QString caption = ShownCaption(zButton->text());
  const QRect text = all.adjusted(zMarkSize.width() + Gap, 0, 0, 0);
  const bool hasFocus = (zOption.state & QStyle::State_HasFocus) != 0;

  const QSize mark = zMarkSize.boundedTo({all.height(), all.height()});
  const int roomForMark = caption.isEmpty() ? all.width() : zMarkSize.width();
  zOption.rect =
      QRect(QPoint((roomForMark - mark.width()) / 2, (all.height() - mark.height()) / 2), mark);
  painter.drawPrimitive(zMark, zOption);
  DrawOutline(painter, zMark, zOption);

  const QRect place = DrawCaption(painter, zButton, caption, text);
  const QRect used = caption.isEmpty() ? zOption.rect.adjusted(-1, -3, 0, 2) : place;
  if (hasFocus) {
    painter.setPen(zButton->palette().color(QPalette::Highlight));
    painter.drawRect(used.adjusted(-2, 0, 2, 0).intersected(all.adjusted(0, 0, -1, -1)));
  }
}

}  // namespace

CheckBox::CheckBox(const QString& zCaption, QWidget* zParent) : QCheckBox(zCaption, zParent) {
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QCheckBox::toggled, this, &CheckBox::Click);
}

void CheckBox::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QSize mark(style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, this),
                   style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, this));
  PaintWrapped(this, option, QStyle::PE_IndicatorCheckBox, mark);
}

void CheckBox::keyPressEvent(QKeyEvent* zEvent) {
  if (!IsEnter(*zEvent)) {
    QCheckBox::keyPressEvent(zEvent);
  }
}

OptionButton::OptionButton(const QString& zCaption, QWidget* zParent)
    : QRadioButton(zCaption, zParent) {
  setFocusPolicy(Qt::StrongFocus);
}

void OptionButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QSize mark(style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option, this),
                   style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, this));
  PaintWrapped(this, option, QStyle::PE_IndicatorRadioButton, mark);
}

void OptionButton::keyPressEvent(QKeyEvent* zEvent) {
  if (!IsEnter(*zEvent)) {
    QRadioButton::keyPressEvent(zEvent);
  }
}

OptionGroup::OptionGroup(QObject* zParent) : QButtonGroup(zParent) {
  connect(this, &QButtonGroup::idToggled, this, &OptionGroup::OnToggled);
}

void OptionGroup::Add(OptionButton* zButton, int zIndex) {
  zButton->setFocusPolicy(buttons().isEmpty() ? Qt::StrongFocus : Qt::ClickFocus);
  addButton(zButton, zIndex);
}

void OptionGroup::OnToggled(int zIndex, bool zIsChosen) {
  if (!zIsChosen) {
    return;
  }
  for (QAbstractButton* member : buttons()) {
    member->setFocusPolicy(member == button(zIndex) ? Qt::StrongFocus : Qt::ClickFocus);
  }
  emit Click(zIndex);
}

}  // namespace loquitor
