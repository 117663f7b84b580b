#pragma once

#include <qnamespace.h>

namespace loquitor {

/// Whether the focus moves from one control of the program to another, rather than to a menu or
/// because another window has come to the front.
constexpr bool IsMoveAmongControls(Qt::FocusReason zReason) {
  return zReason != Qt::ActiveWindowFocusReason && zReason != Qt::PopupFocusReason &&
         zReason != Qt::MenuBarFocusReason;
}

}  // namespace loquitor
