#pragma once

#include <string>
#include <string_view>

#include "ui/controls/click_label.h"

namespace loquitor {

/// A sunken label that is a Tab stop of its own; its text is right-aligned.
class SlotLabel : public ClickLabel {
  Q_OBJECT
 public:
  SlotLabel(const QString& zCaption, QWidget* zParent);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;

  /// Draws the border, `zText` inside it in that colour, and the mark of the focus.
  void Draw(const QString& zText, Qt::Alignment zAlignment, const QColor& zColour);
};

/// The row of one stored phrase. Its text is the whole Say Data. It is drawn as one line, elided
/// where the row ends, with arrows for line breaks. An empty row says how to fill it. The tooltip
/// is the text, cut when it would not fit the screen.
class PhraseLabel : public SlotLabel {
  Q_OBJECT
 public:
  /// `zSlot`: the number that a screen reader says before the phrase.
  PhraseLabel(int zSlot, QWidget* zParent);

  /// The Say Data as Windows-1252 bytes.
  std::string Phrase() const;

  /// Shows `zPhrase` (Windows-1252 bytes). If `zWarning` is not empty, the row is marked, and its
  /// tooltip begins with the warning.
  void SetPhrase(std::string_view zPhrase, const QString& zWarning);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  int slot_;
  bool isMarked_ = false;
};

}  // namespace loquitor
