#include "vector/ConvexParts.h"
#include "vector/Triangulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace landsmith {
namespace {

using Ring = std::vector<CellPoint>;

// The searches word for word: everything reckoned anew after each cut, in arrays from 1 to n with a copy of
// the last element in front and of the first behind. Y to the north for both, so reflex is a turn below 0. On
// whole numbers as small as these the arithmetic of doubles decides exactly.
struct SlowPoint {
  double X, Y, Turn;
  std::int32_t Index;
};

double TurnOf(const SlowPoint& a, const SlowPoint& b, const SlowPoint& c) {
  return (b.Y - a.Y) * (c.X - b.X) - (c.Y - b.Y) * (b.X - a.X);
}

bool Crosses(const SlowPoint& a, const SlowPoint& b, const SlowPoint& p) {
  if (a.Y == b.Y || (p.Y >= a.Y && p.Y >= b.Y) || (p.Y < a.Y && p.Y < b.Y)) return false;
  if (p.X > a.X && p.X > b.X) return true;
  if (p.X < a.X && p.X < b.X) return false;
  const SlowPoint& low = a.Y < b.Y ? a : b;
  const SlowPoint& high = a.Y < b.Y ? b : a;
  return p.X >= low.X + (high.X - low.X) * (p.Y - low.Y) / (high.Y - low.Y);
}

struct SlowRing {
  std::vector<SlowPoint> P{{}};
  int N = 0;

  void Update() {
    P.resize(static_cast<std::size_t>(N) + 2);
    At(0) = At(N);
    At(N + 1) = At(1);
    for (int i = 1; i <= N; ++i)
      At(i).Turn = TurnOf(At(i - 1), At(i), At(i + 1));
  }
  SlowPoint& At(int i) { return P[static_cast<std::size_t>(i)]; }
  void Erase(int from, int to) {
    P.erase(P.begin() + from, P.begin() + to);
    N -= to - from;
    Update();
  }
  bool Inside(int i, int j, int k, int m) {
    return (Crosses(At(i), At(j), At(m)) + Crosses(At(j), At(k), At(m)) + Crosses(At(k), At(i), At(m))) % 2 ==
           1;
  }

  bool CanCut(int i, int j, int k) {
    if (At(j).Turn < 0) return false;
    for (int m = 1; m <= N; ++m) {
      const bool isCorner = m == 1 && k == N + 1;
      if ((m < i || m > k) && !isCorner && At(m).Turn <= 0 && Inside(i, j, k, m)) return false;
    }
    return true;
  }
  int ReflexCount() {
    return N < 4 ? 0 : static_cast<int>(std::count_if(P.begin() + 1, P.begin() + N + 1, [](auto& p) {
      return p.Turn < 0;
    }));
  }
  ConvexPart Part(int first, int last) {
    ConvexPart part;
    for (int i = first; i <= last; ++i)
      part.push_back({static_cast<std::int32_t>(At(i).X), static_cast<std::int32_t>(-At(i).Y)});
    return part;
  }
  bool IsEar(int i) {
    if (At(i).Turn < 0) return false;
    for (int m = 1; m <= N; ++m)
      if (m != i - 1 && m != i && m != (i == N ? 1 : i + 1) && Inside(i - 1, i, i + 1, m)) return false;
    return true;
  }
};

SlowRing SlowRingOf(const std::vector<LatLon>& ring) {
  SlowRing slow;
  for (const LatLon& at : ring)
    slow.P.push_back({at.lon, at.lat, 0, slow.N++});
  slow.Update();
  return slow;
}

std::vector<LatLon> ToPlane(const Ring& ring, LatLon origin = {0, 0}, double step = 1) {
  std::vector<LatLon> plane;
  for (const CellPoint& at : ring)
    plane.push_back({origin.lat - step * at.Y, origin.lon + step * at.X});
  return plane;
}

std::vector<ConvexPart> SlowConvexParts(const Ring& ring) {
  std::vector<ConvexPart> parts;
  const auto keep = [&](const ConvexPart& part) {
    Ring places;
    for (const CellPoint& at : part)
      if (std::find(places.begin(), places.end(), at) == places.end()) places.push_back(at);
    if (places.size() >= 3) parts.push_back(part);
  };
  SlowRing slow = SlowRingOf(ToPlane(ring));
  while (slow.ReflexCount() > 0) {
    int i = 1;
    while (i < slow.N && !slow.CanCut(i, i + 1, i + 2))
      ++i;
    if (i < slow.N) {
      int k = i + 2;
      while (k + 1 <= slow.N && slow.CanCut(i, k, k + 1) &&
             TurnOf(slow.At(k + 1), slow.At(i), slow.At(i + 1)) >= 0)
        ++k;
      keep(slow.Part(i, k));
      slow.Erase(i + 1, k);
    } else {
      const auto flattest =
          std::min_element(slow.P.begin() + 1, slow.P.begin() + slow.N + 1,
                           [](auto& a, auto& b) { return std::fabs(a.Turn) < std::fabs(b.Turn); });
      const int drop = static_cast<int>(flattest - slow.P.begin());
      slow.Erase(drop, drop + 1);
    }
  }
  if (slow.N >= 3) keep(slow.Part(1, slow.N));
  return parts;
}

Triangulation SlowTriangles(const std::vector<LatLon>& ring) {
  Triangulation result;
  SlowRing slow = SlowRingOf(ring);
  const auto add = [&](int i) {
    result.Triangles.push_back({slow.At(i - 1).Index, slow.At(i).Index, slow.At(i + 1).Index});
  };
  for (int i = 2; slow.N > 3; slow.Erase(i, i + 1)) {
    int ear = 2;
    while (ear <= slow.N && !slow.IsEar(ear))
      ++ear;
    result.HasFault |= ear > slow.N;
    i = ear <= slow.N ? ear : std::min(i, slow.N);
    add(i);
  }
  add(2);
  return result;
}

std::int64_t TurnOf(CellPoint a, CellPoint b, CellPoint c) {
  return std::int64_t{b.X - a.X} * (c.Y - b.Y) - std::int64_t{b.Y - a.Y} * (c.X - b.X);
}

std::int64_t TwiceArea(const Ring& ring) {
  std::int64_t sum = 0;
  for (std::size_t k = 2; k < ring.size(); ++k)
    sum += TurnOf(ring[0], ring[k - 1], ring[k]);
  return sum;
}

class RingMaker {
public:
  explicit RingMaker(unsigned seed) : m_chance(seed) {}

  int Whole(int low, int high) { return std::uniform_int_distribution(low, high)(m_chance); }

  Ring Scatter(int vertices, int side) {
    Ring ring;
    for (int k = 0; k < vertices; ++k)
      ring.push_back({Whole(0, side), Whole(0, side)});
    return ring;
  }

  /// Scattered points, the way through them untangled.
  Ring Tangle(int vertices, int side) {
    Ring ring = Scatter(vertices, side);
    const auto crosses = [&](std::size_t i, std::size_t j) {
      const CellPoint a = ring[i], b = ring[i + 1], c = ring[j], d = ring[(j + 1) % ring.size()];
      return (TurnOf(a, b, c) > 0) != (TurnOf(a, b, d) > 0) && (TurnOf(c, d, a) > 0) != (TurnOf(c, d, b) > 0);
    };
    for (int tries = 0, found = 1; found > 0 && tries < 300; ++tries) {
      found = 0;
      for (std::size_t i = 0; i + 2 < ring.size(); ++i)
        for (std::size_t j = i + 2; j < ring.size() - (i == 0 ? 1 : 0); ++j)
          if (crosses(i, j)) {
            std::reverse(ring.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                         ring.begin() + static_cast<std::ptrdiff_t>(j) + 1);
            ++found;
          }
    }
    return ring;
  }

  Ring Star(int vertices, double size) {
    Ring ring;
    for (int k = 0; k < vertices; ++k)
      ring.push_back(OnCircle(static_cast<double>(k) / vertices, size * Whole(2, 100) / 100));
    return ring;
  }

  Ring Spiral(int vertices) {
    Ring ring;
    for (int k = 0; k < vertices; ++k)
      ring.push_back(OnCircle(3.0 * k / vertices, 1000 + 1500.0 * k / vertices));
    for (int k = vertices; --k >= 0;)
      ring.push_back(OnCircle(3.0 * k / vertices, 1200 + 1500.0 * k / vertices));
    return ring;
  }

  /// Slots of random depth, on the lattice of an author's rectangles.
  Ring Comb(int teeth, int step) {
    Ring ring;
    for (int k = 0; k < teeth; ++k)
      for (const CellPoint at :
           {CellPoint{2 * k, 0}, {2 * k + 1, 0}, {2 * k + 1, Whole(1, 3)}, {2 * k + 2, 1}})
        ring.push_back({at.X * step, at.Y * step});
    ring.push_back({2 * teeth * step, 4 * step});
    ring.push_back({0, 4 * step});
    return ring;
  }

  /// As well with points in the middle of edges, clockwise, begun anywhere.
  Ring Finish(Ring ring, bool middles) {
    if (TwiceArea(ring) < 0) std::reverse(ring.begin(), ring.end());
    Ring finer;
    for (std::size_t k = 0; middles && k < ring.size(); ++k) {
      const CellPoint a = ring[k], b = ring[(k + 1) % ring.size()];
      finer.push_back({2 * a.X, 2 * a.Y});
      if (Whole(0, 2) == 0) finer.push_back({a.X + b.X, a.Y + b.Y});
    }
    if (middles) ring = finer;
    std::rotate(ring.begin(), ring.begin() + Whole(0, static_cast<int>(ring.size()) - 1), ring.end());
    return ring;
  }

private:
  static CellPoint OnCircle(double turn, double radius) {
    const double angle = 2 * std::numbers::pi * turn;
    return {static_cast<int>(std::lround(8160 + radius * std::cos(angle))),
            static_cast<int>(std::lround(8160 + radius * std::sin(angle)))};
  }
  std::mt19937 m_chance;
};

/// What is cut off a ring, and what is left, wind about a point as often together as the ring did. So convex
/// parts that run clockwise and have its area tile it.
void ExpectTiledByParts(const Ring& ring) {
  std::int64_t area = 0;
  for (const ConvexPart& part : DecomposeConvex(ring)) {
    area += TwiceArea(part);
    for (std::size_t k = 0; k < part.size(); ++k)
      for (std::size_t m = 0; m < part.size(); ++m)
        ASSERT_GE(TurnOf(part[k], part[(k + 1) % part.size()], part[m]), 0);
  }
  EXPECT_EQ(area, TwiceArea(ring));
}

void ExpectTiledByTriangles(const Ring& ring, const std::vector<LatLon>& plane) {
  const Triangulation result = TriangulateRing(plane);
  EXPECT_FALSE(result.HasFault);
  ASSERT_EQ(result.Triangles.size(), ring.size() - 2);
  const auto at = [&](std::int32_t v) { return ring[static_cast<std::size_t>(v)]; };
  for (const Triangle& t : result.Triangles)
    ASSERT_GE(TurnOf(at(t.A), at(t.B), at(t.C)), 0);
}

TEST(RingPieces, AreThoseOfTheSlowSearch) {
  RingMaker make(1);
  for (int k = 0; k < 400; ++k) {
    const bool middles = k % 2 == 1;
    const int size = make.Whole(3, 40);
    const Ring sound[] = {make.Star(size, 4000), make.Spiral(size + 30),
                          make.Comb(size / 3 + 1, make.Whole(1, 100)), make.Tangle(size / 2 + 3, 8160)};
    const Ring odd[] = {make.Tangle(size / 2 + 3, 8), make.Star(size, 12), make.Scatter(size / 2 + 3, 6)};
    const double step = 1e-4 * make.Whole(1, 99);
    const auto compare = [&](const Ring& ring) {
      SCOPED_TRACE(testing::Message() << "round " << k << ", " << ring.size() << " vertices");
      EXPECT_EQ(DecomposeConvex(ring), SlowConvexParts(ring));
      for (const auto& plane : {ToPlane(ring), ToPlane(ring, {47.3, 8.1}, step)}) {
        const Triangulation ours = TriangulateRing(plane), slow = SlowTriangles(plane);
        EXPECT_LE(ours.HasFault, slow.HasFault);
        EXPECT_TRUE(ours.HasFault != slow.HasFault || ours.Triangles == slow.Triangles);
      }
    };
    for (const Ring& raw : sound) {
      const Ring ring = make.Finish(raw, middles);
      compare(ring);
      ExpectTiledByParts(ring);
      ExpectTiledByTriangles(ring, ToPlane(ring));
      ExpectTiledByTriangles(ring, ToPlane(ring, {47.3, 8.1}, step));
    }
    for (const Ring& raw : odd)
      compare(make.Finish(raw, middles));
    if (HasFailure()) return;
  }
}

TEST(RingPieces, OfLongRingsTileThem) {
  RingMaker make(2);
  for (const Ring& raw : {make.Star(5000, 100000), make.Comb(2000, 20), make.Spiral(300)}) {
    const Ring ring = make.Finish(raw, false);
    ExpectTiledByParts(ring);
    ExpectTiledByTriangles(ring, ToPlane(ring, {-33.1, 151.2}, 1e-5));
  }
}

TEST(ConvexParts, KnownRings) {
  struct {
    const char* Name;
    Ring Whole;
    std::vector<ConvexPart> Parts;
  } const rows[] = {
      {"no part turns back at its first vertex",
       {{10, 10}, {0, 0}, {30, 10}, {0, 20}},
       {{{10, 10}, {0, 0}, {30, 10}}, {{10, 10}, {30, 10}, {0, 20}}}},
      {"an L",
       {{0, 0}, {10, 0}, {10, 4}, {4, 4}, {4, 10}, {0, 10}},
       {{{0, 0}, {10, 0}, {10, 4}, {4, 4}}, {{0, 0}, {4, 4}, {4, 10}, {0, 10}}}},
      {"straight on is convex", {{0, 0}, {5, 0}, {9, 0}, {9, 9}}, {{{0, 0}, {5, 0}, {9, 0}, {9, 9}}}},
      {"two vertices", {{0, 0}, {5, 0}}, {}},
      {"two places", {{0, 0}, {5, 5}, {0, 0}, {5, 5}}, {}},
  };
  for (const auto& row : rows)
    EXPECT_EQ(DecomposeConvex(row.Whole), row.Parts) << row.Name;
}

TEST(Triangulation, KnownRings) {
  struct {
    const char* Name;
    std::vector<LatLon> Whole;
    std::vector<Triangle> Triangles;
    bool HasFault;
  } const rows[] = {
      {"two vertices", {{0, 0}, {1, 0}}, {}, false},
      {"a triangle", {{0, 0}, {1, 0}, {0, 1}}, {{0, 1, 2}}, false},
      {"a square is cut at its second vertex",
       {{0, 0}, {1, 0}, {1, 1}, {0, 1}},
       {{0, 1, 2}, {0, 2, 3}},
       false},
      {"the second vertex is reflex", {{0, 0}, {1, 1}, {3, 0}, {1, 4}}, {{1, 2, 3}, {0, 1, 3}}, false},
      {"the wrong direction",
       {{0, 0}, {0, 2}, {1, 3}, {2, 2}, {2, 0}},
       {{0, 1, 2}, {0, 2, 3}, {0, 3, 4}},
       true},
  };
  for (const auto& row : rows) {
    const Triangulation result = TriangulateRing(row.Whole);
    EXPECT_EQ(result.Triangles, row.Triangles) << row.Name;
    EXPECT_EQ(result.HasFault, row.HasFault) << row.Name;
  }
}

}  // namespace
}  // namespace landsmith
