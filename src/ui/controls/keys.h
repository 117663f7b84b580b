#pragma once

#include <QKeyEvent>

namespace loquitor {

/// Whether the key is Enter: the large one (Qt calls it Return) or the one on the number pad.
inline bool IsEnter(const QKeyEvent& zEvent) {
  return zEvent.key() == Qt::Key_Return || zEvent.key() == Qt::Key_Enter;
}

}  // namespace loquitor
