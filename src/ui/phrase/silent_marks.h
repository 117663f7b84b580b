#pragma once

#include <QObject>
#include <QTimer>

#include "core/say_data.h"
#include "ui/controls/text_area.h"

namespace loquitor {

/// Underlines, in the part of a Say Data box that is in view, the words and mnemonics for which the
/// chip gets no code. It looks again, in the next idle turn, after every change of the text or of
/// what is in view. Costs the length of what is in view, however long the text is.
class SilentMarks : public QObject {
  Q_OBJECT
 public:
  /// The area owns this object. `zTranslator` outlives both.
  SilentMarks(TextArea* zArea, const SayDataTranslator& zTranslator);

  /// Looks again in the next idle turn, because the dictionary may have changed.
  void LookAgain() { idle_.start(); }

 protected:
  bool eventFilter(QObject* zWatched, QEvent* zEvent) override;

 private:
  void Mark();

  TextArea* area_;
  const SayDataTranslator& translator_;
  QTimer idle_;
};

}  // namespace loquitor
