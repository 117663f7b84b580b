#include "ui/phrase/neighbour.h"

#include <limits>

namespace loquitor {
namespace {

/// The way from one member to another, centre to centre, seen along the arrow.
struct Way {
  long long ahead;  ///< above 0: it lies that way
  long long aside;
  bool isInLine;  ///< they share part of the row or column

  long long SquaredLength() const { return ahead * ahead + aside * aside; }
};

Way WayBetween(const TwipRect& zFrom, const TwipRect& zTo, Direction zDirection) {
  const int right = (zTo.left - zFrom.left) + (zTo.width - zFrom.width) / 2;
  const int down = (zTo.top - zFrom.top) + (zTo.height - zFrom.height) / 2;
  const bool sharesRow = zTo.top < zFrom.top + zFrom.height && zFrom.top < zTo.top + zTo.height;
  const bool sharesColumn =
      zTo.left < zFrom.left + zFrom.width && zFrom.left < zTo.left + zTo.width;
  switch (zDirection) {
    case Direction::Left:
      return {-right, down, sharesRow};
    case Direction::Right:
      return {right, down, sharesRow};
    case Direction::Up:
      return {-down, right, sharesColumn};
    case Direction::Down:
      break;
  }
  return {down, right, sharesColumn};
}

}  // namespace

std::size_t NeighbourOf(std::span<const TwipRect> zPlaces, std::size_t zCurrent,
                        Direction zDirection) {
  std::size_t best = zCurrent;
  Way bestWay{0, std::numeric_limits<int>::max(), false};
  for (std::size_t i = 0; i < zPlaces.size(); ++i) {
    const Way way = WayBetween(zPlaces[zCurrent], zPlaces[i], zDirection);
    const bool isNearer = way.isInLine != bestWay.isInLine
                              ? way.isInLine
                              : way.SquaredLength() < bestWay.SquaredLength();
    if (way.ahead > 0 && isNearer) {
      best = i;
      bestWay = way;
    }
  }
  return best;
}

}  // namespace loquitor
