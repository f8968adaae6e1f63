#include "core/Settings.h"
#include "vector/PolyJoin.h"
#include "vector/RingOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace landsmith {
namespace {

using Ring = std::vector<PolyPoint>;

constexpr ViewScale OfNoUse{1, 1, 1};

/// A tolerance of 3 pixels that are this many degrees wide and high.
ViewScale PixelsOf(double degrees) {
  return {1 / degrees, 1 / degrees, 1};
}

AppSettings JoinOneStepApart() {
  AppSettings settings;
  settings.DisplayJoin = false;
  settings.AutoLineJoin = 1;
  return settings;
}

PolyRec Poly(Ring ring, const char* name = "", const char* type = "") {
  PolyRec poly;
  poly.Name = name;
  poly.Type = type;
  poly.Points = std::move(ring);
  poly.Selected = true;
  SetPathBounds(poly);
  return poly;
}

/// Corners in hundredths of a degree.
Ring Corners(std::initializer_list<LatLon> eastNorth) {
  Ring ring;
  for (const auto& [east, north] : eastNorth)
    ring.push_back({east / 100, north / 100, 0, false});
  return ring;
}

double AreaOf(const Ring& ring) {
  return std::fabs(SignedRingArea(ring));
}

/// A star-shaped ring and a cut through its inside, from one of its vertices to another.
class CutStar {
public:
  CutStar(std::mt19937& chance, double radiusDegrees) : m_chance(chance), m_radius(radiusDegrees) {
    const int corners = Whole(6, 20);
    const double step = 2 * std::acos(-1.0) / corners;
    for (int k = 0; k < corners; ++k)
      Outline.push_back(Place(step * (k + Real(-0.2, 0.2)), Real(0.6, 1)));
    const auto from = static_cast<std::size_t>(Whole(0, corners - 1));
    RotatePolyStart(Outline, from);
    m_to = static_cast<std::size_t>(Whole(corners / 4 + 1, corners - corners / 4 - 1));
    Cut = InnerPlaces(Outline.front(), Outline[m_to]);
  }

  /// The two parts; each has the ends of the cut and the places on it.
  Ring PartBefore() const {
    Ring part(Outline.begin(), Outline.begin() + static_cast<std::ptrdiff_t>(m_to) + 1);
    part.insert(part.end(), Cut.rbegin(), Cut.rend());
    return part;
  }
  Ring PartBehind() const {
    Ring part(Outline.begin() + static_cast<std::ptrdiff_t>(m_to), Outline.end());
    part.push_back(Outline.front());
    part.insert(part.end(), Cut.begin(), Cut.end());
    return part;
  }

  Ring Outline;
  Ring Cut;

private:
  int Whole(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_chance); }
  double Real(double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(m_chance);
  }
  PolyPoint Place(double angle, double radius) const {
    return {8 + m_radius * radius * std::cos(angle), 47 + m_radius * radius * std::sin(angle), 0, false};
  }
  /// All edges can be seen from the disc of radius 0.15, so what is drawn through it stays inside; in the
  /// order of the way from `from` to `to` it does not cross itself.
  Ring InnerPlaces(const PolyPoint& from, const PolyPoint& to) {
    Ring places(static_cast<std::size_t>(Whole(1, 6)));
    for (PolyPoint& place : places)
      place = Place(Real(0, 7), Real(0, 0.15));
    const auto along = [&](const PolyPoint& p) {
      return (p.Lon - from.Lon) * (to.Lon - from.Lon) + (p.Lat - from.Lat) * (to.Lat - from.Lat);
    };
    std::sort(places.begin(), places.end(),
              [&](const PolyPoint& a, const PolyPoint& b) { return along(a) < along(b); });
    return places;
  }

  std::mt19937& m_chance;
  double m_radius;
  std::size_t m_to = 0;
};

void TurnAtRandom(Ring& ring, std::mt19937& chance) {
  RotatePolyStart(ring, chance() % ring.size());
  if (chance() % 2 == 0) std::reverse(ring.begin(), ring.end());
}

/// Every `step`-th vertex from `first` on is off by up to 0.4 of what may lie between vertices that
/// meet.
Ring Shaken(Ring ring, std::size_t first, std::size_t step, std::mt19937& chance) {
  std::uniform_real_distribution<double> off(-0.4, 0.4);
  for (std::size_t k = first; k < ring.size(); k += step) {
    ring[k].Lon += off(chance) * StepLon;
    ring[k].Lat += off(chance) * StepLat;
  }
  return ring;
}

/// Largest distance between vertices of the two rings in steps, when the rings begin alike.
double Difference(Ring joined, Ring whole) {
  if (joined.size() != whole.size()) return HUGE_VAL;
  OrientPoly(joined);
  OrientPoly(whole);
  double least = HUGE_VAL;
  for (std::size_t start = 0; start < whole.size(); ++start) {
    double worst = 0;
    for (std::size_t k = 0; k < whole.size(); ++k) {
      const PolyPoint& a = joined[(start + k) % joined.size()];
      worst = std::max(
          {worst, std::fabs(a.Lon - whole[k].Lon) / StepLon, std::fabs(a.Lat - whole[k].Lat) / StepLat});
    }
    least = std::min(least, worst);
  }
  return least;
}

TEST(JoinTwoPolys, PutsACutStarTogetherWhereverItsPartsBegin) {
  std::mt19937 chance(20040715);
  for (int trial = 0; trial < 4000; ++trial) {
    // In small stars, and in a view from far away, many vertices of the cut are close to more than one of the
    // other part.
    const bool small = trial % 4 == 0;
    const bool exact = small || trial % 2 == 0;
    AppSettings settings = JoinOneStepApart();
    settings.DisplayJoin = trial % 6 == 0;
    const CutStar star(chance, small ? 0.001 : 0.01);
    Ring before = star.PartBefore();
    Ring behind = star.PartBehind();
    const double sum = AreaOf(before) + AreaOf(behind);
    ASSERT_NEAR(sum, AreaOf(star.Outline), 1e-15) << "the parts do not overlap";
    // Only vertices that go are off, among them perhaps those at which a ring begins.
    const bool cutAlone = trial % 4 == 3;
    if (cutAlone) behind = Shaken(behind, behind.size() - star.Cut.size(), 2, chance);
    TurnAtRandom(before, chance);
    TurnAtRandom(behind, chance);
    if (!exact && !cutAlone) behind = Shaken(behind, 0, 1, chance);
    ProjectState project;
    project.Polys = {Poly(before), Poly(behind)};
    Selection selection{2, true, false};
    ASSERT_EQ(JoinPolys(project, settings, PixelsOf(0.0001 * (1 + trial % 97)), selection), "")
        << "trial " << trial;
    ASSERT_EQ(project.Polys.size(), 1U);
    const Ring& joined = project.Polys[0].Points;
    ASSERT_LE(Difference(joined, star.Outline), exact || cutAlone ? 0 : 0.4 + 1e-6) << "trial " << trial;
    if (exact) {
      ASSERT_NEAR(AreaOf(joined), sum, 1e-15);
    }
  }
}

TEST(JoinTwoPolys, TakesOrRefusesWhatLiesSideBySide) {
  const Ring square = Corners({{0, 0}, {3, 0}, {3, 3}, {0, 3}});
  const Ring beside = Corners({{3, 0}, {5, 0}, {5, 3}, {3, 3}});
  const Ring notched = Corners({{0, 0}, {3, 0}, {3, 3}, {2, 3}, {2, 1}, {1, 1}, {1, 3}, {0, 3}});
  const Ring inNotch = Corners({{1, 1}, {2, 1}, {2, 3}, {1, 3}});
  const Ring barOverNotch = Corners({{0, 3}, {1, 3}, {2, 3}, {3, 3}, {3, 4}, {0, 4}});
  const char* const refused = "Polygons can not be joined!";
  const struct {
    const char* name;
    Ring first, second;
    const char* message;
    double area;  // of the joined ring, in the units of the corners
    std::size_t points;
  } rows[] = {
      {"a border of two vertices", square, beside, "", 15, 6},
      {"the second fills a notch of the first", notched, inNotch, "", 9, 6},
      {"each vertex of the first is one of the second", inNotch, notched, refused, 0, 0},
      {"around a hole, which one border opens", notched, barOverNotch, "", 7 + 3, 12},
      {"one common corner", square, Corners({{3, 3}, {4, 3}, {4, 4}}), refused, 0, 0},
      {"one common corner, then a border", square,
       Corners({{0, 0}, {3, 0}, {4, 2}, {3, 3}, {5, 4}, {5, -1}, {0, -1}}), "", 9 + 10.5, 9},
      {"a vertex in front of the border is close to it too",
       Corners({{0, 0}, {0, 3.1}, {2.997, 3.003}, {3, 3}, {3, 2.997}, {3, 0}}),
       Corners({{3, 3}, {5, 3}, {5, 0}, {3, 0}, {3, 2.997}}), "", 9.15435 + 6, 7},
      {"a gap as wide as the second", square, Corners({{3.004, 0}, {3.004, 3}, {3.008, 1.5}}), refused, 0, 0},
      {"far apart", square, Corners({{7, 0}, {8, 0}, {8, 3}}), refused, 0, 0},
      {"one upon the other", square, square, refused, 0, 0},
      {"one inside the other", square, Corners({{0, 0}, {3, 0}, {2, 1}}), refused, 0, 0},
      {"a first of two vertices", Corners({{0, 0}, {3, 0}}), beside, "Fatal error in polygon 1!", 0, 0},
      {"a second without area", square, Corners({{3, 0}, {3, 3}, {3, 6}}), "Fatal error in polygon 2!", 0, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ProjectState project;
    project.Polys = {Poly(row.first), Poly(row.second)};
    const ProjectState before = project;
    Selection selection{2, true, false};
    EXPECT_EQ(JoinPolys(project, JoinOneStepApart(), OfNoUse, selection), row.message);
    if (row.points == 0) {
      EXPECT_EQ(project, before);
      EXPECT_EQ(selection.SelectedCount, 2);
      continue;
    }
    ASSERT_EQ(project.Polys.size(), 1U);
    EXPECT_EQ(project.Polys[0].Points.size(), row.points);
    EXPECT_NEAR(AreaOf(project.Polys[0].Points), row.area / 1e4, 1e-12);
    EXPECT_EQ(selection.SelectedCount, 1);
  }
}

TEST(JoinTwoPolys, KeepsTheFirstsRecordAndTheSecondsAltitudes) {
  ProjectState project;
  const char* const water = "LWM//Water//5//5//1//1//";
  project.Polys = {Poly(Corners({{9, 9}, {10, 9}, {10, 10}})),
                   Poly(Corners({{0, 0}, {0, 3}, {3, 3}, {3, 0}}), "west", water),
                   Poly(Corners({{3, 0}, {3, 3}, {5, 3}, {5, 0}}), "east")};
  project.Polys.Edit(0).Selected = false;
  for (PolyPoint& point : project.Polys.Edit(1).Points)
    point.Alt = 5;
  for (PolyPoint& point : project.Polys.Edit(2).Points)
    point.Alt = 2;
  Selection selection{2, true, false};
  ASSERT_EQ(JoinPolys(project, JoinOneStepApart(), OfNoUse, selection), "");
  ASSERT_EQ(project.Polys.size(), 2U);
  const PolyRec& lake = project.Polys[1];
  EXPECT_EQ(lake.Name, "west");
  EXPECT_TRUE(lake.Selected);
  EXPECT_EQ(lake.Box.ELon, 0.05);
  std::string altitudes;
  for (const PolyPoint& point : lake.Points)
    altitudes += point.Alt == 5 ? '5' : '2';
  EXPECT_EQ(altitudes, "555225") << "clockwise from the south-west, which is away from the east";
  EXPECT_EQ(lake.Type, "LWM//Water//5//2//1//4//");
  EXPECT_EQ(JoinPolys(project, JoinOneStepApart(), OfNoUse, selection), "Could not find 2 polygons to join!");
}

TEST(AutoJoinPolys, MeetsTheFirstEarlierOneOfItsType) {
  const auto square = [](double east, const char* name, const char* type = "") {
    return Poly(Corners({{east, 0}, {east + 1, 0}, {east + 1, 1}, {east, 1}}), name, type);
  };
  ProjectState project;
  project.Polys = {square(7, "far"),   square(1, "other", "VTP//4//1//"),
                   square(2, "right"), square(0, "left"),
                   square(1, "new"),   square(1, "later")};
  AppSettings settings = JoinOneStepApart();
  settings.AutoLineJoin = 0;
  EXPECT_FALSE(TryAutoJoinPoly(project, 4, settings, OfNoUse));
  settings.AutoLineJoin = 1;
  ASSERT_TRUE(TryAutoJoinPoly(project, 4, settings, OfNoUse));
  ASSERT_EQ(project.Polys.size(), 5U);
  EXPECT_EQ(project.Polys[2].Name, "right");
  EXPECT_EQ(project.Polys[2].Points.size(), 6U);
  EXPECT_FALSE(TryAutoJoinPoly(project, 0, settings, OfNoUse));
}

}  // namespace
}  // namespace landsmith
