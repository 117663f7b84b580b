#pragma once

class QWidget;

namespace loquitor {

/// Makes `zWindow` ignore a double click whose first press went to another window: one that opened
/// it, or a box over it that the first press has closed. Must be called before the window is shown
/// for the first time.
void IgnoreStrayDoubleClicks(QWidget* zWindow);

}  // namespace loquitor
