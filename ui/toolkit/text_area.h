#pragma once

#include <QPlainTextEdit>
#include <string>
#include <string_view>

namespace loquitor {

/// A many-line text box. Gives back exactly the characters that it was given, as Windows-1252
/// bytes; a line break is one '\n' in all its texts and counts as one character in all its
/// positions (CR LF and a lone CR that are put in become '\n'). Characters outside Windows-1252 are
/// refused with a hint.
class TextArea : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit TextArea(QWidget* zParent);

  /// From now on no line is wrapped. For texts of any size: see UnwrappedLayout.
  void StopWrapping();

  std::string Text() const;

  /// Replaces the whole text: SetText forgets the undo history, ReplaceText is an undoable step of
  /// its own. Afterwards the caret stands at the start.
  void SetText(std::string_view zBytes);
  void ReplaceText(std::string_view zBytes);

  /// Replaces the selection, or inserts at the caret when nothing is selected; an undoable step of
  /// its own. The caret ends behind it.
  void ReplaceSelection(std::string_view zBytes);

  std::string SelectedText() const;
  int SelectionStart() const;  ///< where the selection begins; the caret when there is none
  int SelectionLength() const;
  void Select(int zStart, int zLength);

  /// The character (byte) behind the caret, or 0 at the end of the text.
  char CharacterAfterCaret() const;
  void MoveCaretRight();

 signals:
  /// As TextBox::LostFocus.
  void LostFocus();

 protected:
  void focusOutEvent(QFocusEvent* zEvent) override;
  void paintEvent(QPaintEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  void insertFromMimeData(const QMimeData* zSource) override;
  QMimeData* createMimeDataFromSelection() const override;
  void inputMethodEvent(QInputMethodEvent* zEvent) override;

 private:
  void InsertAsStep(QTextCursor& zCursor, const QString& zText);
};

}  // namespace loquitor
