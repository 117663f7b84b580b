#pragma once

class QWidget;

namespace loquitor {

/// Moves a window that is about to be shown to the middle of its owner's screen, or of the primary
/// screen if it has no owner. Its title bar is always on the screen.
void Centre(QWidget* zWindow);

}  // namespace loquitor
