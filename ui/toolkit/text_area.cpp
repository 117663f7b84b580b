#include "ui/toolkit/text_area.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include "ui/toolkit/code_page.h"
#include "ui/toolkit/focus_reason.h"
#include "ui/toolkit/refusal.h"
#include "ui/toolkit/unwrapped_layout.h"

namespace loquitor {
namespace {

/// The text as it is stored: line breaks are '\n'.
std::string StoredForm(QString zText) {
  zText.replace(QChar::ParagraphSeparator, u'\n');
  zText.replace(QChar::LineSeparator, u'\n');
  return ToBytes(zText);
}

}  // namespace

TextArea::TextArea(QWidget* zParent) : QPlainTextEdit(zParent) {
  setTabChangesFocus(true);
  verticalScrollBar()->setAccessibleName("Lines of the text");
  horizontalScrollBar()->setAccessibleName("Columns of the text");
}

void TextArea::StopWrapping() {
  setLineWrapMode(NoWrap);
  UnwrappedLayout::Install(document());
}

std::string TextArea::Text() const {
  return StoredForm(document()->toRawText());
}

void TextArea::SetText(std::string_view zBytes) {
  setPlainText(ToQString(zBytes));
}

void TextArea::ReplaceText(std::string_view zBytes) {
  QTextCursor cursor(document());
  cursor.select(QTextCursor::Document);
  InsertAsStep(cursor, ToQString(zBytes));
  moveCursor(QTextCursor::Start);
}

void TextArea::ReplaceSelection(std::string_view zBytes) {
  QTextCursor cursor = textCursor();
  InsertAsStep(cursor, ToQString(zBytes));
  setTextCursor(cursor);
}

/// Replaces what `zCursor` has selected, as one step that what is typed next is no part of: Qt
/// joins insertions that follow each other, but never across an unmodified state.
void TextArea::InsertAsStep(QTextCursor& zCursor, const QString& zText) {
  zCursor.beginEditBlock();
  zCursor.insertText(zText);
  zCursor.endEditBlock();
  document()->setModified(false);
}

std::string TextArea::SelectedText() const {
  return StoredForm(textCursor().selectedText());
}

int TextArea::SelectionStart() const {
  return textCursor().selectionStart();
}

int TextArea::SelectionLength() const {
  const QTextCursor cursor = textCursor();
  return cursor.selectionEnd() - cursor.selectionStart();
}

void TextArea::Select(int zStart, int zLength) {
  const int end = document()->characterCount() - 1;
  QTextCursor cursor = textCursor();
  cursor.setPosition(qBound(0, zStart, end));
  cursor.setPosition(qBound(0, zStart + zLength, end), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

char TextArea::CharacterAfterCaret() const {
  const int position = textCursor().position();
  if (position >= document()->characterCount() - 1) {
    return 0;
  }
  const std::string character = StoredForm(document()->characterAt(position));
  return character.empty() ? '\0' : character.front();
}

void TextArea::MoveCaretRight() {
  Select(textCursor().position() + 1, 0);
}

void TextArea::focusOutEvent(QFocusEvent* zEvent) {
  QPlainTextEdit::focusOutEvent(zEvent);
  if (IsMoveAmongControls(zEvent->reason())) {
    emit LostFocus();
  }
}

void TextArea::paintEvent(QPaintEvent* zEvent) {
  QPlainTextEdit::paintEvent(zEvent);
  UnwrappedLayout::ForgetLines(document());
}

void TextArea::keyPressEvent(QKeyEvent* zEvent) {
  UnwrappedLayout::ForgetLines(document());
  if (zEvent->matches(QKeySequence::InsertLineSeparator)) {
    textCursor().insertBlock();
    ensureCursorVisible();
    return;
  }
  const bool isCommand = zEvent->modifiers() == Qt::ControlModifier ||
                         zEvent->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  if (!isCommand && !CanHold(zEvent->text())) {
    ShowRefusal(this, zEvent->text());
    return;
  }
  QPlainTextEdit::keyPressEvent(zEvent);
}

void TextArea::insertFromMimeData(const QMimeData* zSource) {
  const QString text = Composed(zSource->text());
  if (!CanHold(text)) {
    ShowRefusal(this, text);
    return;
  }
  QTextCursor cursor = textCursor();
  InsertAsStep(cursor, text);
  setTextCursor(cursor);
  ensureCursorVisible();
}

QMimeData* TextArea::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(ToQString(SelectedText()));
  return copied;
}

void TextArea::inputMethodEvent(QInputMethodEvent* zEvent) {
  if (CanHold(zEvent->commitString())) {
    QPlainTextEdit::inputMethodEvent(zEvent);
    return;
  }
  ShowRefusal(this, zEvent->commitString());
  QInputMethodEvent withoutCommit;
  QPlainTextEdit::inputMethodEvent(&withoutCommit);
}

}  // namespace loquitor
