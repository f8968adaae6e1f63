#include "compile/BorderWalk.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace landsmith {
namespace {

/// Clockwise from the north-west corner, 0 to 4 sides; a point that is not on the border stands at 0.
std::int32_t BorderPosition(std::int32_t x, std::int32_t y, std::int32_t side) {
  if (y == 0) return x;
  if (y == side) return 3 * side - x;
  if (x == side) return side + y;
  return x == 0 ? 4 * side - y : 0;
}

struct WalkPoint {
  std::int32_t X = 0, Y = 0;
  float Alt = 0;
  CutMark Mark = CutMark::Vertex;
  std::int32_t Position = 0;  ///< on the border
};

using WalkList = std::vector<WalkPoint>;

bool AtOnePoint(const WalkPoint& a, const WalkPoint& b) {
  return a.X == b.X && a.Y == b.Y;
}

void Erase(WalkList& list, std::size_t first, std::size_t count) {
  const auto from = list.begin() + static_cast<std::ptrdiff_t>(first);
  list.erase(from, from + static_cast<std::ptrdiff_t>(count));
}

/// A crossing, one vertex, and a point at the crossing again.
bool EraseTip(WalkList& list) {
  for (std::size_t k = 0; k + 2 < list.size(); ++k) {
    if (!IsCut(list[k].Mark) || !AtOnePoint(list[k], list[k + 2])) continue;
    Erase(list, k, 3);
    return true;
  }
  return false;
}

bool IsCutPair(const WalkList& list, std::size_t k) {
  return IsCut(list[k].Mark) && IsCut(list[k + 1].Mark);
}

/// The same stretch between two crossings there and back.
bool EraseThereAndBack(WalkList& list) {
  std::vector<std::size_t> pairs;
  for (std::size_t k = 0; k + 1 < list.size(); ++k)
    if (IsCutPair(list, k)) pairs.push_back(k);
  for (std::size_t a = 0; a < pairs.size(); ++a) {
    for (std::size_t b = a + 1; b < pairs.size(); ++b) {
      const std::size_t k = pairs[a];
      const std::size_t j = pairs[b];
      if (j < k + 2 || !AtOnePoint(list[k], list[j + 1]) || !AtOnePoint(list[k + 1], list[j])) continue;
      Erase(list, j, 2);
      Erase(list, k, 2);
      return true;
    }
  }
  return false;
}

void RemoveBorderSpikes(WalkList& list) {
  while (EraseTip(list) || EraseThereAndBack(list)) {
  }
  const std::size_t count = list.size();
  if (count >= 2 && count <= 4 && AtOnePoint(list.front(), list.back())) list.clear();
}

WalkedPoint WithoutMark(const WalkPoint& point) {
  return {point.X, point.Y, point.Alt, -1};
}

/// One closed ring out of a list; what does not belong to it is left over.
class RingTrace {
public:
  RingTrace(const WalkList& list, std::int32_t side) : m_list(list), m_side(side) {}

  ClosedRing Trace(WalkList& spare) {
    m_start = m_list.front().Position;
    std::size_t next = CopyRun(0);
    while (next < m_list.size()) {
      if (ContinuesAt(next))
        next = CopyRun(next);
      else
        next = SkipRun(next, spare);
    }
    CloseRing();
    return std::move(m_ring);
  }

private:
  /// Up to and including the first cut behind `first`; the place behind it.
  std::size_t CopyRun(std::size_t first) {
    std::size_t k = first;
    m_ring.push_back(WithoutMark(m_list[k]));
    for (++k; k < m_list.size(); ++k) {
      m_ring.push_back(WithoutMark(m_list[k]));
      if (IsCut(m_list[k].Mark)) break;
    }
    k = std::min(k, m_list.size() - 1);
    m_exit = m_list[k].Position;
    return k + 1;
  }

  std::size_t SkipRun(std::size_t first, WalkList& spare) const {
    std::size_t k = first;
    spare.push_back(m_list[k]);
    for (++k; k < m_list.size(); ++k) {
      spare.push_back(m_list[k]);
      if (IsCut(m_list[k].Mark)) return k + 1;
    }
    return k;
  }

  /// Whether the walk along the border from the exit comes to entry `e` before it closes the ring or meets
  /// another run.
  bool ContinuesAt(std::size_t e) {
    const std::int32_t place = m_list[e].Position;
    while (true) {
      if (m_exit == 4 * m_side) m_exit = 0;
      const std::int32_t corner = (m_exit / m_side + 1) * m_side;
      if (m_exit < m_start && m_start < corner && (place < m_exit || place > m_start)) return false;
      if (m_exit <= place && place <= corner) return !LaterEntryBefore(e, place);
      if (LaterCutUpTo(e, corner)) return false;
      m_ring.push_back(SquareCorner(m_exit / m_side + 1, m_side));
      m_exit = corner;
    }
  }

  bool LaterEntryBefore(std::size_t e, std::int32_t place) const {
    return std::any_of(After(e), m_list.end(), [&](const WalkPoint& later) {
      return Enters(later.Mark) && m_exit <= later.Position && later.Position < place;
    });
  }

  bool LaterCutUpTo(std::size_t e, std::int32_t corner) const {
    return std::any_of(After(e), m_list.end(), [&](const WalkPoint& later) {
      return IsCut(later.Mark) && m_exit < later.Position && later.Position <= corner;
    });
  }

  WalkList::const_iterator After(std::size_t e) const {
    return m_list.begin() + static_cast<std::ptrdiff_t>(e) + 1;
  }

  void CloseRing() {
    const std::int32_t exitSide = m_exit / m_side;
    std::int32_t corners = m_start / m_side - exitSide;
    if (corners < 0) corners += 4;
    if (corners == 0 && m_exit >= m_start) corners = m_exit == m_start && RingIsClosed() ? 0 : 4;
    for (std::int32_t k = 1; k <= corners; ++k)
      m_ring.push_back(SquareCorner(exitSide + k, m_side));
  }

  /// The ring ends where it began, so either nothing of the border belongs to it or all. It turns the right
  /// way without the border when it does so at the vertex that sticks out most.
  bool RingIsClosed() const {
    const bool onEastSide = m_exit / m_side == 1;
    const auto reach = [onEastSide](const WalkedPoint& point) {
      return onEastSide ? std::pair(point.X, -point.Y) : std::pair(point.Y, point.X);
    };
    const auto most = std::max_element(m_ring.begin(), m_ring.end(),
                                       [&](const auto& a, const auto& b) { return reach(a) < reach(b); });
    const WalkedPoint& before = most == m_ring.begin() ? m_ring.back() : *(most - 1);
    const WalkedPoint& after = most + 1 == m_ring.end() ? m_ring.front() : *(most + 1);
    const std::int64_t inX = most->X - before.X, inY = before.Y - most->Y;
    const std::int64_t outX = after.X - most->X, outY = most->Y - after.Y;
    return inX * outY - inY * outX < 0;
  }

  const WalkList& m_list;
  std::int32_t m_side;
  std::int32_t m_start = 0, m_exit = 0;
  ClosedRing m_ring;
};

WalkList OnBorder(const std::vector<SquarePoint>& list, std::int32_t side) {
  WalkList points;
  points.reserve(list.size());
  for (const SquarePoint& point : list)
    points.push_back({point.X, point.Y, point.Alt, point.Mark, BorderPosition(point.X, point.Y, side)});
  return points;
}

}  // namespace

WalkedPoint SquareCorner(std::int32_t index, std::int32_t side) {
  const std::int32_t corner = index & 3;
  const bool east = corner == 1 || corner == 2;
  return {east ? side : 0, corner >= 2 ? side : 0, 0, corner};
}

std::int64_t RingArea2(std::span<const WalkedPoint> ring) {
  std::int64_t area = 0;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const WalkedPoint& next = ring[k + 1 == ring.size() ? 0 : k + 1];
    area += std::int64_t{ring[k].X} * next.Y - std::int64_t{next.X} * ring[k].Y;
  }
  return area;
}

std::vector<ClosedRing> WalkPoints(const std::vector<SquarePoint>& points, std::int32_t side,
                                   bool dropSpikes) {
  WalkList list = OnBorder(points, side);
  if (dropSpikes) RemoveBorderSpikes(list);
  std::vector<ClosedRing> rings;
  while (list.size() >= 2) {
    WalkList spare;
    rings.push_back(RingTrace(list, side).Trace(spare));
    list = std::move(spare);
  }
  return rings;
}

}  // namespace landsmith
