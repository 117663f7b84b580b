#pragma once

#include <QString>
#include <QValidator>
#include <QWidget>

namespace loquitor {

/// `zText` with its accents composed if only then the code page can hold it; otherwise unchanged.
QString Composed(const QString& zText);

/// Shows a hint at `zBox` that names the first character of `zText` that the code page cannot hold.
void ShowForeignCharacter(QWidget* zBox, const QString& zText);

/// Refuses each insertion into a one-line box that holds a character outside the code page, as a
/// whole and with a hint. Line breaks are left out.
class CodePageValidator : public QValidator {
  Q_OBJECT
 public:
  explicit CodePageValidator(QWidget* zBox) : QValidator(zBox), box_(zBox) {}

  State validate(QString& zText, int& zCaret) const override;

 private:
  QWidget* box_;
};

}  // namespace loquitor
