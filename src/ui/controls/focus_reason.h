#pragma once

#include <qnamespace.h>

namespace loquitor {

/// Whether a focus change for this reason is a move between two controls: not to or from a menu,
/// and not because a window has become the active one.
constexpr bool IsMoveAmongControls(Qt::FocusReason zReason) {
  return zReason != Qt::ActiveWindowFocusReason && zReason != Qt::PopupFocusReason &&
         zReason != Qt::MenuBarFocusReason;
}

}  // namespace loquitor
