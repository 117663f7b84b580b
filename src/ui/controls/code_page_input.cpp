#include "ui/controls/code_page_input.h"

#include <QRegularExpression>
#include <algorithm>

#include "ui/controls/code_page.h"
#include "ui/controls/hint.h"

namespace loquitor {
namespace {

/// The first character that the code page cannot hold. It is two UTF-16 units outside the basic
/// plane.
QString ForeignCharacter(const QString& zText) {
  for (const char32_t character : zText.toUcs4()) {
    const QString text = QString::fromUcs4(&character, 1);
    if (!CanHold(text)) {
      return text;
    }
  }
  return {};
}

QString WithoutLineBreaks(QString zText) {
  static const QRegularExpression lineBreaks("[\\r\\n\\x{2028}\\x{2029}]+");
  return zText.remove(lineBreaks);
}

}  // namespace

QString Composed(const QString& zText) {
  return CanHold(zText) ? zText : zText.normalized(QString::NormalizationForm_C);
}

void ShowForeignCharacter(QWidget* zBox, const QString& zText) {
  ShowHint(zBox, QStringLiteral(
                     "“%1” cannot be used here: only Western European characters can be stored.")
                     .arg(ForeignCharacter(zText)));
}

QValidator::State CodePageValidator::validate(QString& zText, int& zCaret) const {
  const QString wanted = WithoutLineBreaks(Composed(zText));
  if (!CanHold(wanted)) {
    // Later, when the box has taken the insertion back and its caret is where it was.
    QMetaObject::invokeMethod(
        box_, [box = box_, wanted] { ShowForeignCharacter(box, wanted); }, Qt::QueuedConnection);
    return Invalid;
  }
  if (wanted != zText) {
    zCaret -= static_cast<int>(zText.size() - wanted.size());
    zCaret = std::clamp(zCaret, 0, static_cast<int>(wanted.size()));
    zText = wanted;
  }
  return Acceptable;
}

}  // namespace loquitor
