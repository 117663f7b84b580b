#include "ui/synth/sound_name_box.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStringListModel>
#include <utility>

#include "ui/controls/code_page.h"
#include "ui/controls/colours.h"
#include "ui/controls/text_box.h"
#include "ui/synth/sound.h"

namespace loquitor {

SoundNameBox::SoundNameBox(TextBox* zBox, std::function<QStringList()> zNames)
    : QObject(zBox), box_(zBox), names_(std::move(zNames)), model_(new QStringListModel(this)) {
  auto* completer = new QCompleter(model_, this);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  list_ = completer->popup();
  // As a real popup it would swallow the click that closes it.
  list_->setParent(zBox->window(), Qt::ToolTip);
  list_->setFocusPolicy(Qt::NoFocus);
  zBox->setCompleter(completer);
  zBox->installEventFilter(this);
  zBox->window()->installEventFilter(this);
  connect(zBox, &TextBox::textChanged, this, &SoundNameBox::UpdateMark);
}

void SoundNameBox::UpdateMark() {
  const QString fault = FaultOfName();
  box_->SetBackground(fault.isEmpty() ? QColor() : WarningBackground);
  box_->setToolTip(fault);
  box_->setAccessibleDescription(fault);
}

QString SoundNameBox::FaultOfName() const {
  if (box_->text().isEmpty() || names_().contains(box_->text(), Qt::CaseInsensitive)) {
    return {};
  }
  const std::string_view fault = FaultOfSoundName(box_->Text());
  return fault.empty() ? "No sound has this name yet. Save creates it. Load would only set all "
                         "frequencies and volumes to 0."
                       : ToQString(fault);
}

bool SoundNameBox::eventFilter(QObject* zWatched, QEvent* zEvent) {
  if (zWatched != box_) {
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
      return OnKey(static_cast<QKeyEvent*>(zEvent));
    default:
      break;
  }
  return false;
}

bool SoundNameBox::OnKey(QKeyEvent* zEvent) {
  if (list_->isVisible()) {
    return ListTakes(zEvent);
  }
  if (zEvent->key() != Qt::Key_Down) {
    return false;
  }
  box_->completer()->setCompletionPrefix(box_->text());
  box_->completer()->complete();
  return true;
}

bool SoundNameBox::ListTakes(QKeyEvent* zEvent) {
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
      list_->hide();  // the box already shows the choice
      return true;
    default:
      return false;
  }
}

}  // namespace loquitor
