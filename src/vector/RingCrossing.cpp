#include "vector/RingCrossing.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <set>

namespace landsmith {
namespace {

// A line sweeps over the ring from west to east, and on one meridian from small Y to large. The edges that it
// cuts are kept in their order along it. As long as nothing has crossed, that order is fixed, and two edges
// that cross first become neighbours in it. Edges and vertices may lie on one another on the way.

using EdgeNumber = std::uint32_t;

bool IsBefore(const RingVertex& a, const RingVertex& b) {
  return a.X != b.X ? a.X < b.X : a.Y < b.Y;
}

struct Direction {
  std::int64_t x = 0, y = 0;
};

Direction Between(const RingVertex& from, const RingVertex& to) {
  return {std::int64_t{to.X} - from.X, std::int64_t{to.Y} - from.Y};
}

/// Above 0 when `b` is turned from X towards Y against `a`.
std::int64_t Turn(const Direction& a, const Direction& b) {
  return a.x * b.y - a.y * b.x;
}

int SignOf(std::int64_t value) {
  return (value > 0 ? 1 : 0) - (value < 0 ? 1 : 0);
}

/// An edge in the direction of the sweep.
struct SweepEdge {
  RingVertex first, last;
  Direction Along() const { return Between(first, last); }
  /// Above 0 for a place on the side of large Y.
  int SideOf(const RingVertex& place) const { return SignOf(Turn(Along(), Between(first, place))); }
};

bool CrossInside(const SweepEdge& a, const SweepEdge& b) {
  return a.SideOf(b.first) * a.SideOf(b.last) < 0 && b.SideOf(a.first) * b.SideOf(a.last) < 0;
}

RingPlace CrossingOf(const SweepEdge& a, const SweepEdge& b) {
  const Direction along = a.Along();
  const double part = static_cast<double>(Turn(Between(a.first, b.first), b.Along())) /
                      static_cast<double>(Turn(along, b.Along()));
  return {a.first.X + part * static_cast<double>(along.x), a.first.Y + part * static_cast<double>(along.y)};
}

/// The order along the sweep line of edges that it cuts at the same time and that have not crossed before.
struct EdgeOrder {
  using is_transparent = void;
  const std::vector<SweepEdge>* edges;

  bool operator()(EdgeNumber a, EdgeNumber b) const {
    const SweepEdge& left = (*edges)[a];
    const SweepEdge& right = (*edges)[b];
    int side = 0;  // of `right` against `left`
    if (IsBefore(left.first, right.first))
      side = left.SideOf(right.first);
    else
      side = -right.SideOf(left.first);
    if (side == 0) side = SignOf(Turn(left.Along(), right.Along()));
    return side != 0 ? side > 0 : a < b;
  }
  bool operator()(EdgeNumber edge, const RingVertex& place) const { return (*edges)[edge].SideOf(place) > 0; }
  bool operator()(const RingVertex& place, EdgeNumber edge) const { return (*edges)[edge].SideOf(place) < 0; }
};

/// A way out of a place; the two of one part of the ring have one number.
struct Ray {
  Direction to;
  std::size_t part = 0;
};

bool IsLowerHalf(const Direction& d) {
  return d.y < 0 || (d.y == 0 && d.x < 0);
}

/// Once round the place, from the direction of X.
bool IsEarlierRay(const Ray& a, const Ray& b) {
  const bool aLower = IsLowerHalf(a.to), bLower = IsLowerHalf(b.to);
  return aLower != bLower ? bLower : Turn(a.to, b.to) > 0;
}

/// Where the two rays of a part stand in the round; equal for rays of one direction.
struct Chord {
  std::size_t from = 0, to = 0;
};

std::vector<Chord> ChordsOf(std::vector<Ray>& rays) {
  std::sort(rays.begin(), rays.end(), IsEarlierRay);
  std::vector<Chord> chords(rays.size() / 2);
  std::vector<bool> isOpen(chords.size());
  std::size_t direction = 1;
  for (std::size_t i = 0; i < rays.size(); ++i) {
    if (i > 0 && IsEarlierRay(rays[i - 1], rays[i])) ++direction;
    Chord& chord = chords[rays[i].part];
    (isOpen[rays[i].part] ? chord.to : chord.from) = direction;
    isOpen[rays[i].part] = true;
  }
  return chords;
}

/// Whether two chords of the round have their ends in turn. An end in common is no crossing.
bool AnyInTurn(std::vector<Chord> chords) {
  std::sort(chords.begin(), chords.end(),
            [](const Chord& a, const Chord& b) { return a.from != b.from ? a.from < b.from : a.to > b.to; });
  std::vector<std::size_t> open;  // the ends of chords that hold the present place, the nearest last
  for (const Chord& chord : chords) {
    while (!open.empty() && open.back() <= chord.from)
      open.pop_back();
    if (!open.empty() && open.back() < chord.to) return true;
    open.push_back(chord.to);
  }
  return false;
}

class RingSweep {
public:
  explicit RingSweep(std::vector<RingVertex> ring) : m_ring(std::move(ring)) {
    m_edges.reserve(m_ring.size());
    for (std::size_t i = 0; i < m_ring.size(); ++i) {
      const RingVertex &a = m_ring[i], &b = m_ring[After(i)];
      m_edges.push_back(IsBefore(a, b) ? SweepEdge{a, b} : SweepEdge{b, a});
    }
  }

  std::optional<RingPlace> Run() {
    std::vector<std::uint32_t> order(m_ring.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
      return m_ring[a] == m_ring[b] ? a < b : IsBefore(m_ring[a], m_ring[b]);
    });
    for (std::size_t i = 0; i < order.size();) {
      std::size_t end = i + 1;
      while (end < order.size() && m_ring[order[end]] == m_ring[order[i]])
        ++end;
      if (auto place = VisitPlace(std::span(order).subspan(i, end - i))) return place;
      i = end;
    }
    return {};
  }

private:
  using Cut = std::set<EdgeNumber, EdgeOrder>;

  std::size_t After(std::size_t vertex) const { return vertex + 1 == m_ring.size() ? 0 : vertex + 1; }
  std::size_t Before(std::size_t vertex) const { return (vertex == 0 ? m_ring.size() : vertex) - 1; }

  /// `vertices`: all that lie at one place.
  std::optional<RingPlace> VisitPlace(std::span<const std::uint32_t> vertices) {
    const RingVertex& place = m_ring[vertices.front()];
    auto from = m_cut.lower_bound(place);
    const auto below = from == m_cut.begin() ? m_cut.end() : std::prev(from);
    auto to = from;
    m_passing.clear();
    for (; to != m_cut.end() && m_edges[*to].SideOf(place) == 0; ++to)
      if (m_edges[*to].last != place) m_passing.push_back(*to);
    if (vertices.size() + m_passing.size() > 1 && CrossAt(place, vertices))
      return RingPlace{static_cast<double>(place.X), static_cast<double>(place.Y)};

    while (from != to)
      from = m_edges[*from].last == place ? m_cut.erase(from) : std::next(from);
    for (const std::uint32_t vertex : vertices)
      for (const std::size_t edge : {static_cast<std::size_t>(vertex), Before(vertex)})
        if (m_edges[edge].first == place) m_cut.insert(to, static_cast<EdgeNumber>(edge));
    return CrossingOfNeighbours(below, to);
  }

  /// Of the edges that have new neighbours, now that what stood between `below` (the end: nothing is below)
  /// and `above` has changed.
  std::optional<RingPlace> CrossingOfNeighbours(Cut::const_iterator below, Cut::const_iterator above) const {
    const auto last = above == m_cut.begin() ? m_cut.end() : std::prev(above);
    if (below != m_cut.end())
      if (auto crossing = CrossingBetween(below, std::next(below))) return crossing;
    if (last == m_cut.end() || last == below) return {};
    return CrossingBetween(last, above);
  }
  std::optional<RingPlace> CrossingBetween(Cut::const_iterator a, Cut::const_iterator b) const {
    if (b == m_cut.end() || !CrossInside(m_edges[*a], m_edges[*b])) return {};
    return CrossingOf(m_edges[*a], m_edges[*b]);
  }

  bool CrossAt(const RingVertex& place, std::span<const std::uint32_t> vertices) {
    m_rays.clear();
    const auto add = [&](const RingVertex& a, const RingVertex& b) {
      const std::size_t part = m_rays.size() / 2;
      m_rays.push_back({Between(place, a), part});
      m_rays.push_back({Between(place, b), part});
    };
    for (const std::uint32_t vertex : vertices)
      add(m_ring[Before(vertex)], m_ring[After(vertex)]);
    for (const EdgeNumber edge : m_passing)
      add(m_edges[edge].first, m_edges[edge].last);
    return AnyInTurn(ChordsOf(m_rays));
  }

  std::vector<RingVertex> m_ring;
  std::vector<SweepEdge> m_edges;  ///< number i from vertex i to the next
  Cut m_cut{EdgeOrder{&m_edges}};
  std::vector<EdgeNumber> m_passing;
  std::vector<Ray> m_rays;
};

}  // namespace

std::optional<RingPlace> FindRingCrossing(std::span<const RingVertex> ring) {
  std::vector<RingVertex> vertices;
  vertices.reserve(ring.size());
  std::unique_copy(ring.begin(), ring.end(), std::back_inserter(vertices));
  while (vertices.size() > 1 && vertices.back() == vertices.front())
    vertices.pop_back();
  if (vertices.size() < 4) return {};
  return RingSweep(std::move(vertices)).Run();
}

std::int64_t TwiceRingArea(std::span<const RingVertex> ring) {
  std::uint64_t twice = 0;  // what runs over on the way comes back
  for (std::size_t i = 2; i < ring.size(); ++i)
    twice +=
        static_cast<std::uint64_t>(Turn(Between(ring.front(), ring[i - 1]), Between(ring.front(), ring[i])));
  return static_cast<std::int64_t>(twice);
}

}  // namespace landsmith
