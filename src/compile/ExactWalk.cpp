#include "compile/BorderWalk.h"
#include "compile/RingSpikes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>

namespace landsmith {
namespace {

/// One passage of the ring through the square: list entries `First` to `Last`.
struct Passage {
  std::size_t First = 0, Last = 0;
};

std::vector<Passage> PassagesOf(const std::vector<SquarePoint>& list) {
  std::vector<Passage> passages;
  for (std::size_t k = 0; k < list.size(); ++k) {
    if (Enters(list[k].Mark) || passages.empty())
      passages.push_back({k, k});
    else
      passages.back().Last = k;
  }
  return passages;
}

/// The stretch of border behind a passage.
struct Arc {
  double From = 0, To = 0;  ///< unrolled: beyond 4 sides, or below From, when it goes on round the corner
  std::size_t NextPassage = 0;
};

WalkedPoint PlainPoint(const SquarePoint& point) {
  return {point.X, point.Y, point.Alt, -1};
}

/// The corners strictly inside the arc, in its direction.
void AddCorners(const Arc& arc, std::int32_t side, ClosedRing& ring) {
  if (arc.From <= arc.To) {
    for (double k = std::floor(arc.From / side) + 1; k * side < arc.To; ++k)
      ring.push_back(SquareCorner(static_cast<std::int32_t>(k), side));
  } else {
    for (double k = std::ceil(arc.From / side) - 1; k * side > arc.To; --k)
      ring.push_back(SquareCorner(static_cast<std::int32_t>(k), side));
  }
}

/// Which passage follows which. Along the border the ring's exits and entries take turns, so that the exits
/// in order meet the entries in order, a whole number of places on. Every place on adds one round of the
/// border, so the enclosed area tells how many. That holds too where two crossings lie so near each other
/// that their order is lost.
class PassageOrder {
public:
  PassageOrder(const std::vector<SquarePoint>& list, const std::vector<Passage>& passages, std::int32_t side)
      : m_list(list),
        m_passages(passages),
        m_side(side),
        m_exits(passages.size()),
        m_entries(passages.size()) {
    std::iota(m_exits.begin(), m_exits.end(), std::size_t{0});
    m_entries = m_exits;
    std::stable_sort(m_exits.begin(), m_exits.end(),
                     [this](std::size_t a, std::size_t b) { return Exit(a) < Exit(b); });
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [this](std::size_t a, std::size_t b) { return Entry(a) < Entry(b); });
  }

  std::vector<Arc> Arcs(std::int64_t enclosedArea2) const {
    const std::vector<Arc> unshifted = ArcsWithShift(0);
    const std::int64_t round = 2 * std::int64_t{m_side} * m_side;
    const std::int64_t missing = enclosedArea2 - Area2(unshifted);
    return missing == 0 ? unshifted : ArcsWithShift(missing / round);
  }

private:
  double Exit(std::size_t passage) const { return m_list[m_passages[passage].Last].Border; }
  double Entry(std::size_t passage) const { return m_list[m_passages[passage].First].Border; }

  std::vector<Arc> ArcsWithShift(std::int64_t shift) const {
    const auto count = static_cast<std::int64_t>(m_passages.size());
    std::vector<Arc> arcs(m_passages.size());
    for (std::int64_t k = 0; k < count; ++k) {
      std::int64_t rounds = (k + shift) / count;
      std::int64_t place = (k + shift) % count;
      if (place < 0) {
        place += count;
        --rounds;
      }
      const std::size_t exit = m_exits[static_cast<std::size_t>(k)];
      const std::size_t entry = m_entries[static_cast<std::size_t>(place)];
      arcs[exit] = {Exit(exit), Entry(entry) + 4.0 * m_side * static_cast<double>(rounds), entry};
    }
    return arcs;
  }

  /// Twice the area inside the passages and arcs together.
  std::int64_t Area2(const std::vector<Arc>& arcs) const {
    std::int64_t area = 0;
    ClosedRing way;
    for (std::size_t p = 0; p < m_passages.size(); ++p) {
      way.clear();
      for (std::size_t k = m_passages[p].First; k <= m_passages[p].Last; ++k)
        way.push_back(PlainPoint(m_list[k]));
      AddCorners(arcs[p], m_side, way);
      way.push_back(PlainPoint(m_list[m_passages[arcs[p].NextPassage].First]));
      way.push_back({});  // the corner at 0, 0: it closes the way without adding to the sum over all passages
      area += RingArea2(way);
    }
    return area;
  }

  const std::vector<SquarePoint>& m_list;
  const std::vector<Passage>& m_passages;
  std::int32_t m_side;
  std::vector<std::size_t> m_exits, m_entries;
};

}  // namespace

std::vector<ClosedRing> WalkExactly(const std::vector<SquarePoint>& list, std::int32_t side,
                                    std::int64_t enclosedArea2) {
  const std::vector<Passage> passages = PassagesOf(list);
  const std::vector<Arc> arcs = PassageOrder(list, passages, side).Arcs(enclosedArea2);
  std::vector<bool> used(passages.size());
  std::vector<ClosedRing> rings;
  for (std::size_t start = 0; start < passages.size(); ++start) {
    ClosedRing ring;
    for (std::size_t p = start; !used[p]; p = arcs[p].NextPassage) {
      used[p] = true;
      for (std::size_t k = passages[p].First; k <= passages[p].Last; ++k)
        ring.push_back(PlainPoint(list[k]));
      AddCorners(arcs[p], side, ring);
    }
    ring = WithoutSpikes<WalkedPoint>(ring);
    if (RingArea2(ring) > 0) rings.push_back(std::move(ring));
  }
  return rings;
}

}  // namespace landsmith
