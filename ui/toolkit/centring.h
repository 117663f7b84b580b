#pragma once

class QWidget;

namespace loquitor {

/// Moves a window that is about to be shown to the middle of its owner's screen (the primary screen
/// without an owner), its title bar always on it.
void Centre(QWidget* zWindow);

}  // namespace loquitor
