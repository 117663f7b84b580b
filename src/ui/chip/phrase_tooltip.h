#pragma once

#include <QString>

namespace loquitor {

/// `zText` as a tooltip that Qt breaks into lines: rich text that shows every character as it is.
/// A text that is too long for a screen is cut, with an ellipsis.
QString PhraseTooltip(const QString& zText);

}  // namespace loquitor
