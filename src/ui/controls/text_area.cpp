#include "ui/controls/text_area.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "ui/controls/code_page.h"
#include "ui/controls/code_page_input.h"
#include "ui/controls/hint.h"

namespace loquitor {
namespace {

constexpr int SmallestLetters = 8;  // pixels
constexpr int LargestLetters = 48;
constexpr qsizetype LongestWholeWord = 10'000;  // a key in a word of this length takes 4 ms

/// The bytes of a text of Qt's, with '\n' for each of its kinds of line break.
std::string StoredForm(QString zText) {
  zText.replace(QChar::ParagraphSeparator, u'\n');
  zText.replace(QChar::LineSeparator, u'\n');
  return ToBytes(zText);
}

/// The length of the longest part of `zText` without blanks and line breaks.
qsizetype LongestWord(const QString& zText) {
  qsizetype longest = 0;
  qsizetype length = 0;
  for (const QChar character : zText) {
    length = character.isSpace() ? 0 : length + 1;
    longest = std::max(longest, length);
  }
  return longest;
}

}  // namespace

TextArea::TextArea(QWidget* zParent) : QPlainTextEdit(zParent) {
  setTabChangesFocus(true);
  AddZoomActions();
  verticalScrollBar()->setAccessibleName("Lines of the text");
  horizontalScrollBar()->setAccessibleName("Columns of the text");
}

void TextArea::AddZoomActions() {
  const auto add = [this](const QString& zText, const QList<QKeySequence>& zKeys, auto zHandler) {
    QAction* action = addAction(zText, this, zHandler);
    action->setShortcuts(zKeys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
  };
  add("Larger Letters", {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { Zoom(1); });
  add("Smaller Letters", {Qt::CTRL | Qt::Key_Minus}, [this] { Zoom(-1); });
  add("Normal Letters", {Qt::CTRL | Qt::Key_0}, [this] { setFont({}); });
}

void TextArea::Zoom(int zSteps) {
  QFont zoomed = font();
  const int pixels = QFontInfo(zoomed).pixelSize() + zSteps;
  zoomed.setPixelSize(std::clamp(pixels, SmallestLetters, LargestLetters));
  setFont(zoomed);
}

void TextArea::wheelEvent(QWheelEvent* zEvent) {
  if (zEvent->modifiers() != Qt::ControlModifier) {
    QPlainTextEdit::wheelEvent(zEvent);
  } else if (zEvent->angleDelta().y() != 0) {
    Zoom(zEvent->angleDelta().y() > 0 ? 1 : -1);
  }
}

void TextArea::contextMenuEvent(QContextMenuEvent* zEvent) {
  // The menu is deleted with this box. Deleting it when it closes is too early: it still works
  // while its action runs, and the action may let events run.
  QMenu* menu = createStandardContextMenu(zEvent->pos());
  if (!isReadOnly()) {  // Qt does not show keys that an action of the window has too
    menu->actions().at(0)->setShortcut(QKeySequence::Undo);
    menu->actions().at(1)->setShortcut(QKeySequence::Redo);
  }
  menu->addSeparator();
  menu->addActions(actions());
  menu->popup(zEvent->globalPos());
}

void TextArea::StopWrapping() {
  setLineWrapMode(NoWrap);
}

std::string TextArea::Text() const {
  return StoredForm(document()->toRawText());
}

void TextArea::SetText(std::string_view zBytes) {
  const QString text = ToQString(zBytes);
  ChooseWrapping(LongestWord(text));
  setPlainText(text);
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

/// Replaces the selection of `zCursor`. What is typed next is an undoable step of its own: Qt joins
/// insertions that follow each other, but never across an unmodified state.
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

std::string TextArea::TextBetween(int zStart, int zEnd) const {
  const int end = document()->characterCount() - 1;
  QTextCursor cursor(document());
  cursor.setPosition(qBound(0, zStart, end));
  cursor.setPosition(qBound(0, zEnd, end), QTextCursor::KeepAnchor);
  return StoredForm(cursor.selectedText());
}

std::pair<int, int> TextArea::VisibleRange() const {
  return {cursorForPosition(viewport()->rect().topLeft()).position(),
          cursorForPosition(viewport()->rect().bottomRight()).position()};
}

void TextArea::Underline(const std::vector<Range>& zParts) {
  QTextCharFormat format;
  format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
  format.setUnderlineColor(Qt::red);
  std::vector<Range> shown;
  for (const QTextEdit::ExtraSelection& selection : extraSelections()) {
    const int start = selection.cursor.selectionStart();
    shown.emplace_back(start, selection.cursor.selectionEnd() - start);
  }
  if (shown == zParts) {
    return;  // setting them would ask for another update
  }
  QList<QTextEdit::ExtraSelection> selections;
  for (const auto& [start, length] : zParts) {
    QTextCursor cursor(document());
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    selections.push_back({cursor, format});
  }
  setExtraSelections(selections);
}

void TextArea::SkipBlanks() {
  int position = textCursor().position();
  while (document()->characterAt(position) == u' ') {
    ++position;
  }
  Select(position, 0);  // once, because each move of the caret lays the line out
}

void TextArea::keyPressEvent(QKeyEvent* zEvent) {
  if (zEvent->matches(QKeySequence::InsertLineSeparator)) {
    textCursor().insertBlock();
    ensureCursorVisible();
    return;
  }
  if (zEvent->key() == Qt::Key_Y && zEvent->modifiers() == Qt::ControlModifier) {
    redo();  // also on desktops where it has another key
    return;
  }
  const bool isCommand = zEvent->modifiers() == Qt::ControlModifier ||
                         zEvent->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
  // Keys such as Backspace have a text too.
  const QString text = zEvent->text();
  const bool isInsertion = !text.isEmpty() && (text.front().isPrint() || !CanHold(text));
  if (isCommand || !isInsertion || Takes(text)) {
    QPlainTextEdit::keyPressEvent(zEvent);
  }
}

/// Whether the user can insert `zText` now. Shows a hint if not; otherwise chooses the wrapping for
/// the text with it.
bool TextArea::Takes(const QString& zText) {
  if (!CanHold(zText)) {
    ShowForeignCharacter(this, zText);
    return false;
  }
  if (!FitsLineLimit(zText)) {
    ShowHint(this, QStringLiteral("Nothing was inserted: a line can have up to %L1 characters.")
                       .arg(limits_.longestLine));
    return false;
  }
  if (!FitsTextLimits(zText)) {
    ShowHint(this, QStringLiteral("Nothing was inserted: the text would become too long."));
    return false;
  }
  if (lineWrapMode() != NoWrap) {
    ChooseWrapping(LongestWord(document()->toRawText()) + LongestWord(zText));
  }
  return true;
}

/// Texts with a very long word are not broken between words. The time that Qt needs to find the end
/// of a word grows with the square of its length.
void TextArea::ChooseWrapping(qsizetype zLongestWord) {
  setWordWrapMode(zLongestWord > LongestWholeWord ? QTextOption::WrapAnywhere
                                                  : QTextOption::WrapAtWordBoundaryOrAnywhere);
}

bool TextArea::FitsLineLimit(const QString& zText) const {
  const QTextCursor cursor = textCursor();
  const QTextBlock last = document()->findBlock(cursor.selectionEnd());
  qsizetype length =
      cursor.selectionStart() - document()->findBlock(cursor.selectionStart()).position();
  qsizetype longest = 0;
  for (const QChar character : zText) {
    const bool isBreak = character == u'\n' || character == u'\r';
    longest = std::max(longest, length);
    length = isBreak ? 0 : length + 1;
  }
  const qsizetype rest = last.position() + last.length() - 1 - cursor.selectionEnd();
  return zText.isEmpty() ||
         std::cmp_less_equal(std::max(longest, length + rest), limits_.longestLine);
}

bool TextArea::FitsTextLimits(const QString& zText) const {
  const qsizetype kept = document()->characterCount() - 1 - SelectionLength();
  const std::string selected = SelectedText();
  const auto removed = std::count(selected.begin(), selected.end(), '\n');
  const qsizetype lines = blockCount() - removed + zText.count(u'\n');
  return zText.isEmpty() || (std::cmp_less_equal(kept + zText.size(), limits_.characters) &&
                             std::cmp_less_equal(lines, limits_.lines));
}

void TextArea::insertFromMimeData(const QMimeData* zSource) {
  const QString text = Composed(zSource->text());
  if (!Takes(text)) {
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
  if (Takes(zEvent->commitString())) {
    QPlainTextEdit::inputMethodEvent(zEvent);
    return;
  }
  QInputMethodEvent withoutCommit;
  QPlainTextEdit::inputMethodEvent(&withoutCommit);
}

}  // namespace loquitor
