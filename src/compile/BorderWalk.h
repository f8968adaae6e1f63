// Makes closed rings of the pieces of a polygon's ring inside one square, by walking along the square's
// border from where the ring leaves it to where it comes back.
#pragma once

#include "compile/RingSquares.h"

#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

/// `Corner` counts 0 to 3 clockwise from the north-west for a corner of the square, -1 for any other point:
/// compilers give corners a place and an altitude of their own.
struct WalkedPoint {
  std::int32_t X = 0, Y = 0;
  float Alt = 0;
  std::int32_t Corner = -1;
};
using ClosedRing = std::vector<WalkedPoint>;

/// Corner `index` modulo 4 of a square of `side` Points.
WalkedPoint SquareCorner(std::int32_t index, std::int32_t side);

/// Twice the area; positive for a ring that runs clockwise on the map.
std::int64_t RingArea2(std::span<const WalkedPoint> ring);

/// The walk from Point to Point: each crossing of the border stands at its rounded Point. `list`: the ring's
/// vertices inside the square in ring order, beginning with one that enters. Right unless crossings meet in
/// one Point, in a corner, or an edge or a tip lies on the border. `dropSpikes` first takes out what leaves
/// the square where it came in. Nothing when so nothing is left.
std::vector<ClosedRing> WalkPoints(const std::vector<SquarePoint>& list, std::int32_t side, bool dropSpikes);

/// The walk by the exact places of the crossings on the border: right for every ring that does not cross
/// itself. `enclosedArea2` (twice the area that the ring encloses in the square) settles how often the border
/// is walked round. Repeated points and spikes go, and rings without area. On squares where the first walk is
/// right both give the same rings.
std::vector<ClosedRing> WalkExactly(const std::vector<SquarePoint>& list, std::int32_t side,
                                    std::int64_t enclosedArea2);

}  // namespace landsmith
