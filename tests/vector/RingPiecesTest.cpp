#include "support/PolyGenerators.h"
#include "vector/ConvexParts.h"
#include "vector/Triangulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

test::LatticeRing OnLattice(const Ring& ring) {
  test::LatticeRing lattice;
  for (const CellPoint& at : ring)
    lattice.push_back({at.X, at.Y});
  return lattice;
}

/// Counted from its first point.
Ring InCell(const test::LatticeRing& lattice) {
  Ring ring;
  for (const test::LatticePoint& at : lattice)
    ring.push_back(
        {static_cast<std::int32_t>(at.X - lattice[0].X), static_cast<std::int32_t>(at.Y - lattice[0].Y)});
  return ring;
}

test::LatticeRing Scatter(test::Chance& chance, std::int64_t vertices, std::int64_t side) {
  test::LatticeRing ring;
  for (; vertices > 0; --vertices)
    ring.push_back({chance.Between(0, side), chance.Between(0, side)});
  return ring;
}

/// Clockwise, with points in the middle of some edges.
Ring WithMiddles(const test::LatticeRing& ring, test::Chance& chance) {
  test::LatticeRing finer;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const test::LatticePoint a = ring[k], b = ring[(k + 1) % ring.size()];
    finer.push_back({2 * a.X, 2 * a.Y});
    if (chance.OneIn(3)) finer.push_back({a.X + b.X, a.Y + b.Y});
  }
  if (test::TwiceArea(finer) < 0) std::reverse(finer.begin(), finer.end());
  return InCell(finer);
}

/// What is cut off a ring, and what is left, wind about a point as often together as the ring did. So convex
/// parts that run clockwise and have its area tile it.
bool Tiles(const std::vector<ConvexPart>& parts, const Ring& ring) {
  std::int64_t area = 0;
  for (const ConvexPart& part : parts) {
    const test::LatticeRing corners = OnLattice(part);
    area += test::TwiceArea(corners);
    for (std::size_t k = 0; k < corners.size(); ++k)
      for (const test::LatticePoint& other : corners)
        if (test::Turn(corners[k], corners[(k + 1) % corners.size()], other) < 0) return false;
  }
  return area == test::TwiceArea(OnLattice(ring));
}

void ExpectTiled(const Ring& ring, const std::vector<LatLon>& plane) {
  EXPECT_TRUE(Tiles(DecomposeConvex(ring), ring));
  const Triangulation result = TriangulateRing(plane);
  EXPECT_FALSE(result.HasFault);
  ASSERT_EQ(result.Triangles.size(), ring.size() - 2);
  const test::LatticeRing corners = OnLattice(ring);
  const auto at = [&](std::int32_t v) { return corners[static_cast<std::size_t>(v)]; };
  for (const Triangle& t : result.Triangles)
    ASSERT_GE(test::Turn(at(t.A), at(t.B), at(t.C)), 0);
}

TEST(RingPieces, AreThoseOfTheSlowSearch) {
  for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
    test::Chance chance(seed);
    const double step = 1e-4 * chance.Real(0.1, 1);
    const auto compare = [&](const Ring& ring) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << ring.size() << " vertices");
      const auto parts = DecomposeConvex(ring), slowParts = SlowConvexParts(ring);
      EXPECT_TRUE(parts == slowParts || !Tiles(slowParts, ring));
      for (const auto& plane : {ToPlane(ring), ToPlane(ring, {47.3, 8.1}, step)}) {
        const Triangulation ours = TriangulateRing(plane), slow = SlowTriangles(plane);
        EXPECT_LE(ours.HasFault, slow.HasFault);
        EXPECT_TRUE(ours.HasFault != slow.HasFault || ours.Triangles == slow.Triangles);
      }
    };
    const test::LatticeRing sound = test::MakeRandomPoly(seed, test::PointsPerArea).Snapped;
    if (sound.size() > 60) continue;  // the slow search takes the cube of it
    const Ring ring = chance.OneIn(2) ? InCell(sound) : WithMiddles(sound, chance);
    compare(ring);
    ExpectTiled(ring, ToPlane(ring));
    ExpectTiled(ring, ToPlane(ring, {47.3, 8.1}, step));
    // Rings that cross and touch themselves.
    const std::int64_t vertices = chance.Between(4, 22);
    compare(WithMiddles(Scatter(chance, vertices, 6), chance));
    compare(WithMiddles(test::generators::Untangled(Scatter(chance, vertices, 8)), chance));
    if (HasFailure()) return;
  }
}

TEST(RingPieces, OfLongRingsTileThem) {
  for (const std::uint64_t seed : {1U, 2U}) {
    test::Chance chance(seed);
    test::LatticeRing coast = test::generators::CoastOf(chance, 5000, 20000, 0.2);
    if (test::TwiceArea(coast) < 0) std::reverse(coast.begin(), coast.end());
    ASSERT_TRUE(test::IsSimple(coast)) << seed;
    const Ring ring = InCell(coast);
    ExpectTiled(ring, ToPlane(ring, {-33.1, 151.2}, 1e-5));
  }
}

TEST(RingPieces, OfARingWithABridgeToItsIslandTileIt) {
  const Ring ring = {{1397, 151},  {1047, 868},  {1093, 1053}, {1085, 956}, {1047, 868}, {1397, 151},
                     {1410, 1079}, {1112, 1148}, {782, 400},   {508, 340},  {772, 294},  {1238, 226}};
  ExpectTiled(ring, ToPlane(ring));
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
