#include "ui/controls/text_box.h"

#include <QContextMenuEvent>
#include <QMenu>

#include "ui/controls/code_page.h"
#include "ui/controls/code_page_input.h"
#include "ui/controls/colours.h"
#include "ui/controls/focus_reason.h"
#include "ui/controls/keys.h"

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
  SetColours(this, QPalette::Base, QPalette::Text, zColor);
}

void TextBox::contextMenuEvent(QContextMenuEvent* zEvent) {
  // Qt deletes the menu when it closes. That is too early: it still works while its action runs,
  // and what a pasted text changes may let events run. This one is deleted with the box.
  createStandardContextMenu()->popup(zEvent->globalPos());
}

void TextBox::focusOutEvent(QFocusEvent* zEvent) {
  QLineEdit::focusOutEvent(zEvent);
  if (IsMoveAmongControls(zEvent->reason())) {
    emit LostFocus();
  }
}

void TextBox::keyPressEvent(QKeyEvent* zEvent) {
  QLineEdit::keyPressEvent(zEvent);
  if (IsEnter(*zEvent)) {
    zEvent->accept();
  }
}

}  // namespace loquitor
