#pragma once

#include <QString>

namespace loquitor {

/// `zText` as rich text for a tooltip. Qt breaks it into lines and shows every character as it is.
/// A text that is too long for a screen is cut, with an ellipsis.
QString PhraseTooltip(const QString& zText);

}  // namespace loquitor
