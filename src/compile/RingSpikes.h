// Rings without what has no area: repeated points, and spikes that go out and straight back.
#pragma once

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

/// The way from a over b to c goes straight back at b, or stands still there.
template <class Point>
bool IsSpike(const Point& a, const Point& b, const Point& c) {
  const std::int64_t forward = (std::int64_t{b.X} - a.X) * (std::int64_t{c.X} - b.X) +
                               (std::int64_t{b.Y} - a.Y) * (std::int64_t{c.Y} - b.Y);
  return Turn2(a, b, c) == 0 && forward <= 0;
}

/// `ring`: points with whole X and Y, the first not repeated. Of points that repeat, the first stays. May
/// leave fewer than 3.
template <class Point>
std::vector<Point> WithoutSpikes(std::span<const Point> ring) {
  const auto same = [](const Point& a, const Point& b) { return a.X == b.X && a.Y == b.Y; };
  std::vector<Point> kept;
  kept.reserve(ring.size());
  for (const Point& point : ring) {
    if (!kept.empty() && same(kept.back(), point)) continue;
    while (kept.size() >= 2 && IsSpike(kept[kept.size() - 2], kept.back(), point))
      kept.pop_back();
    if (kept.empty() || !same(kept.back(), point)) kept.push_back(point);
  }
  std::size_t first = 0;
  while (kept.size() - first >= 3) {  // where the end meets the beginning
    const Point& last = kept.back();
    if (same(last, kept[first]) || IsSpike(kept[kept.size() - 2], last, kept[first]))
      kept.pop_back();
    else if (IsSpike(last, kept[first], kept[first + 1]))
      ++first;
    else
      break;
  }
  kept.erase(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(first));
  return kept;
}

}  // namespace landsmith
