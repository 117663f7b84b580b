#pragma once

#include <string>
#include <string_view>

#include "ui/toolkit/click_label.h"

namespace loquitor {

/// A label that is clicked by keyboard too: it takes the focus, and Space and Enter click it.
class SlotLabel : public ClickLabel {
  Q_OBJECT
 public:
  SlotLabel(const QString& zCaption, QWidget* zParent);

 protected:
  void keyPressEvent(QKeyEvent* zEvent) override;
  void focusInEvent(QFocusEvent* zEvent) override;
  void focusOutEvent(QFocusEvent* zEvent) override;
};

/// The row of one stored phrase. Its text is the whole Say Data; only its picture is one line,
/// elided where the row ends, with line breaks as arrows. The text is its tooltip, whole
/// but for one that would not fit the screen.
class PhraseLabel : public SlotLabel {
  Q_OBJECT
 public:
  /// `zSlot`: the number that a screen reader says before the phrase.
  PhraseLabel(int zSlot, QWidget* zParent);

  /// The Say Data as Windows-1252 bytes.
  std::string Phrase() const;

  /// Shows `zPhrase`. `zWarning`: when not empty, the row is marked, and its tooltip begins with
  /// this sentence.
  void SetPhrase(std::string_view zPhrase, const QString& zWarning);

 protected:
  void paintEvent(QPaintEvent* zEvent) override;

 private:
  int slot_;
  bool isMarked_ = false;
};

}  // namespace loquitor
