#include "ui/chip/phrase_tooltip.h"

namespace loquitor {
namespace {

/// `zText`, cut to the height of a screen. Qt would hide the beginning of a higher tooltip.
QString FittingText(const QString& zText) {
  constexpr int MostLines = 25;
  constexpr int MostCharacters = 2000;  // about as many lines of a tooltip
  const QString shown = zText.section(u'\n', 0, MostLines - 1).left(MostCharacters);
  return shown.size() < zText.size() ? shown + u'…' : shown;
}

}  // namespace

QString PhraseTooltip(const QString& zText) {
  return QStringLiteral("<p style='white-space:pre-wrap'>") + FittingText(zText).toHtmlEscaped() +
         QStringLiteral("</p>");
}

}  // namespace loquitor
