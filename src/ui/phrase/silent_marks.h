#pragma once

#include <QObject>
#include <QTimer>

namespace loquitor {

class SayDataTranslator;
class TextArea;

/// Underlines the words and mnemonics of a Say Data box for which the chip gets no code. Looks at
/// what is in view only, so the time that it takes does not grow with the text. Looks again in the
/// next idle turn after every change of the text or of what is in view.
class SilentMarks : public QObject {
  Q_OBJECT
 public:
  /// The area owns this object. `zTranslator` outlives both.
  SilentMarks(TextArea* zArea, const SayDataTranslator& zTranslator);

  /// Looks again in the next idle turn. To be called when the dictionary may have changed.
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
