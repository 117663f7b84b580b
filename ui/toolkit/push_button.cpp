#include "ui/toolkit/push_button.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "ui/toolkit/fitting.h"

namespace loquitor {
namespace {

constexpr int SideMargin = 4;  // pixels between border and caption
constexpr int TopMargin = 1;

}  // namespace

PushButton::PushButton(const QString& zCaption, QWidget* zParent) : QPushButton(zCaption, zParent) {
  setAutoDefault(false);
  setFocusPolicy(Qt::StrongFocus);
}

void PushButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  const QString caption = ShownCaption(text());
  const QRect place = rect().adjusted(SideMargin, TopMargin, -SideMargin, -TopMargin);
  painter.setFont(WrappingFont(font(), caption, place.size()));
  painter.setPen(palette().color(QPalette::ButtonText));
  const int shift = isDown() ? 1 : 0;
  painter.drawText(place.translated(shift, shift), Qt::AlignCenter | Qt::TextWordWrap, caption);
}

void PushButton::keyPressEvent(QKeyEvent* zEvent) {
  if (zEvent->key() != Qt::Key_Return && zEvent->key() != Qt::Key_Enter) {
    QPushButton::keyPressEvent(zEvent);
  }
}

}  // namespace loquitor
