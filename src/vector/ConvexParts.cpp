#include "vector/ConvexParts.h"

#include "vector/ShrinkingRing.h"
#include "vector/VertexTree.h"

#include <algorithm>
#include <cstdlib>

namespace landsmith {
namespace {

using Wide = std::int64_t;

/// Above 0 at a reflex vertex; Y to the south.
Wide TurnAt(CellPoint before, CellPoint at, CellPoint after) {
  const Wide aX = at.X - before.X;
  const Wide aY = at.Y - before.Y;
  const Wide bX = after.X - at.X;
  const Wide bY = after.Y - at.Y;
  return aY * bX - bY * aX;
}

/// Whether the ray from `p` to the west meets the edge. An edge has its southern end and not its northern
/// one.
bool RayMeetsEdge(CellPoint from, CellPoint to, CellPoint p) {
  if (from.Y == to.Y) return false;
  if (p.Y <= from.Y && p.Y <= to.Y) return false;
  if (p.Y > from.Y && p.Y > to.Y) return false;
  const Wide eastOfEdge = Wide{p.X - from.X} * (to.Y - from.Y) - Wide{to.X - from.X} * (p.Y - from.Y);
  return to.Y > from.Y ? eastOfEdge >= 0 : eastOfEdge <= 0;
}

bool IsInTriangle(CellPoint a, CellPoint b, CellPoint c, CellPoint p) {
  return (RayMeetsEdge(a, b, p) != RayMeetsEdge(b, c, p)) != RayMeetsEdge(c, a, p);
}

PlanePoint ToPlane(CellPoint at) {
  return {static_cast<double>(at.X), static_cast<double>(at.Y)};
}

std::vector<PlanePoint> ToPlane(std::span<const CellPoint> ring) {
  std::vector<PlanePoint> points;
  points.reserve(ring.size());
  for (const CellPoint& at : ring)
    points.push_back(ToPlane(at));
  return points;
}

bool HasThreePlaces(const ConvexPart& part) {
  const auto second =
      std::find_if(part.begin(), part.end(), [&](CellPoint at) { return at != part.front(); });
  return std::any_of(second, part.end(), [&](CellPoint at) { return at != part.front() && at != *second; });
}

class ConvexCutter {
public:
  explicit ConvexCutter(std::span<const CellPoint> ring)
      : m_points(ring),
        m_ring(static_cast<std::int32_t>(ring.size())),
        m_queue(m_ring.Size()),
        m_tree(ToPlane(ring)),
        m_turns(ring.size(), -1) {
    for (std::int32_t v = 0; v < m_ring.Size(); ++v)
      UpdateTurn(v);
  }

  std::vector<ConvexPart> Run() {
    while (m_ring.Size() > 3 && m_reflexCount > 0) {
      if (const auto second = FindCut())
        CutRun(*second);
      else
        DropFlattest();
    }
    if (m_ring.Size() >= 3) {
      ConvexPart rest;
      for (std::int32_t v = m_ring.First(); std::ssize(rest) < m_ring.Size(); v = m_ring.After(v))
        rest.push_back(At(v));
      Keep(std::move(rest));
    }
    return std::move(m_parts);
  }

private:
  CellPoint At(std::int32_t v) const { return m_points[static_cast<std::size_t>(v)]; }
  Wide Turn(std::int32_t v) const { return m_turns[static_cast<std::size_t>(v)]; }

  void Keep(ConvexPart part) {
    if (HasThreePlaces(part)) m_parts.push_back(std::move(part));
  }

  /// The turn after a change of the neighbours. Only vertices that are not convex can hinder a cut.
  void UpdateTurn(std::int32_t v) {
    Wide& turn = m_turns[static_cast<std::size_t>(v)];
    m_reflexCount -= turn > 0 ? 1 : 0;
    turn = TurnAt(At(m_ring.Before(v)), At(v), At(m_ring.After(v)));
    m_reflexCount += turn > 0 ? 1 : 0;
    m_tree.SetPresent(v, turn >= 0);
    if (turn < 0) m_queue.Release(v);
    m_queue.Add(v);
    m_flattest.push({std::abs(turn), v});
  }

  void Leave(std::int32_t v) {
    m_reflexCount -= Turn(v) > 0 ? 1 : 0;
    m_ring.Remove(v);
    m_tree.SetPresent(v, false);
    m_queue.Release(v);
  }

  /// The second vertex of the first run that can be cut off.
  std::optional<std::int32_t> FindCut() {
    while (const auto second = m_queue.Take()) {
      if (!m_ring.Holds(*second) || *second == m_ring.First() || Turn(*second) > 0) continue;
      const auto inside = FindInside(m_ring.Before(*second), *second, m_ring.After(*second));
      if (!inside) return second;
      m_queue.Hinder(*second, *inside);
    }
    return std::nullopt;
  }

  std::optional<std::int32_t> FindInside(std::int32_t a, std::int32_t b, std::int32_t c) const {
    return m_tree.FindIn({ToPlane(At(a)), ToPlane(At(b)), ToPlane(At(c))}, [&](std::int32_t m) {
      return m != a && m != b && m != c && IsInTriangle(At(a), At(b), At(c), At(m));
    });
  }

  /// Cuts off the run from the vertex before `second` as far as it stays convex; it never goes on past the
  /// last vertex of the ring. The turn of a vertex that leaves, and of the run's end, is still that in the
  /// whole ring.
  void CutRun(std::int32_t second) {
    const std::int32_t first = m_ring.Before(second);
    std::int32_t last = m_ring.After(second);
    ConvexPart part{At(first), At(second)};
    Leave(second);
    while (last != m_ring.First() && m_ring.After(last) != m_ring.First()) {
      const std::int32_t next = m_ring.After(last);
      if (Turn(last) > 0 || TurnAt(At(next), At(first), At(second)) > 0 || FindInside(first, last, next))
        break;
      part.push_back(At(last));
      Leave(last);
      last = next;
    }
    part.push_back(At(last));
    Keep(std::move(part));
    UpdateTurn(first);
    UpdateTurn(last);
  }

  void DropFlattest() {
    while (!m_ring.Holds(m_flattest.top().second) ||
           std::abs(Turn(m_flattest.top().second)) != m_flattest.top().first)
      m_flattest.pop();
    const std::int32_t v = m_flattest.top().second;
    const std::int32_t before = m_ring.Before(v);
    const std::int32_t after = m_ring.After(v);
    Leave(v);
    UpdateTurn(before);
    UpdateTurn(after);
  }

  using SizedTurn = std::pair<Wide, std::int32_t>;

  std::span<const CellPoint> m_points;
  ShrinkingRing m_ring;
  CutQueue m_queue;
  VertexTree m_tree;
  std::vector<Wide> m_turns;
  std::priority_queue<SizedTurn, std::vector<SizedTurn>, std::greater<>>
      m_flattest;  ///< older turns among them
  std::int32_t m_reflexCount = 0;
  std::vector<ConvexPart> m_parts;
};

}  // namespace

std::vector<ConvexPart> DecomposeConvex(std::span<const CellPoint> ring) {
  if (ring.size() < 3) return {};
  return ConvexCutter(ring).Run();
}

}  // namespace landsmith
