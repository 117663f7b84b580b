#include "ui/synth/name_completion.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStringListModel>
#include <utility>

#include "ui/toolkit/text_box.h"

namespace loquitor {

NameCompletion::NameCompletion(TextBox* zBox, std::function<QStringList()> zNames)
    : QObject(zBox), names_(std::move(zNames)), model_(new QStringListModel(this)) {
  auto* completer = new QCompleter(model_, this);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  list_ = completer->popup();
  // As a real popup it would swallow the click that closes it.
  list_->setParent(zBox->window(), Qt::ToolTip);
  list_->setFocusPolicy(Qt::NoFocus);
  zBox->setCompleter(completer);
  zBox->installEventFilter(this);
  zBox->window()->installEventFilter(this);
}

bool NameCompletion::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (zWatched != parent()) {
    if (zEvent->type() == QEvent::Move) {
      list_->hide();  // it would stay where the window was
    }
    return false;
  }
  switch (zEvent->type()) {
    case QEvent::FocusIn:
      model_->setStringList(names_());
      break;
    case QEvent::FocusOut:
    case QEvent::Hide:
      list_->hide();
      break;
    case QEvent::KeyPress:
      if (list_->isVisible() && IsForList(static_cast<QKeyEvent*>(zEvent))) {
        return true;
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(zWatched, zEvent);
}

bool NameCompletion::IsForList(QKeyEvent* zEvent) {
  switch (zEvent->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QCoreApplication::sendEvent(list_, zEvent);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      list_->hide();  // the box shows the choice already
      return true;
    default:
      return false;
  }
}

}  // namespace loquitor
