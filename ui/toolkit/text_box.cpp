#include "ui/toolkit/text_box.h"

#include <QKeyEvent>

#include "ui/toolkit/code_page.h"
#include "ui/toolkit/colours.h"
#include "ui/toolkit/focus_reason.h"
#include "ui/toolkit/refusal.h"

namespace loquitor {

TextBox::TextBox(QWidget* zParent) : QLineEdit(zParent) {
  setValidator(new CodePageValidator(this));
}

std::string TextBox::Text() const {
  return ToBytes(text());
}

void TextBox::SetText(std::string_view zBytes) {
  setText(ToQString(zBytes));
}

void TextBox::SetBackground(const QColor& zColor) {
  background_ = zColor;
  SetColours(this, QPalette::Base, QPalette::Text, zColor);
}

void TextBox::focusOutEvent(QFocusEvent* zEvent) {
  QLineEdit::focusOutEvent(zEvent);
  if (IsMoveAmongControls(zEvent->reason())) {
    emit LostFocus();
  }
}

void TextBox::keyPressEvent(QKeyEvent* zEvent) {
  QLineEdit::keyPressEvent(zEvent);
  if (zEvent->key() == Qt::Key_Return || zEvent->key() == Qt::Key_Enter) {
    zEvent->accept();
  }
}

}  // namespace loquitor
