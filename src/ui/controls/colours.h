#pragma once

#include <QColor>
#include <QPalette>

class QPainter;
class QRect;
class QWidget;

namespace loquitor {

/// Black or white, whichever is easier to read on `zBackground`.
QColor ReadableOn(const QColor& zBackground);

/// A calm colour for thin lines and borders on the window background of `zPalette`, light or dark.
QColor LineColour(const QPalette& zPalette);

/// Draws the mark of the focus just inside `zPlace`.
void DrawFocusMark(QPainter& zPainter, const QRect& zPlace, const QPalette& zPalette);

/// Gives `zWidget` this background in the role `zBackground`, and text in the role `zText` that is
/// readable on it. An invalid colour restores the desktop's.
void SetColours(QWidget* zWidget, QPalette::ColorRole zBackground, QPalette::ColorRole zText,
                const QColor& zColour);

}  // namespace loquitor
