#pragma once

#include <QColor>
#include <QPalette>

class QPainter;
class QRect;
class QWidget;

namespace loquitor {

/// The background of a control whose content deserves a second look, such as unsaved changes.
inline constexpr QColor WarningBackground{255, 232, 160};

/// The background of a box whose text was refused.
inline constexpr QColor RefusalBackground{255, 170, 170};

/// Black or white, whichever is easier to read on `zBackground`.
QColor ReadableOn(const QColor& zBackground);

/// A colour for thin lines and borders: between the window background and the window text of
/// `zPalette`.
QColor LineColour(const QPalette& zPalette);

/// Draws the focus mark: a frame of two pixels just inside `zPlace`, in the highlight colour of
/// `zPalette`. Changes the pen and the brush of `zPainter`.
void DrawFocusMark(QPainter& zPainter, const QRect& zPlace, const QPalette& zPalette);

/// Gives `zWidget` the background `zColour` in the role `zBackground`, and a text colour that is
/// readable on it in the role `zText`. An invalid colour restores the desktop's colours. Replaces
/// the whole palette that was set on the widget.
void SetColours(QWidget* zWidget, QPalette::ColorRole zBackground, QPalette::ColorRole zText,
                const QColor& zColour);

}  // namespace loquitor
