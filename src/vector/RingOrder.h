// Which way a ring runs and where it begins, for polygons and for the working rings of compilers: `Point` has
// `Lat` and `Lon` in degrees.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <tuple>
#include <vector>

namespace landsmith {

/// In square degrees; negative for a ring that runs clockwise on the map. 0 for fewer than 3 points.
template <class Point>
double SignedRingArea(const std::vector<Point>& ring) {
  double twice = 0;
  for (std::size_t k = 2; k < ring.size(); ++k) {
    const Point& origin = ring.front();
    twice += (ring[k - 1].Lon - origin.Lon) * (ring[k].Lat - origin.Lat) -
             (ring[k].Lon - origin.Lon) * (ring[k - 1].Lat - origin.Lat);
  }
  return twice / 2;
}

/// Judged by the turn at the northernmost point, the easternmost of several, which sticks out of any simple
/// ring. Where the ring goes back on itself there, its area tells. A ring without area counts as clockwise.
template <class Point>
bool RunsClockwise(const std::vector<Point>& ring) {
  if (ring.size() < 3) return true;
  const auto top = std::max_element(ring.begin(), ring.end(), [](const Point& a, const Point& b) {
    return std::tie(a.Lat, a.Lon) < std::tie(b.Lat, b.Lon);
  });
  const Point& before = top == ring.begin() ? ring.back() : *(top - 1);
  const Point& after = top + 1 == ring.end() ? ring.front() : *(top + 1);
  const double toX = top->Lon - before.Lon;
  const double toY = top->Lat - before.Lat;
  const double fromX = after.Lon - top->Lon;
  const double fromY = after.Lat - top->Lat;
  const double turn = toX * fromY - toY * fromX;
  constexpr double noTurn = 1e-12;  // what rounding leaves of a sine of 0
  if (std::fabs(turn) <= noTurn * std::hypot(toX, toY) * std::hypot(fromX, fromY))
    return SignedRingArea(ring) <= 0;
  return turn < 0;
}

/// Makes the ring run clockwise on the map. True when it was reversed.
template <class Point>
bool OrientPoly(std::vector<Point>& ring) {
  if (RunsClockwise(ring)) return false;
  std::reverse(ring.begin(), ring.end());
  return true;
}

/// The point at `first` becomes the first one; the ring stays what it is.
template <class Point>
void RotatePolyStart(std::vector<Point>& ring, std::size_t first) {
  std::rotate(ring.begin(), ring.begin() + static_cast<std::ptrdiff_t>(first), ring.end());
}

}  // namespace landsmith
