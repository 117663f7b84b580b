#pragma once

#include <QString>
#include <QValidator>
#include <QWidget>

namespace loquitor {

/// `zText` if the code page can hold it; otherwise `zText` with its accents composed (normalization
/// form C).
QString Composed(const QString& zText);

/// Shows a hint at `zBox` that names the first character of `zText` that the code page cannot hold.
/// There must be one.
void ShowForeignCharacter(QWidget* zBox, const QString& zText);

/// For one-line boxes. Refuses an insertion as a whole, with a hint at the box, if it contains a
/// character that the code page cannot hold. Composes accents and leaves line breaks out.
class CodePageValidator : public QValidator {
  Q_OBJECT
 public:
  /// `zBox` owns this object.
  explicit CodePageValidator(QWidget* zBox) : QValidator(zBox), box_(zBox) {}

  State validate(QString& zText, int& zCaret) const override;

 private:
  QWidget* box_;
};

}  // namespace loquitor
