// Rings without what has no area: repeated points, and spikes that go out and straight back.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

/// Twice the area of the triangle a, b, c; with Y to the south positive when the way turns right at b.
template <class Point>
std::int64_t Turn2(const Point& a, const Point& b, const Point& c) {
  return (std::int64_t{b.X} - a.X) * (std::int64_t{c.Y} - b.Y) -
         (std::int64_t{b.Y} - a.Y) * (std::int64_t{c.X} - b.X);
}

/// The way from a over b to c goes straight back at b, or stands still there. With `width` above 0, in
/// Points, also when it goes back beside itself nearer than that.
template <class Point>
bool IsSpike(const Point& a, const Point& b, const Point& c, double width = 0) {
  const auto inX = static_cast<double>(b.X - a.X), inY = static_cast<double>(b.Y - a.Y);
  const auto outX = static_cast<double>(c.X - b.X), outY = static_cast<double>(c.Y - b.Y);
  if (inX * outX + inY * outY > 0) return false;
  const auto turn = static_cast<double>(Turn2(a, b, c));
  return std::fabs(turn) <= width * std::max(std::hypot(inX, inY), std::hypot(outX, outY));
}

/// `ring`: points with whole X and Y below 2^26, the first not repeated. Of points that repeat, the first
/// stays. May leave fewer than 3. `width`: see IsSpike.
template <class Point>
std::vector<Point> WithoutSpikes(std::span<const Point> ring, double width = 0) {
  const auto same = [](const Point& a, const Point& b) { return a.X == b.X && a.Y == b.Y; };
  std::vector<Point> kept;
  kept.reserve(ring.size());
  for (const Point& point : ring) {
    if (!kept.empty() && same(kept.back(), point)) continue;
    while (kept.size() >= 2 && IsSpike(kept[kept.size() - 2], kept.back(), point, width))
      kept.pop_back();
    if (kept.empty() || !same(kept.back(), point)) kept.push_back(point);
  }
  std::size_t first = 0;
  while (kept.size() - first >= 3) {  // where the end meets the beginning
    const Point& last = kept.back();
    if (same(last, kept[first]) || IsSpike(kept[kept.size() - 2], last, kept[first], width))
      kept.pop_back();
    else if (IsSpike(last, kept[first], kept[first + 1], width))
      ++first;
    else
      break;
  }
  kept.erase(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(first));
  return kept;
}

}  // namespace landsmith
