// Rings on the lattice of Points of the whole world: X eastward, Y southward, 255 steps an Area, both counted
// from the north-west corner of the world. A Point on a border of Areas has one place here, whichever of them
// holds it.
#pragma once

#include "core/Grid.h"
#include "core/Records.h"

#include <algorithm>
#include <compare>
#include <cstdint>
#include <vector>

namespace landsmith::test {

inline constexpr std::int64_t PointsPerArea = 255, PointsPerCell = 255 * 32;

struct LatticePoint {
  std::int64_t X = 0, Y = 0;
  auto operator<=>(const LatticePoint&) const = default;
};
using LatticeRing = std::vector<LatticePoint>;

/// Twice the area of the triangle; above 0 for a turn clockwise on the map.
inline std::int64_t Turn(LatticePoint a, LatticePoint b, LatticePoint c) {
  return (b.X - a.X) * (c.Y - b.Y) - (b.Y - a.Y) * (c.X - b.X);
}

/// Twice the area; above 0 for a ring that runs clockwise on the map.
inline std::int64_t TwiceArea(const LatticeRing& ring) {
  std::int64_t twice = 0;
  for (std::size_t k = 2; k < ring.size(); ++k)
    twice += Turn(ring[0], ring[k - 1], ring[k]);
  return twice;
}

/// The vertices on the lattice, without those that meet the one before; clockwise.
inline LatticeRing SnappedRing(const std::vector<PolyPoint>& points) {
  LatticeRing ring;
  for (const PolyPoint& point : points) {
    const GridPosition at = ComputeGridPosition(point.Lat, point.Lon);
    const LatticePoint place{(at.CellX * 32 + at.AreaX) * PointsPerArea + at.PointX,
                             (at.CellY * 32 + at.AreaY) * PointsPerArea + at.PointY};
    if (ring.empty() || ring.back() != place) ring.push_back(place);
  }
  while (ring.size() > 1 && ring.back() == ring.front())
    ring.pop_back();
  if (TwiceArea(ring) < 0) std::reverse(ring.begin(), ring.end());
  return ring;
}

enum class Touching { Forbidden, Allowed };

/// Whether the segments cross; or, with `touching` forbidden, have a point in common.
inline bool Meet(LatticePoint a, LatticePoint b, LatticePoint c, LatticePoint d, Touching touching) {
  const auto sign = [](std::int64_t value) { return (value > 0) - (value < 0); };
  const int c1 = sign(Turn(a, b, c)), d1 = sign(Turn(a, b, d)), a2 = sign(Turn(c, d, a)),
            b2 = sign(Turn(c, d, b));
  if (c1 * d1 < 0 && a2 * b2 < 0) return true;
  if (touching == Touching::Allowed) return false;
  const auto between = [](LatticePoint p, LatticePoint q, LatticePoint at) {
    return at.X >= std::min(p.X, q.X) && at.X <= std::max(p.X, q.X) && at.Y >= std::min(p.Y, q.Y) &&
           at.Y <= std::max(p.Y, q.Y);
  };
  return (c1 == 0 && between(a, b, c)) || (d1 == 0 && between(a, b, d)) || (a2 == 0 && between(c, d, a)) ||
         (b2 == 0 && between(c, d, b));
}

/// No two edges cross. With `touching` forbidden, edges meet in the vertex between them alone.
inline bool IsSimple(const LatticeRing& ring, Touching touching = Touching::Forbidden) {
  const std::size_t n = ring.size();
  if (n < 3) return false;
  const auto next = [&](std::size_t k) { return k + 1 == n ? 0 : k + 1; };
  const auto west = [&](std::size_t k) { return std::min(ring[k].X, ring[next(k)].X); };
  const auto east = [&](std::size_t k) { return std::max(ring[k].X, ring[next(k)].X); };
  std::vector<std::size_t> order(n), active;
  for (std::size_t k = 0; k < n; ++k)
    order[k] = k;
  std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return west(a) < west(b); });
  for (const std::size_t k : order) {
    std::erase_if(active, [&](std::size_t other) { return east(other) < west(k); });
    for (const std::size_t other : active) {
      const std::size_t first = next(other) == k ? other : k, second = first == k ? other : k;
      if (next(first) == second) {  // neighbours: the second may not come back on the first
        const LatticePoint a = ring[first], b = ring[second], c = ring[next(second)];
        const bool comesBack =
            Turn(a, b, c) == 0 && (b.X - a.X) * (c.X - b.X) + (b.Y - a.Y) * (c.Y - b.Y) < 0;
        if (touching == Touching::Forbidden && comesBack) return false;
      } else if (Meet(ring[k], ring[next(k)], ring[other], ring[next(other)], touching)) {
        return false;
      }
    }
    active.push_back(k);
  }
  return true;
}

}  // namespace landsmith::test
