#pragma once

#include <functional>

class QWidget;

namespace loquitor {

/// Runs `zWork` for `zWindow`, which must be open. Meanwhile the pointer over the window is the
/// hourglass, and `zButton` (may be null) is disabled. Pending events run before and after `zWork`;
/// if those before it close the window, `zWork` is not run. A button that had the focus gets it
/// back unless the user has moved the focus. Calls may nest. The innermost ones of many leave the
/// events to those around them.
///
/// Returns whether the window is open at the end.
bool RunBusy(QWidget* zWindow, QWidget* zButton, const std::function<void()>& zWork);

}  // namespace loquitor
