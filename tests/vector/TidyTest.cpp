#include "vector/PolyOperations.h"
#include "vector/Tidy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

constexpr double Metre = 1 / 111330.0;  // of latitude, and of longitude at the equator

template <class Path>
Path Through(const std::vector<LatLon>& places, float third = 0) {
  Path path;
  for (const LatLon& at : places)
    AppendPoint(path, at, third);
  return path;
}

TEST(Simplify, DropsAVertexWhoseFollowerIsNearTheLastOneKept) {
  const struct {
    const char* name;
    std::vector<double> east;  // metres at the equator
    double centerLat;
    std::vector<double> kept;
  } rows[] = {
      {"one too close", {0, 5, 9, 15, 30, 33}, 0, {0, 9, 15, 30, 33}},
      {"a crowd", {0, 3, 6, 9, 12, 15}, 0, {0, 9, 15}},
      {"two vertices are left alone", {0, 3}, 0, {0, 3}},
      {"all within reach, the last stays", {0, 1, 2, 3}, 0, {0, 3}},
      {"room at the equator", {0, 8, 16, 100}, 0, {0, 8, 16, 100}},
      {"half as far apart at 60 degrees", {0, 8, 16, 100}, 60, {0, 16, 100}},
  };
  for (const auto& row : rows) {
    LineRec line;
    for (const double metres : row.east)
      AppendPoint(line, {0, metres * Metre}, 1);
    EXPECT_EQ(SimplifyLine(line, {10, row.centerLat}), row.east.size() - row.kept.size()) << row.name;
    std::vector<double> left;
    for (const LinePoint& point : line.Points)
      left.push_back(point.Lon / Metre);
    EXPECT_THAT(left, Pointwise(DoubleNear(1e-9), row.kept)) << row.name;
  }
}

TEST(Simplify, KeepsPolygonsOfThreeAndTheirTypeInOrder) {
  auto poly = Through<PolyRec>({{0, 0}, {0, 3 * Metre}, {0, 6 * Metre}, {90 * Metre, 0}, {50 * Metre, 0}});
  poly.Type = "LWM//Land//9//0//4//1//";
  poly.Points[3].Alt = 9;
  ASSERT_TRUE(SimplifyPoly(poly, {10, 0}));
  EXPECT_EQ(poly.Points.size(), 4U);
  EXPECT_EQ(poly.Type, "LWM//Land//9//0//3//1//");
  const auto tiny = Through<PolyRec>({{0, 0}, {0, 3 * Metre}, {3 * Metre, 3 * Metre}});
  auto changed = tiny;
  EXPECT_FALSE(SimplifyPoly(changed, {10, 0}));
  EXPECT_EQ(changed, tiny);
}

TEST(Smooth, PutsVerticesAThirdAlongTheSegmentsTurnedOutwards) {
  constexpr double u = 0.001;  // 111 metres
  auto line = Through<LineRec>({{0, 0}, {0, 3 * u}, {3 * u, 3 * u}}, 10);
  line.Points[1].Wid = 40;
  SmoothLine(line, {15, 0}, {});
  // The directions (3, 1) and (1, 3), a third of 3 u long: 3 / sqrt(10) = 0.94868, 1 / sqrt(10) = 0.31623.
  ASSERT_EQ(line.Points.size(), 5U);
  EXPECT_NEAR(line.Points[1].Lon / u, 3 - 0.948683298, 1e-8);
  EXPECT_NEAR(line.Points[1].Lat / u, -0.316227766, 1e-8);
  EXPECT_EQ(line.Points[1].Wid, 30);
  EXPECT_EQ(line.Points[2], (LinePoint{3 * u, 0, 40, false}));
  EXPECT_NEAR(line.Points[3].Lon / u, 3 + 0.316227766, 1e-8);
  EXPECT_NEAR(line.Points[3].Lat / u, 0.948683298, 1e-8);
  EXPECT_EQ(line.Points[3].Wid, 30);
  EXPECT_EQ(line.Box.SLat, line.Points[1].Lat);
}

TEST(Smooth, LeavesShortStraightAndWantedCornersAlone) {
  constexpr double u = 0.001;  // 111 metres
  const std::vector<LatLon> zigzag{{0, 0}, {0, u}, {u, u}, {u, 2 * u}};
  const std::vector<LatLon> square{{0, 0}, {u, 0}, {u, u}, {0, u}};
  const struct {
    const char* name;
    std::vector<LatLon> places;
    bool ring;
    float metres;
    SmoothOptions options;
    std::size_t points;
  } rows[] = {
      {"every corner", zigzag, false, 15, {}, 4 + 4},
      {"ends kept", zigzag, false, 15, {.KeepEnds = true}, 4 + 2},
      {"segments too short", zigzag, false, 120, {}, 4},
      {"first segment too short", {{0, 0}, {0, 0.1 * u}, {u, 0.1 * u}}, false, 15, {}, 3 + 1},
      {"nearly straight", {{0, 0}, {0, u}, {0.05 * u, 2 * u}}, false, 15, {}, 3},
      {"sharp", {{0, 0}, {0, u}, {0.5 * u, 0}}, false, 15, {}, 3 + 2},
      {"sharp on purpose", {{0, 0}, {0, u}, {0.5 * u, 0}}, false, 15, {.SmoothSharp = true}, 3},
      {"two at one place", {{0, 0}, {0, 0}, {u, 0}}, false, 15, {}, 3 + 1},
      {"only two", {{0, 0}, {u, 0}}, false, 15, {}, 2},
      {"ring", square, true, 15, {}, 4 + 8},
      {"ring with its closing edge kept", square, true, 15, {.KeepEnds = true}, 4 + 6},
  };
  for (const auto& row : rows) {
    auto line = Through<LineRec>(row.places);
    auto poly = Through<PolyRec>(row.places);
    SmoothLine(line, {row.metres, 0}, row.options);
    SmoothPoly(poly, {row.metres, 0}, row.options);
    EXPECT_EQ(row.ring ? poly.Points.size() : line.Points.size(), row.points) << row.name;
  }
}

TEST(Smooth, BringsTexturePairsAlong) {
  auto poly = Through<PolyRec>({{0, 0}, {0.001, 0}, {0.001, 0.001}});
  poly.Type = "TEX//a.bmp//4//1//1//5000//0//0,0//0,256//256,256//";
  SmoothPoly(poly, {15, 0}, {.KeepEnds = true});
  ASSERT_EQ(poly.Points.size(), 7U);
  PolyRec fresh = poly;
  SetTexCoords(fresh, true);
  EXPECT_EQ(poly.Type, fresh.Type);
}

}  // namespace
}  // namespace landsmith
