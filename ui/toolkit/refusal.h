#pragma once

#include <QPoint>
#include <QString>
#include <QValidator>
#include <QWidget>

namespace loquitor {

/// `zText` as the boxes may take it: itself, or its composed form when only that can be held.
/// Whether the result can be held says CanHold.
QString Composed(const QString& zText);

/// Tells the user, near the caret of `zBox`, that `zText` was refused because the code page cannot
/// hold it, and which character is to blame. A hint that is already up is not repeated.
void ShowRefusal(QWidget* zBox, const QString& zText);

/// Keeps characters that the code page cannot hold out of a one-line box: the insertion that brings
/// one is refused whole, with the hint. Line breaks of an insertion become blanks.
class CodePageValidator : public QValidator {
  Q_OBJECT
 public:
  explicit CodePageValidator(QWidget* zBox) : QValidator(zBox), box_(zBox) {}

  State validate(QString& zText, int& zCaret) const override;

 private:
  QWidget* box_;
};

}  // namespace loquitor
