#include "vector/Triangulation.h"

#include "vector/ShrinkingRing.h"
#include "vector/VertexTree.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace landsmith {
namespace {

/// Above 0 at a vertex where the ring turns as a clockwise one does; Y to the north.
double TurnAt(PlanePoint before, PlanePoint at, PlanePoint after) {
  const double aX = at.X - before.X;
  const double aY = at.Y - before.Y;
  const double bX = after.X - at.X;
  const double bY = after.Y - at.Y;
  return aY * bX - bY * aX;
}

/// Whether the ray from `p` to the west meets the edge. An edge has its southern end and not its northern
/// one.
bool RayMeetsEdge(PlanePoint from, PlanePoint to, PlanePoint p) {
  if (from.Y == to.Y) return false;
  if (p.Y >= from.Y && p.Y >= to.Y) return false;
  if (p.Y < from.Y && p.Y < to.Y) return false;
  if (p.X > from.X && p.X > to.X) return true;
  if (p.X < from.X && p.X < to.X) return false;
  // Reckoned from the southern end whichever way the edge runs: a vertex on a cut is in the triangle on one
  // side of it and not in that on the other, and rounding must not put it in both or in neither.
  const auto& [south, north] = from.Y < to.Y ? std::pair(from, to) : std::pair(to, from);
  return p.X >= south.X + (north.X - south.X) * (p.Y - south.Y) / (north.Y - south.Y);
}

bool IsInTriangle(const PlaneTriangle& triangle, PlanePoint p) {
  const auto& [a, b, c] = triangle;
  return (RayMeetsEdge(a, b, p) != RayMeetsEdge(b, c, p)) != RayMeetsEdge(c, a, p);
}

class EarClipper {
public:
  explicit EarClipper(std::vector<PlanePoint> points)
      : m_points(std::move(points)),
        m_ring(static_cast<std::int32_t>(m_points.size())),
        m_queue(m_ring.Size()),
        m_tree(m_points) {
    for (std::int32_t v = 0; v < m_ring.Size(); ++v)
      m_tree.SetPresent(v, true);
  }

  Triangulation Run() {
    Triangulation result;
    result.Triangles.reserve(m_points.size() - 2);
    std::int32_t samePlace = m_ring.After(m_ring.First());
    while (m_ring.Size() > 3) {
      auto ear = FindEar();
      if (!ear) {
        result.HasFault = true;
        ear = samePlace == m_ring.First() ? m_ring.Before(samePlace) : samePlace;
      }
      samePlace = m_ring.After(*ear);
      result.Triangles.push_back(Clip(*ear));
    }
    const std::int32_t first = m_ring.First();
    result.Triangles.push_back({first, m_ring.After(first), m_ring.Before(first)});
    return result;
  }

private:
  PlanePoint At(std::int32_t v) const { return m_points[static_cast<std::size_t>(v)]; }

  std::optional<std::int32_t> FindEar() {
    while (const auto v = m_queue.Take()) {
      if (!m_ring.Holds(*v) || *v == m_ring.First()) continue;
      const std::int32_t before = m_ring.Before(*v);
      const std::int32_t after = m_ring.After(*v);
      if (TurnAt(At(before), At(*v), At(after)) < 0) continue;
      const auto inside = FindInside(before, *v, after);
      if (!inside) return v;
      m_queue.Hinder(*v, *inside);
    }
    return std::nullopt;
  }

  std::optional<std::int32_t> FindInside(std::int32_t before, std::int32_t v, std::int32_t after) const {
    const PlaneTriangle triangle{At(before), At(v), At(after)};
    // Mostly it is the next one along the ring that is in the way.
    for (const std::int32_t next : {m_ring.After(after), m_ring.Before(before)})
      if (IsInTriangle(triangle, At(next))) return next;
    return m_tree.FindIn(triangle, [&](std::int32_t m) {
      return m != before && m != v && m != after && IsInTriangle(triangle, At(m));
    });
  }

  Triangle Clip(std::int32_t v) {
    const Triangle ear{m_ring.Before(v), v, m_ring.After(v)};
    m_ring.Remove(v);
    m_tree.SetPresent(v, false);
    m_queue.Release(v);
    m_queue.Add(ear.A);
    m_queue.Add(ear.C);
    return ear;
  }

  std::vector<PlanePoint> m_points;
  ShrinkingRing m_ring;
  CutQueue m_queue;
  VertexTree m_tree;
};

/// The ring on whole numbers so small that the arithmetic above is exact. Of a ring of one degree a step is 7
/// mm.
std::vector<PlanePoint> OnWholeNumbers(std::vector<PlanePoint> points) {
  constexpr double steps = 1 << 24;
  const auto [west, east] =
      std::minmax_element(points.begin(), points.end(), [](PlanePoint a, PlanePoint b) { return a.X < b.X; });
  const auto [south, north] =
      std::minmax_element(points.begin(), points.end(), [](PlanePoint a, PlanePoint b) { return a.Y < b.Y; });
  const PlanePoint origin{west->X, south->Y};
  const double scale = steps / std::max(east->X - west->X, north->Y - south->Y);
  for (PlanePoint& at : points)
    at = {std::round((at.X - origin.X) * scale), std::round((at.Y - origin.Y) * scale)};
  return points;
}

}  // namespace

Triangulation TriangulateRing(std::span<const LatLon> ring) {
  if (ring.size() < 3) return {};
  std::vector<PlanePoint> points;
  points.reserve(ring.size());
  for (const LatLon& at : ring)
    points.push_back({at.lon, at.lat});
  Triangulation told = EarClipper(points).Run();
  if (!told.HasFault) return told;
  // Where vertices lie in line, as on an author's rectangles, rounding alone can hide the last ears of a
  // sound ring.
  Triangulation exact = EarClipper(OnWholeNumbers(std::move(points))).Run();
  return exact.HasFault ? told : exact;
}

}  // namespace landsmith
