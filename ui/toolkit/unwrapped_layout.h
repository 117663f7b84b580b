#pragma once

#include <QPlainTextEdit>
#include <QTextDocument>

namespace loquitor {

/// Lays out a QPlainTextEdit's document whose lines are never wrapped and hold no line separators,
/// for texts of a million lines. Qt keeps two kilobytes for each line that was ever drawn, fifty
/// times a dictionary; this layout forgets them all when they have become LinesKept, and those in
/// view are laid out again when they are next drawn. Nothing moves by it, and the cost of a step
/// through the text is on average the same however long the text is. Erasing in the longest line
/// costs no more than elsewhere (where Qt visits all lines, at 400 bytes each).
class UnwrappedLayout : public QPlainTextDocumentLayout {
  Q_OBJECT
 public:
  /// Gives `zDocument`, which must be shown by a QPlainTextEdit without wrapping, such a layout.
  static void Install(QTextDocument* zDocument);

  /// Forgets the lines of `zDocument` if it has such a layout and that holds too many. Its view
  /// calls this after drawing and before a key, when it has no line in hand.
  static void ForgetLines(QTextDocument* zDocument);

  /// How many lines are held at most; more than any screen shows.
  int LinesKept() const;

  QRectF blockBoundingRect(const QTextBlock& zLine) const override;

  /// In pixels how wide the widest line is that was in view, and in lines how high the text.
  QSizeF documentSize() const override;

 protected:
  void documentChanged(int zFrom, int zRemoved, int zAdded) override;

 private:
  using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

  void LayOut(const QTextBlock& zLine);
  void LineChanged(const QTextBlock& zLine);
  void NoteWidth(double zWidth);
  bool IsBeingComposed() const;

  double widest_ = 0;
  int lines_ = 0;
  int linesHeld_ = 0;
  int changedLine_ = 0;
  bool isNotingWidth_ = false;
};

}  // namespace loquitor
