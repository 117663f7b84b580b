#pragma once

#include <functional>

class QWidget;

namespace loquitor {

/// Does `zWork` in `zWindow`, which is open: shows the hourglass pointer over the window and
/// disables `zButton` (may be null) meanwhile, and lets pending events run before and after. If
/// these events close the window, `zWork` is not done. The button gets the focus back that it had,
/// unless the user has moved the focus. Calls may nest.
///
/// Returns whether the window is still open afterwards.
bool RunBusy(QWidget* zWindow, QWidget* zButton, const std::function<void()>& zWork);

}  // namespace loquitor
