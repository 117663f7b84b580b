#pragma once

#include <QString>

class QWidget;

namespace loquitor {

/// `zText` in the form in which a tooltip shows it as plain text. A tooltip takes a text with
/// something like a tag for rich text, and a text that the user has typed may hold one.
QString PlainTooltip(const QString& zText);

/// Shows `zText` (plain text) in a small bubble at `zControl`, at the caret if it has one, for
/// eight seconds. The bubble takes no click and no focus. Screen readers announce the text, which
/// is also the accessible description of `zControl` for that time. Does nothing when the same hint
/// is shown.
void ShowHint(QWidget* zControl, const QString& zText);

}  // namespace loquitor
