// Random simple polygons for whoever cuts polygons. They are made on the lattice of Points, where the grid's
// lines and corners can be hit, and are then placed in degrees on and beside the Points.
#pragma once

#include "support/Lattice.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace landsmith::test {

/// The same numbers on every machine.
class Chance {
public:
  explicit Chance(std::uint64_t seed) : m_state(seed) { m_state = Next() ^ (seed << 32); }
  std::uint64_t Next() {
    std::uint64_t z = m_state += 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
  }
  std::int64_t Between(std::int64_t least, std::int64_t most) {
    return least + static_cast<std::int64_t>(Next() % static_cast<std::uint64_t>(most - least + 1));
  }
  double Real(double least, double most) {
    return least + (most - least) * static_cast<double>(Next() >> 11) * 0x1p-53;
  }
  bool OneIn(std::int64_t n) { return Between(1, n) == 1; }

private:
  std::uint64_t m_state;
};

enum class RingKind {
  Convex,
  Star,
  Tangle,       ///< any concave ring through random points
  GridTangle,   ///< the same through points on lines and corners of the grid and within steps of them
  Rectangular,  ///< edges along both axes, many of them on lines
  Comb,
  Spiral,
  Sliver,
  Coast
};
inline constexpr int RingKinds = 9;

struct RandomPoly {
  RingKind Kind = RingKind::Convex;
  std::vector<PolyPoint> Points;
  LatticeRing Snapped;  ///< clockwise
};

namespace generators {

inline constexpr double Pi = 3.14159265358979323846;

/// What a ring is made of: `unit` Points between lines of the grid, an extent of `size` Points.
struct Frame {
  std::int64_t unit = PointsPerArea, size = PointsPerArea;
};

inline LatticePoint Polar(double angle, double radius) {
  return {std::llround(radius * std::cos(angle)), std::llround(radius * std::sin(angle))};
}

inline LatticeRing Hull(LatticeRing points) {
  std::sort(points.begin(), points.end());
  LatticeRing hull;
  for (int side = 0; side < 2; ++side) {
    const std::size_t start = hull.size();
    for (const LatticePoint& at : points) {
      while (hull.size() >= start + 2 && Turn(hull[hull.size() - 2], hull.back(), at) <= 0)
        hull.pop_back();
      hull.push_back(at);
    }
    hull.pop_back();
    std::reverse(points.begin(), points.end());
  }
  return hull;
}

inline LatticeRing Convex(Chance& chance, const Frame& frame) {
  LatticeRing points;
  for (std::int64_t k = chance.Between(3, 24); k > 0; --k)
    points.push_back({chance.Between(0, frame.size), chance.Between(0, frame.size)});
  return Hull(points);
}

inline LatticeRing Star(Chance& chance, const Frame& frame) {
  const std::int64_t n = chance.Between(4, 40);
  const double inner = chance.Real(0.05, 0.9);
  LatticeRing ring;
  for (std::int64_t k = 0; k < n; ++k)
    ring.push_back(
        Polar(2 * Pi * (static_cast<double>(k) + chance.Real(0, 0.9)) / static_cast<double>(n),
              static_cast<double>(frame.size) / 2 * (k % 2 == 0 ? 1 : inner) * chance.Real(0.7, 1)));
  return ring;
}

/// Turns stretches round until no edges cross: each turn makes the ring shorter, so it ends.
inline LatticeRing Untangled(LatticeRing ring) {
  const std::size_t n = ring.size();
  for (bool again = true; again;) {
    again = false;
    for (std::size_t i = 0; i + 2 < n; ++i)
      for (std::size_t j = i + 2; j < n; ++j)
        if (!(i == 0 && j + 1 == n) &&
            Meet(ring[i], ring[i + 1], ring[j], ring[(j + 1) % n], Touching::Allowed)) {
          std::reverse(ring.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                       ring.begin() + static_cast<std::ptrdiff_t>(j) + 1);
          again = true;
        }
  }
  return ring;
}

inline LatticeRing Tangle(Chance& chance, const Frame& frame) {
  LatticeRing ring;
  for (std::int64_t k = chance.Between(4, 16); k > 0; --k)
    ring.push_back({chance.Between(0, frame.size), chance.Between(0, frame.size)});
  return Untangled(ring);
}

/// On a line, within three steps of one, or halfway between two.
inline std::int64_t NearLine(Chance& chance, const Frame& frame) {
  const std::int64_t line =
      chance.Between(0, std::max<std::int64_t>(1, frame.size / frame.unit)) * frame.unit;
  const std::int64_t kind = chance.Between(0, 9);
  if (kind < 5) return line;
  if (kind < 8) return line + chance.Between(-3, 3);
  return line + frame.unit / 2 + chance.Between(-2, 2);
}

inline LatticeRing GridTangle(Chance& chance, const Frame& frame) {
  LatticeRing ring;
  const bool mixed = chance.OneIn(3);
  for (std::int64_t k = chance.Between(3, 9); k > 0; --k) {
    const bool free = mixed && chance.OneIn(3);
    ring.push_back({free ? chance.Between(0, frame.size) : NearLine(chance, frame), NearLine(chance, frame)});
  }
  return Untangled(ring);
}

/// Columns side by side, neighbours sharing a stretch.
inline LatticeRing Rectangular(Chance& chance, const Frame& frame) {
  std::vector<std::int64_t> xs;
  for (std::int64_t k = chance.Between(2, 7); k > 0; --k)
    xs.push_back(NearLine(chance, frame));
  std::sort(xs.begin(), xs.end());
  xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
  LatticeRing top, bottom;
  std::int64_t lastTop = std::numeric_limits<std::int64_t>::min(), lastBottom = -lastTop - 1;
  for (std::size_t k = 0; k + 1 < xs.size(); ++k) {
    std::int64_t y1 = NearLine(chance, frame), y2 = NearLine(chance, frame);
    if (y1 > y2) std::swap(y1, y2);
    if (y1 == y2 || y2 <= lastTop || y1 >= lastBottom) break;
    top.insert(top.end(), {{xs[k], y1}, {xs[k + 1], y1}});
    bottom.insert(bottom.end(), {{xs[k], y2}, {xs[k + 1], y2}});
    lastTop = y1;
    lastBottom = y2;
  }
  top.insert(top.end(), bottom.rbegin(), bottom.rend());
  top.erase(std::unique(top.begin(), top.end()), top.end());
  return top;
}

inline LatticeRing Comb(Chance& chance, const Frame& frame) {
  const std::int64_t teeth = chance.Between(2, 14);
  const std::int64_t step = std::max<std::int64_t>(4, frame.size / teeth);
  const bool square = chance.OneIn(2);
  LatticeRing ring{{0, frame.size}, {0, frame.size / 2}};
  for (std::int64_t k = 0; k < teeth; ++k) {
    const std::int64_t x = k * step, tip = chance.Between(-frame.size / 2, frame.size / 3);
    const std::int64_t foot = frame.size / 2 - chance.Between(0, frame.size / 20 + 1);
    if (square)
      ring.insert(ring.end(),
                  {{x + step / 4, foot}, {x + step / 4, tip}, {x + step / 2, tip}, {x + step / 2, foot}});
    else
      ring.insert(ring.end(), {{x + chance.Between(1, step / 2), tip}, {x + step - 1, foot}});
  }
  ring.push_back({teeth * step, frame.size});
  return ring;
}

inline LatticeRing Spiral(Chance& chance, const Frame& frame) {
  const double turns = chance.Real(1, 4);
  const std::int64_t n = chance.Between(12, 40);
  const double gap = static_cast<double>(frame.size) / 2 / (turns + 1);
  const double width = gap * chance.Real(0.2, 0.8);
  LatticeRing ring;
  for (const bool out : {true, false})
    for (std::int64_t k = 0; k <= n; ++k) {
      const double at = turns * static_cast<double>(out ? k : n - k) / static_cast<double>(n);
      ring.push_back(Polar(2 * Pi * at, gap * (1 + at) - (out ? 0 : width)));
    }
  return ring;
}

/// One to three Points wide, in any direction or along a line of the grid.
inline LatticeRing Sliver(Chance& chance, const Frame& frame) {
  LatticePoint a{0, chance.Between(-2, 2)}, b{frame.size, chance.Between(-2, 2)};
  if (chance.OneIn(2)) {
    a = {chance.Between(0, frame.size), 0};
    b = {chance.Between(0, frame.size), frame.size};
  }
  LatticeRing ring{a, b};
  const double width = chance.Real(1, 3);
  const double length = std::hypot(b.X - a.X, b.Y - a.Y);
  const double eastward = -static_cast<double>(b.Y - a.Y) / length,
               southward = static_cast<double>(b.X - a.X) / length;
  for (std::int64_t k = chance.Between(1, 4); k > 0; --k) {
    const double t = static_cast<double>(k) / 5 + chance.Real(0, 0.15);
    ring.push_back(
        {std::llround(static_cast<double>(a.X) + t * static_cast<double>(b.X - a.X) + width * eastward),
         std::llround(static_cast<double>(a.Y) + t * static_cast<double>(b.Y - a.Y) + width * southward)});
  }
  return ring;
}

/// Headlands within headlands, each a fifth of the shore that it stands on.
inline LatticeRing CoastOf(Chance& chance, std::size_t vertices, double radius, double roughness) {
  std::vector<std::pair<double, double>> shore;
  for (int k = 0; k < 6; ++k) {
    const double angle = 2 * Pi * k / 6;
    shore.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
  }
  while (shore.size() < vertices) {
    std::vector<std::pair<double, double>> finer;
    for (std::size_t k = 0; k < shore.size(); ++k) {
      const auto [x1, y1] = shore[k];
      const auto [x2, y2] = shore[(k + 1) % shore.size()];
      const double shift = chance.Real(-roughness, roughness);
      finer.push_back(shore[k]);
      if (finer.size() + shore.size() - k <= vertices + 1)
        finer.emplace_back((x1 + x2) / 2 + (y2 - y1) * shift, (y1 + y2) / 2 - (x2 - x1) * shift);
    }
    shore = std::move(finer);
  }
  LatticeRing ring;
  for (const auto& [x, y] : shore) {
    const LatticePoint at{std::llround(x), std::llround(y)};
    if (ring.empty() || ring.back() != at) ring.push_back(at);
  }
  return ring;
}

inline LatticeRing Coast(Chance& chance, const Frame& frame) {
  const auto vertices = static_cast<std::size_t>(chance.Between(60, chance.OneIn(8) ? 4000 : 500));
  const double radius = std::max(static_cast<double>(frame.size) / 2, static_cast<double>(vertices));
  return CoastOf(chance, vertices, radius, chance.Real(0.05, 0.28));
}

inline LatticeRing RingOfKind(RingKind kind, Chance& chance, const Frame& frame) {
  static constexpr std::array makers{Convex, Star,   Tangle, GridTangle, Rectangular,
                                     Comb,   Spiral, Sliver, Coast};
  static_assert(makers.size() == RingKinds);
  return makers[static_cast<std::size_t>(kind)](chance, frame);
}

/// Where in the world, in Points. Corners of Cells are near often.
inline LatticePoint PlaceInWorld(Chance& chance, const Frame& frame) {
  static constexpr std::int64_t width = PointsPerCell * 768;
  static constexpr std::array<LatticePoint, 6> cells{
      {{384, 256}, {405, 120}, {0, 200}, {767, 130}, {766, 300}, {130, 400}}};
  const LatticePoint cell = cells[static_cast<std::size_t>(chance.Between(0, 5))];
  LatticePoint place{cell.X * PointsPerCell, cell.Y * PointsPerCell};
  if (!chance.OneIn(3)) place.X += chance.Between(0, PointsPerCell / frame.unit) * frame.unit;
  if (!chance.OneIn(3)) place.Y += chance.Between(0, PointsPerCell / frame.unit) * frame.unit;
  if (chance.OneIn(2)) {
    place.X -= chance.Between(0, frame.unit);
    place.Y -= chance.Between(0, frame.unit);
  }
  return {std::clamp<std::int64_t>(place.X, 0, width), place.Y};
}

/// How vertices lie to their Points.
enum class Beside { Exactly, OnLines, SomeUlps, WithinHalfAStep, AtHalfAStep, AnyOfThem };

/// Degrees from the grid's origin to Point `at`.
inline double Degrees(std::int64_t at, double areaSize, double step, Beside beside, Chance& chance) {
  if (beside == Beside::AnyOfThem) beside = static_cast<Beside>(chance.Between(0, 4));
  const double line = static_cast<double>(at / PointsPerArea) * areaSize;
  const std::int64_t point = at % PointsPerArea;
  double degrees = line + static_cast<double>(point) * step;
  if (beside == Beside::Exactly && point == 0) degrees += step / 1000 * (chance.OneIn(2) ? 1 : -1);
  if (beside == Beside::SomeUlps)
    for (std::int64_t k = chance.Between(0, 3), side = chance.Between(0, 1); k > 0; --k)
      degrees = std::nextafter(degrees, side == 0 ? 0 : 1000);
  if (beside == Beside::WithinHalfAStep) degrees += step * chance.Real(-0.49, 0.49);
  if (beside == Beside::AtHalfAStep) degrees += step * (chance.OneIn(2) ? 0.5 : -0.5);
  return std::clamp(degrees, 0.0, 360.0);
}

inline std::vector<PolyPoint> InDegrees(const LatticeRing& ring, Beside beside, Chance& chance) {
  std::vector<PolyPoint> points;
  for (const LatticePoint& at : ring) {
    PolyPoint& point = points.emplace_back();
    point.Lon = Degrees(at.X, AreaWidth, StepLon, beside, chance) - 180;
    point.Lat = 90 - Degrees(at.Y, AreaHeight, StepLat, beside, chance);
  }
  return points;
}

/// Moved to `place` as a whole, so that nothing crosses the date line.
inline void MoveTo(LatticeRing& ring, LatticePoint place) {
  const auto [west, east] = std::minmax_element(ring.begin(), ring.end());
  const std::int64_t dateLine = PointsPerCell * 768;
  if (place.X + west->X < 0) place.X = -west->X;
  if (place.X + east->X > dateLine) place.X = dateLine - east->X;
  for (LatticePoint& at : ring)
    at = {at.X + place.X, at.Y + place.Y};
}

}  // namespace generators

/// The polygon that belongs to the seed, for a grid whose lines are `unit` Points apart. Simple on the
/// lattice and never collapsed; either direction, any start.
inline RandomPoly MakeRandomPoly(std::uint64_t seed, std::int64_t unit) {
  using namespace generators;
  Chance chance(seed);
  RandomPoly poly;
  poly.Kind = static_cast<RingKind>(chance.OneIn(12) ? RingKinds - 1 : chance.Between(0, RingKinds - 2));
  for (;;) {
    const double areas = std::exp(chance.Real(std::log(0.05), std::log(8)));
    const Frame frame{unit, std::max<std::int64_t>(8, std::llround(areas * static_cast<double>(unit)))};
    LatticeRing ring = RingOfKind(poly.Kind, chance, frame);
    if (chance.OneIn(2))
      for (LatticePoint& at : ring)
        std::swap(at.X, at.Y);
    if (chance.OneIn(6))
      for (LatticePoint& at : ring)  // leaning; whole steps keep it simple
        at.X += at.Y;
    if (!IsSimple(ring)) continue;
    std::rotate(ring.begin(), ring.begin() + chance.Between(0, static_cast<std::int64_t>(ring.size()) - 1),
                ring.end());
    if (chance.OneIn(2)) std::reverse(ring.begin(), ring.end());
    MoveTo(ring, PlaceInWorld(chance, frame));
    poly.Points = InDegrees(ring, static_cast<Beside>(chance.Between(0, 5)), chance);
    poly.Snapped = SnappedRing(poly.Points);
    if (IsSimple(poly.Snapped)) return poly;
  }
}

/// A shore of so many vertices in a circle of `areas` Areas in the middle of Europe. Its vertices lie
/// anywhere, where they are many closer than the Points.
inline std::vector<PolyPoint> CoastLikeRing(std::size_t vertices, double areas) {
  using namespace generators;
  constexpr double fine = 4096;  // parts of a Point
  for (std::uint64_t seed = 1;; ++seed) {
    Chance chance(seed);
    const LatticeRing ring = CoastOf(chance, vertices, areas / 2 * PointsPerArea * fine, 0.2);
    if (!IsSimple(ring)) continue;
    std::vector<PolyPoint> points;
    for (const LatticePoint& at : ring)
      points.push_back({10 + static_cast<double>(at.X) / fine * StepLon,
                        50 - static_cast<double>(at.Y) / fine * StepLat, 0, false});
    return points;
  }
}

}  // namespace landsmith::test
