#include "ui/toolkit/check_box.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "ui/toolkit/colours.h"
#include "ui/toolkit/fitting.h"

namespace loquitor {
namespace {

constexpr int Gap = 4;  // pixels between the mark and the caption

/// The part of the button that lies inside the border of the frame around it.
QRect VisiblePart(const QWidget* zButton) {
  const QWidget* parent = zButton->parentWidget();
  return parent == nullptr
             ? zButton->rect()
             : zButton->rect() & parent->rect().adjusted(0, 0, -1, -1).translated(-zButton->pos());
}

/// The style's outline of a mark hardly shows on dark windows.
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

/// Draws mark and wrapped caption; the style's own drawing keeps a caption in one line. Without a
/// caption the mark stands in the middle.
void PaintWrapped(QAbstractButton* zButton, QStyleOptionButton zOption,
                  QStyle::PrimitiveElement zMark, QSize zMarkSize) {
  QStylePainter painter(zButton);
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

  painter.setFont(WrappingFont(zButton->font(), caption, {text.width(), zButton->height()}));
  constexpr int Flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
  const QRect used = caption.isEmpty() ? zOption.rect.adjusted(-1, -3, 0, 2)
                                       : painter.fontMetrics().boundingRect(text, Flags, caption);
  painter.setPen(zButton->palette().color(QPalette::WindowText));
  painter.drawText(text, Flags, caption);
  if (hasFocus) {
    painter.setPen(zButton->palette().color(QPalette::Highlight));
    painter.drawRect(used.adjusted(-2, 0, 2, 0).intersected(all.adjusted(0, 0, -1, -1)));
  }
}

/// Enter neither presses a button of the toolkit nor reaches the window's own keys.
bool IsEnter(const QKeyEvent* zEvent) {
  return zEvent->key() == Qt::Key_Return || zEvent->key() == Qt::Key_Enter;
}

int ArrowStep(const QKeyEvent* zEvent) {
  switch (zEvent->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      return -1;
    case Qt::Key_Down:
    case Qt::Key_Right:
      return 1;
    default:
      return 0;
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
  if (!IsEnter(zEvent)) {
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
  if (const int step = ArrowStep(zEvent); step != 0) {
    emit ArrowPressed(step);
  } else if (!IsEnter(zEvent)) {
    QRadioButton::keyPressEvent(zEvent);
  }
}

OptionGroup::OptionGroup(QObject* zParent) : QObject(zParent) {
  group_.setExclusive(false);
}

void OptionGroup::Add(OptionButton* zButton, int zIndex) {
  members_.push_back({zButton, zIndex});
  group_.addButton(zButton);
  connect(zButton, &QAbstractButton::toggled, this,
          [this, zButton, zIndex](bool zIsChosen) { OnToggled(zButton, zIndex, zIsChosen); });
  connect(zButton, &OptionButton::ArrowPressed, this,
          [this, zButton](int zStep) { OnArrow(zButton, zStep); });
  UpdateTabStops();
}

void OptionGroup::SetChosen(int zIndex, bool zIsChosen) {
  for (const Member& member : members_) {
    if (member.index == zIndex) {
      member.button->setChecked(zIsChosen);
    }
  }
}

bool OptionGroup::IsChosen(int zIndex) const {
  return zIndex == Chosen() && zIndex >= 0;
}

int OptionGroup::Chosen() const {
  for (const Member& member : members_) {
    if (member.button->isChecked()) {
      return member.index;
    }
  }
  return -1;
}

void OptionGroup::OnToggled(OptionButton* zButton, int zIndex, bool zIsChosen) {
  if (zIsChosen) {
    for (const Member& member : members_) {
      if (member.button != zButton) {
        member.button->setChecked(false);
      }
    }
  }
  UpdateTabStops();
  if (zIsChosen) {
    emit Click(zIndex);
  }
}

void OptionGroup::OnArrow(OptionButton* zButton, int zStep) {
  qsizetype at = 0;
  while (members_[at].button != zButton) {
    ++at;
  }
  const qsizetype count = members_.size();
  OptionButton* next = members_[(at + zStep + count) % count].button;
  next->setFocus(Qt::OtherFocusReason);
  next->setChecked(true);
}

void OptionGroup::UpdateTabStops() {
  const int chosen = Chosen();
  for (const Member& member : members_) {
    const bool isStop = chosen < 0 ? &member == &members_.front() : member.index == chosen;
    member.button->setFocusPolicy(isStop ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

}  // namespace loquitor
