// Rings that cross themselves, and rings that only touch themselves.
#include "vector/RingCrossing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace landsmith {
namespace {

using Ring = std::vector<RingVertex>;

struct CrossingRow {
  const char* name;
  Ring ring;
  std::optional<RingPlace> crossing;
};

TEST(RingCrossing, PassingThroughCountsTouchingDoesNot) {
  const CrossingRow rows[] = {
      {"a square", {{0, 0}, {4, 0}, {4, 4}, {0, 4}}, {}},
      {"a bow tie", {{0, 0}, {4, 2}, {4, 0}, {0, 2}}, RingPlace{2, 1}},
      {"a bow tie with vertices in its knot",
       {{0, 0}, {2, 1}, {4, 2}, {4, 0}, {2, 1}, {0, 2}},
       RingPlace{2, 1}},
      {"two triangles that share a vertex", {{0, 0}, {2, 1}, {4, 0}, {4, 2}, {2, 1}, {0, 2}}, {}},
      {"a vertex on the far edge", {{0, 0}, {8, 0}, {8, 4}, {4, 0}, {0, 4}}, {}},
      {"a tip through the far edge", {{0, 0}, {8, 0}, {8, 4}, {4, -4}, {0, 4}}, RingPlace{2, 0}},
      {"a vertex on an edge, passed through", {{0, 0}, {8, 0}, {8, 4}, {4, 0}, {4, -4}}, RingPlace{4, 0}},
      {"a spike and back", {{0, 0}, {4, 0}, {9, 0}, {4, 0}, {4, 4}, {0, 4}}, {}},
      {"all on one line, to and fro", {{0, 0}, {8, 8}, {4, 4}, {6, 6}}, {}},
      {"a channel that has closed", {{0, 0}, {4, 0}, {4, 3}, {4, 0}, {8, 0}, {8, 8}, {0, 8}}, {}},
      {"a slit along an edge", {{0, 0}, {9, 0}, {9, 4}, {6, 4}, {6, 0}, {3, 0}, {3, 4}, {0, 4}}, {}},
      {"repeated vertices", {{0, 0}, {0, 0}, {4, 0}, {4, 4}, {4, 4}, {0, 4}, {0, 0}}, {}},
      {"nothing at all", {}, {}},
  };
  for (const CrossingRow& row : rows) {
    // The answer is the ring's, whatever the first vertex and the direction.
    Ring ring = row.ring;
    for (std::size_t turn = 0; turn < std::max<std::size_t>(ring.size(), 1); ++turn) {
      for (int side = 0; side < 2; ++side) {
        const auto found = FindRingCrossing(ring);
        ASSERT_EQ(found.has_value(), row.crossing.has_value()) << row.name;
        if (found && row.crossing) {
          EXPECT_DOUBLE_EQ(found->X, row.crossing->X) << row.name;
          EXPECT_DOUBLE_EQ(found->Y, row.crossing->Y) << row.name;
        }
        std::reverse(ring.begin(), ring.end());
      }
      if (!ring.empty()) std::rotate(ring.begin(), ring.begin() + 1, ring.end());
    }
  }
}

// The same question by looking at all pairs.

double Angle(const RingVertex& from, const RingVertex& to) {
  return std::atan2(to.Y - from.Y, to.X - from.X);
}

/// Strictly within the turn from `first` to `last`.
bool IsWithin(double angle, double first, double last) {
  const auto ahead = [first](double other) { return other < first ? other + 8 : other; };  // 8: above 2 pi
  return angle != first && angle != last && ahead(angle) < ahead(last);
}

bool PassThrough(const RingVertex& place, const RingVertex& a1, const RingVertex& a2, const RingVertex& b1,
                 const RingVertex& b2) {
  const double first = Angle(place, a1), last = Angle(place, a2);
  const double one = Angle(place, b1), other = Angle(place, b2);
  return (IsWithin(one, first, last) && IsWithin(other, last, first)) ||
         (IsWithin(other, first, last) && IsWithin(one, last, first));
}

int Side(const RingVertex& a, const RingVertex& b, const RingVertex& c) {
  const int turn = (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
  return (turn > 0) - (turn < 0);
}

bool LiesInside(const RingVertex& place, const RingVertex& a, const RingVertex& b) {
  return Side(a, b, place) == 0 && place != a && place != b && (place.X - a.X) * (place.X - b.X) <= 0 &&
         (place.Y - a.Y) * (place.Y - b.Y) <= 0;
}

bool CrossesByAllPairs(const Ring& ring) {
  const std::size_t n = ring.size();
  for (std::size_t i = 0; i < n; ++i) {
    const RingVertex &a0 = ring[(i + n - 1) % n], &a = ring[i], &a1 = ring[(i + 1) % n];
    for (std::size_t k = 0; k < n; ++k) {
      const RingVertex &b0 = ring[(k + n - 1) % n], &b = ring[k], &b1 = ring[(k + 1) % n];
      const bool inside = Side(a, a1, b) * Side(a, a1, b1) < 0 && Side(b, b1, a) * Side(b, b1, a1) < 0;
      if (inside) return true;
      if (k != i && a == b && PassThrough(a, a0, a1, b0, b1)) return true;
      if (LiesInside(a, b, b1) && PassThrough(a, a0, a1, b, b1)) return true;
      for (std::size_t m = 0; m < n; ++m)  // two edges that pass through a vertex of a third part
        if (LiesInside(a, b, b1) && LiesInside(a, ring[m], ring[(m + 1) % n]) &&
            PassThrough(a, b, b1, ring[m], ring[(m + 1) % n]))
          return true;
    }
  }
  return false;
}

Ring WithoutRepeats(Ring ring) {
  ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
  while (ring.size() > 1 && ring.front() == ring.back())
    ring.pop_back();
  return ring;
}

TEST(RingCrossing, AgreesWithAllPairsOnRandomRings) {
  std::mt19937 random(4);
  int crossing = 0, plain = 0;
  for (int round = 0; round < 60000; ++round) {
    // On so small a lattice vertices, edges and tips fall on one another all the time.
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    Ring ring(static_cast<std::size_t>(3 + below(8)));
    const int side = 2 + below(6);
    for (RingVertex& vertex : ring)
      vertex = {below(side), below(side)};
    ring = WithoutRepeats(ring);
    if (ring.size() < 3) continue;
    const bool expected = CrossesByAllPairs(ring);
    ++(expected ? crossing : plain);
    ASSERT_EQ(FindRingCrossing(ring).has_value(), expected) << testing::PrintToString(round);
  }
  EXPECT_GT(crossing, 10000);
  EXPECT_GT(plain, 10000);
}

TEST(RingCrossing, FindsTheOneKnotOfALongRing) {
  // Teeth as long as the ring is wide, all aslant: every box of an edge meets every other.
  constexpr int teeth = 20000;
  Ring comb;
  for (int i = 0; i < teeth; ++i) {
    comb.push_back({2 * i, 0});
    comb.push_back({teeth + 2 * i, 4 * teeth});
  }
  comb.push_back({4 * teeth, 4 * teeth});
  comb.push_back({4 * teeth, -1});
  comb.push_back({0, -1});
  EXPECT_FALSE(FindRingCrossing(comb));
  std::swap(comb[30000], comb[30002]);  // neighbouring roots
  EXPECT_TRUE(FindRingCrossing(comb));
}

TEST(RingCrossing, IsExactAtTheLargestCoordinates) {
  // The third vertex lies one unit beside an edge of length 2^30, then on it, then one on the far side.
  constexpr std::int32_t far = LargestRingCoordinate;
  for (const auto& [y, crosses] : {std::pair(far - 1, true), std::pair(far, false)}) {
    const Ring ring{{-far, -far}, {far, far}, {far, -far}, {far, y}, {-far, far - 2}};
    EXPECT_EQ(FindRingCrossing(ring).has_value(), crosses) << y;
  }
}

}  // namespace
}  // namespace landsmith
