#pragma once

#include <QPlainTextEdit>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace loquitor {

/// How large a text may become by typing and pasting.
struct TextLimits {
  /// In characters. A key in a longer line could take longer than a frame of the screen.
  std::size_t longestLine = 40'000;
  std::size_t characters = std::numeric_limits<std::size_t>::max();  ///< with the line breaks
  std::size_t lines = std::numeric_limits<std::size_t>::max();
};

/// A text box with many lines. It gives back exactly the characters that it was given, as
/// Windows-1252 bytes. A line break is one '\n' in every text and one character in every position.
/// CR LF and a lone CR become '\n' when they are put in. Positions count characters from 0 on.
///
/// Ctrl with +, - and 0 or with the wheel changes the size of its letters. Its context menu shows
/// these and all other actions that are added to it.
///
/// What the user types or pastes is refused as a whole, with a hint, when it holds a character
/// outside Windows-1252 or would make a line or the text too long.
class TextArea : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit TextArea(QWidget* zParent);

  /// Turns the wrapping of lines off.
  void StopWrapping();

  /// How large the user can make the text. SetText and the Replace functions take any size.
  void SetLimits(const TextLimits& zLimits) { limits_ = zLimits; }

  std::string Text() const;

  /// Replaces the whole text: SetText forgets the undo history, ReplaceText is an undoable step of
  /// its own. Afterwards the caret is at the start.
  void SetText(std::string_view zBytes);
  void ReplaceText(std::string_view zBytes);

  /// Replaces the selection, or inserts at the caret when nothing is selected; an undoable step of
  /// its own. The caret ends after it.
  void ReplaceSelection(std::string_view zBytes);

  std::string SelectedText() const;
  int SelectionStart() const;  ///< the caret when nothing is selected
  int SelectionLength() const;

  /// Selects these characters, as far as the text has them. The caret is then at their end.
  void Select(int zStart, int zLength);

  /// The characters from `zStart` to before `zEnd`, as far as the text has them.
  std::string TextBetween(int zStart, int zEnd) const;

  /// The positions between which the visible part of the text is.
  std::pair<int, int> VisibleRange() const;

  /// A part of the text: its start and its length.
  using Range = std::pair<int, int>;

  /// Underlines these parts of the text as a spell checker does, and no others. Neither the text
  /// nor its undo history changes.
  void Underline(const std::vector<Range>& zParts);

  /// Moves the caret past the blanks after it and drops the selection.
  void SkipBlanks();

 protected:
  void contextMenuEvent(QContextMenuEvent* zEvent) override;
  void keyPressEvent(QKeyEvent* zEvent) override;
  void wheelEvent(QWheelEvent* zEvent) override;
  void insertFromMimeData(const QMimeData* zSource) override;
  QMimeData* createMimeDataFromSelection() const override;
  void inputMethodEvent(QInputMethodEvent* zEvent) override;

 private:
  void InsertAsStep(QTextCursor& zCursor, const QString& zText);
  void AddZoomActions();
  void Zoom(int zSteps);
  bool Takes(const QString& zText);
  bool FitsLineLimit(const QString& zText) const;
  bool FitsTextLimits(const QString& zText) const;
  void ChooseWrapping(qsizetype zLongestWord);

  TextLimits limits_;
};

}  // namespace loquitor
