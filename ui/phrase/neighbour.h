#pragma once

#include <cstddef>
#include <span>

#include "ui/toolkit/twips.h"

namespace loquitor {

/// The way that an arrow key points.
enum class Direction { Left, Right, Up, Down };

/// The member that an arrow key leads to from `zCurrent`: the nearest one that lies that way and
/// shares part of its row (left, right) or column (up, down); where there is none, the nearest one
/// that lies that way at all; where there is none either, `zCurrent` itself.
std::size_t NeighbourOf(std::span<const TwipRect> zPlaces, std::size_t zCurrent,
                        Direction zDirection);

}  // namespace loquitor
