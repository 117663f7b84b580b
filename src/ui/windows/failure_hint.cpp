#include "ui/windows/failure_hint.h"

#include <QApplication>

#include "ui/controls/hint.h"

namespace loquitor {

FailureHint::FailureHint() {
  constexpr int betweenLooks = 50;  // milliseconds
  wait_.setInterval(betweenLooks);
  QObject::connect(&wait_, &QTimer::timeout, &wait_, [this] { ShowWhenReleased(); });
}

void FailureHint::Tell(const QString& zText) {
  control_ = lastUsed_.Get();  // now, because a handler may move the focus later
  text_ = zText;
  wait_.start();
}

void FailureHint::ShowWhenReleased() {
  if (QApplication::mouseButtons() != Qt::NoButton) {
    return;
  }
  wait_.stop();
  QWidget* control = control_ && control_->isVisible() ? control_.data() : lastUsed_.Get();
  if (control != nullptr) {
    ShowHint(control, text_);
  }
}

}  // namespace loquitor
