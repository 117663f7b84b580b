#include "ui/phrase/member_keys.h"

#include <QAccessible>
#include <QKeyEvent>
#include <optional>

#include "ui/phrase/neighbour.h"

namespace loquitor {
namespace {

std::optional<Direction> DirectionOf(int zKey) {
  switch (zKey) {
    case Qt::Key_Left:
      return Direction::Left;
    case Qt::Key_Right:
      return Direction::Right;
    case Qt::Key_Up:
      return Direction::Up;
    case Qt::Key_Down:
      return Direction::Down;
    default:
      return std::nullopt;
  }
}

TwipRect PlaceOf(const QWidget& zWidget) {
  return {TwipsFromPixels(zWidget.x()), TwipsFromPixels(zWidget.y()),
          TwipsFromPixels(zWidget.width()), TwipsFromPixels(zWidget.height())};
}

}  // namespace

MemberKeys::MemberKeys(QWidget* zFrame, const QVector<ClickLabel*>& zMembers)
    : QObject(zFrame), frame_(zFrame), members_(zMembers.begin(), zMembers.end()) {
  for (std::size_t i = 0; i < members_.size(); ++i) {
    places_.push_back(PlaceOf(*members_[i]));
    members_[i]->setAccessibleDescription(members_[i]->toolTip());
    connect(members_[i], &ClickLabel::Click, this, [this, i] { MoveTo(i); });
  }
  // By Tab only: a click on a member leaves the focus, and with it the caret, where it is.
  frame_->setFocusPolicy(Qt::TabFocus);
  frame_->installEventFilter(this);
}

bool MemberKeys::eventFilter(QObject* zWatched, QEvent* zEvent) {
  switch (zEvent->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      ShowCurrent();
      break;
    case QEvent::KeyPress:
      // Keys that a box in the frame leaves unused come past here too.
      if (frame_->hasFocus() && HandleKey(static_cast<const QKeyEvent&>(*zEvent))) {
        return true;
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(zWatched, zEvent);
}

bool MemberKeys::HandleKey(const QKeyEvent& zEvent) {
  const bool isEnter = zEvent.key() == Qt::Key_Return || zEvent.key() == Qt::Key_Enter;
  const bool inserts = zEvent.key() == Qt::Key_Insert ||
                       (isEnter && zEvent.modifiers().testFlag(Qt::ControlModifier));
  if (!inserts && !isEnter && zEvent.key() != Qt::Key_Space) {
    return HandleMove(zEvent.key());
  }
  if (zEvent.isAutoRepeat()) {
    return true;  // a key held down plays once
  }
  if (inserts) {
    emit members_[current_]->DoubleClick();
  } else {
    emit members_[current_]->Click();
  }
  return true;
}

bool MemberKeys::HandleMove(int zKey) {
  if (const std::optional<Direction> direction = DirectionOf(zKey)) {
    MoveTo(NeighbourOf(places_, current_, *direction));
  } else if (zKey == Qt::Key_Home) {
    MoveTo(0);
  } else if (zKey == Qt::Key_End) {
    MoveTo(members_.size() - 1);
  } else {
    return false;
  }
  return true;
}

void MemberKeys::MoveTo(std::size_t zMember) {
  members_[current_]->SetCurrent(false);
  current_ = zMember;
  ShowCurrent();
}

void MemberKeys::ShowCurrent() {
  const bool hasFocus = frame_->hasFocus();
  members_[current_]->SetCurrent(hasFocus);
  if (hasFocus) {
    QAccessibleEvent event(members_[current_], QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
  }
}

}  // namespace loquitor
