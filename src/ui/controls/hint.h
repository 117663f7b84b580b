#pragma once

#include <QString>

class QWidget;

namespace loquitor {

/// Shows `zText` in a small bubble at `zControl` (at the caret if it has one) for eight seconds,
/// and announces it to screen readers. It takes no click and no focus. A hint that is already shown
/// is not repeated.
void ShowHint(QWidget* zControl, const QString& zText);

}  // namespace loquitor
