#pragma once

class QWidget;

namespace loquitor {

/// Keeps the second half of a double click out of `zWindow` when the first half went to another
/// window: one that opened it, or a box over it that the first half has closed. It would
/// double-click, or press, whatever control lies under the mouse by then. Call before the window is
/// shown for the first time.
void KeepHalfClicksOut(QWidget* zWindow);

}  // namespace loquitor
