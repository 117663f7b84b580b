#pragma once

class QWidget;

namespace loquitor {

/// Moves a window that is about to be shown to the middle of its owner's screen, or of the primary
/// screen if it has no owner. A window that is larger than the screen starts at the screen's top
/// left corner. Does nothing without a screen.
void Centre(QWidget* zWindow);

}  // namespace loquitor
