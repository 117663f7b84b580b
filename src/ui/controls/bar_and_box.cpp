#include "ui/controls/bar_and_box.h"

#include <algorithm>
#include <string>

#include "text/number_text.h"

namespace loquitor {

BarAndBox::BarAndBox(ScrollBar* zBar, TextBox* zBox, QObject* zParent)
    : QObject(zParent), bar_(zBar), box_(zBox) {
  const auto show = [this] {
    box_->SetText(std::to_string(bar_->value()));
    emit Changed();
  };
  connect(bar_, &ScrollBar::Change, this, show);
  connect(bar_, &ScrollBar::Scroll, this, show);
  connect(box_, &TextBox::LostFocus, this, &BarAndBox::BoxLeft);
}

void BarAndBox::TakeText() {
  const double typed = NumberAtStart(box_->Text());
  const double fitting = std::clamp(typed, 0.0, static_cast<double>(bar_->maximum()));
  const int value = RoundToWhole(fitting).value_or(0);
  if (typed != fitting) {
    box_->SetText(std::to_string(value));
  }
  bar_->setValue(value);
}

}  // namespace loquitor
