#pragma once

class QWidget;

namespace loquitor {

/// Keeps the second half of the double click by which `zWindow` is opened out of it: else it would
/// double-click, or press, whatever control has come to lie under the mouse. Call before the window
/// is shown for the first time.
void KeepOpeningClickOut(QWidget* zWindow);

}  // namespace loquitor
