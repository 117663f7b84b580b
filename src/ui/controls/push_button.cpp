#include "ui/controls/push_button.h"

#include <QHelpEvent>
#include <QShortcut>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

#include "ui/controls/fitting.h"
#include "ui/controls/keys.h"

namespace loquitor {
namespace {

constexpr int SideMargin = 4;  // pixels between border and caption
constexpr int TopMargin = 1;

}  // namespace

PushButton::PushButton(const QString& zCaption, QWidget* zParent) : QPushButton(zCaption, zParent) {
  setAutoDefault(false);
  setFocusPolicy(Qt::StrongFocus);
}

void PushButton::SetKey(const QKeySequence& zKey) {
  key_ = zKey;
  auto* shortcut = new QShortcut(zKey, this);
  shortcut->setAutoRepeat(false);
  connect(shortcut, &QShortcut::activated, this, [this] {
    setFocus(Qt::ShortcutFocusReason);  // so that the box that loses it takes its text
    click();
  });
}

bool PushButton::event(QEvent* zEvent) {
  if (zEvent->type() != QEvent::ToolTip || key_.isEmpty()) {
    return QPushButton::event(zEvent);
  }
  const QString tip =
      QString("%1 (%2)").arg(toolTip(), key_.toString(QKeySequence::NativeText)).trimmed();
  QToolTip::showText(static_cast<QHelpEvent*>(zEvent)->globalPos(), tip, this);
  return true;
}

void PushButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  painter.setLayoutDirection(layoutDirection());
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
  if (!IsEnter(*zEvent)) {
    QPushButton::keyPressEvent(zEvent);
  }
}

}  // namespace loquitor
