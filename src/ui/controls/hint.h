#pragma once

#include <QString>

class QWidget;

namespace loquitor {

/// Shows `zText` in a small bubble at `zControl` (at the caret if it has one) for eight seconds.
/// The bubble takes no click and no focus. Screen readers announce the text, which is also the
/// accessible description of `zControl` for that time. Does nothing when the same hint is shown.
void ShowHint(QWidget* zControl, const QString& zText);

}  // namespace loquitor
