#pragma once

#include <QRect>
#include <QSize>

namespace loquitor {

inline constexpr int TwipsPerPixel = 15;  ///< 1440 twips an inch, 96 logical pixels an inch

/// Twips in logical pixels, rounded to the nearest.
constexpr int PixelsFromTwips(int zTwips) {
  return (zTwips + (zTwips < 0 ? -7 : 7)) / TwipsPerPixel;
}

/// A place in twips: left, top, width, height, relative to the client area of the window or to the
/// outer top left corner of the frame.
struct TwipRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  /// The same place in logical pixels.
  QRect ToPixels() const {
    return {PixelsFromTwips(left), PixelsFromTwips(top), PixelsFromTwips(width),
            PixelsFromTwips(height)};
  }
};

/// A size in twips.
struct TwipSize {
  int width = 0;
  int height = 0;

  /// The same size in logical pixels.
  QSize ToPixels() const { return {PixelsFromTwips(width), PixelsFromTwips(height)}; }
};

}  // namespace loquitor
