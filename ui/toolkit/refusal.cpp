#include "ui/toolkit/refusal.h"

#include <QAccessible>
#include <QTimer>
#include <QToolTip>
#include <QWidget>
#include <algorithm>

#include "ui/toolkit/code_page.h"

namespace loquitor {
namespace {

constexpr int HintMilliseconds = 8000;  // time enough to read it twice

/// The first character that the code page cannot hold, whole even outside the basic plane.
QString Culprit(const QString& zText) {
  for (const char32_t character : zText.toUcs4()) {
    const QString text = QString::fromUcs4(&character, 1);
    if (!CanHold(text)) {
      return text;
    }
  }
  return {};
}

QString HintFor(const QString& zText) {
  return QStringLiteral("“%1” cannot be used here: only Western European characters can be stored.")
      .arg(Culprit(zText));
}

/// Without line breaks: those at the ends go, each run inside becomes one blank.
QString InOneLine(const QString& zText) {
  const auto isBreak = [](QChar zCharacter) {
    return zCharacter == u'\n' || zCharacter == u'\r' || zCharacter == QChar::ParagraphSeparator ||
           zCharacter == QChar::LineSeparator;
  };
  if (std::none_of(zText.begin(), zText.end(), isBreak)) {
    return zText;
  }
  QString line;
  bool isBreakPending = false;
  for (const QChar character : zText) {
    if (isBreak(character)) {
      isBreakPending = !line.isEmpty();
      continue;
    }
    if (isBreakPending) {
      line += u' ';
      isBreakPending = false;
    }
    line += character;
  }
  return line;
}

}  // namespace

QString Composed(const QString& zText) {
  return CanHold(zText) ? zText : zText.normalized(QString::NormalizationForm_C);
}

void ShowRefusal(QWidget* zBox, const QString& zText) {
  const QString hint = HintFor(zText);
  if (QToolTip::isVisible() && QToolTip::text() == hint) {
    return;
  }
  const QRect caret = zBox->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  QToolTip::showText(zBox->mapToGlobal(caret.bottomLeft()), hint, zBox, {}, HintMilliseconds);
  zBox->setAccessibleDescription(hint);
  QTimer::singleShot(HintMilliseconds, zBox, [zBox] { zBox->setAccessibleDescription({}); });
  QAccessibleEvent announcement(zBox, QAccessible::Alert);
  QAccessible::updateAccessibility(&announcement);
}

QValidator::State CodePageValidator::validate(QString& zText, int& zCaret) const {
  const QString wanted = InOneLine(Composed(zText));
  if (!CanHold(wanted)) {
    QMetaObject::invokeMethod(
        box_, [box = box_, wanted] { ShowRefusal(box, wanted); }, Qt::QueuedConnection);
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
