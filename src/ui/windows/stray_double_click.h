#pragma once

class QWidget;

namespace loquitor {

/// Makes `zWindow` ignore a double click whose first press went to another window: to the one that
/// opened it, or to a box over it that the first press closed. To be called before the window is
/// shown for the first time.
void IgnoreStrayDoubleClicks(QWidget* zWindow);

}  // namespace loquitor
