#include "vector/PolyOperations.h"
#include "vector/RingOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace landsmith {
namespace {

using testing::ElementsAre;

PolyRec Poly(std::vector<PolyPoint> points, const char* type = "") {
  PolyRec poly;
  poly.Type = type;
  poly.Points = std::move(points);
  SetPathBounds(poly);
  return poly;
}

std::vector<float> Altitudes(const PolyRec& poly) {
  std::vector<float> altitudes;
  for (const PolyPoint& point : poly.Points)
    altitudes.push_back(point.Alt);
  return altitudes;
}

/// Rises from 10 in the west to 30 in the east.
PolyRec Slope() {
  return Poly({{0, 0, 10, false}, {1, 0, 20, false}, {2, 0, 30, false}, {1, 1, 20, false}},
              "LWM//Land//30//10//3//1//");
}

TEST(LwmType, FollowsTheVertices) {
  const struct {
    const char* name;
    std::vector<float> altitudes;
    const char* before;
    const char* after;
  } rows[] = {
      {"of equals the earlier vertex",
       {10, 30, 30, 5, 5},
       "LWM//Water//0//0//1//1//",
       "LWM//Water//30//5//2//4//"},
      {"shortest text", {12.3F, 1200000, 0.1F}, "LWM//Land//1//0//1//1//", "LWM//Land//1200000//0.1//2//3//"},
      {"level, the text has its altitude",
       {0, 0, 0},
       "LWM//Flatten//100.50//100.5//2//3//",
       "LWM//Flatten//100.5//100.5//1//1//"},
      {"level after a slope", {7, 7, 7}, "LWM//Land//9//7//1//2//", "LWM//Land//7//7//1//1//"},
      {"another type", {1, 2, 3}, "VTP//4//9//", "VTP//4//9//"},
  };
  for (const auto& row : rows) {
    PolyRec poly = Poly({}, row.before);
    for (const float altitude : row.altitudes)
      poly.Points.push_back({0, 0, altitude, false});
    UpdateLWMType(poly);
    EXPECT_EQ(poly.Type, row.after) << row.name;
  }
}

TEST(PolyPlane, RisesAlongTheLineBetweenItsTwoVerticesAlone) {
  PolyRec poly = Slope();
  SetPolyPlane(poly, 0, 2, 100, 300);
  EXPECT_THAT(Altitudes(poly), ElementsAre(100, 200, 300, 200));
  SetPolyPlane(poly, 0, 2, 7, 7);
  EXPECT_THAT(Altitudes(poly), ElementsAre(7, 7, 7, 7));
  // Up a diagonal of one degree: with c = cos(0.5 degrees) a vertex due east lies c*c / (1 + c*c) up.
  poly = Poly({{0, 0, 0, false}, {1, 0, 0, false}, {1, 1, 0, false}});
  SetPolyPlane(poly, 0, 2, 0, 1000);
  EXPECT_NEAR(poly.Points[1].Alt, 499.981, 0.001);
  poly.Points[2] = poly.Points[0];
  SetPolyPlane(poly, 0, 2, 0, 1000);
  EXPECT_NEAR(poly.Points[1].Alt, 499.981, 0.001) << "no plane stands upright";
}

TEST(MovedVertex, StaysOnTheSlopeOfItsPolygon) {
  const struct {
    const char* name;
    double lon;
    float thirdAltitude;
    std::vector<float> altitudes;
    const char* type;
  } rows[] = {
      {"between the two", 1.5, 30, {10, 25, 30, 20}, "LWM//Land//30//10//3//1//"},
      {"beyond the highest", 3, 30, {10, 40, 30, 20}, "LWM//Land//40//10//2//1//"},
      {"hardly a slope", 1.5, 10.005F, {10, 20, 10.005F, 20}, "LWM//Land//20//10//2//1//"},
  };
  for (const auto& row : rows) {
    RecordList<PolyRec> polys{Slope()};
    PolyRec& poly = polys.Edit(0);
    poly.Points[2].Alt = row.thirdAltitude;
    poly.Points[1].Selected = true;
    ASSERT_TRUE(MovePath(poly, row.lon - 1, 0));
    EXPECT_EQ(Altitudes(poly), row.altitudes) << row.name;
    EXPECT_EQ(poly.Type, row.type) << row.name;
  }
}

TEST(VertexNumbersInTheType, FollowDeletion) {
  RecordList<PolyRec> polys{Slope()};
  EXPECT_FALSE(DeletePathPoint(polys, 0, 0));
  EXPECT_EQ(polys[0].Type, "LWM//Land//30//20//2//1//");
  EXPECT_TRUE(DeletePathPoint(polys, 0, 0)) << "three are the fewest";
}

TEST(TexCoords, SpreadTheLongerSideOver256) {
  PolyRec poly =
      Poly({{10, 50, 0, false}, {12, 50, 0, false}, {12, 51, 0, false}, {10.50390625, 50.51171875, 0, false}},
           "TEX//a.bmp//4//1//1//5000//0//1,1//2,2//3,3//4,4//");
  const std::string kept = poly.Type;
  SetTexCoords(poly, false);
  EXPECT_EQ(poly.Type, kept);
  SetTexCoords(poly, true);  // 64.5 and 65.5 go to the even neighbour
  EXPECT_EQ(poly.Type, "TEX//a.bmp//4//1//1//5000//0//0,0//256,0//256,128//64,66//");

  RecordList<PolyRec> polys{poly};
  Selection selection;
  ASSERT_TRUE(InsertPathPoint(polys, {51, 10}, 0, 4, selection));
  EXPECT_EQ(polys[0].Type, "TEX//a.bmp//4//1//1//5000//0//0,0//256,0//256,128//64,66//0,128//");

  poly =
      Poly({{10, 50, 0, false}, {10, 50.5, 0, false}, {10, 51, 0, false}}, "TEX//a.bmp//4//1//1//5000//0//");
  SetTexCoords(poly, false);
  EXPECT_EQ(poly.Type, "TEX//a.bmp//4//1//1//5000//0//0,0//0,128//0,256//") << "no width at all";
}

TEST(PolyToLine, RepeatsTheFirstVertexAndLeavesNameAndTypeBehind) {
  PolyRec poly = Slope();
  poly.Name = "field";
  const LineRec line = MakeLineFromPoly(poly, 12, 77);
  ASSERT_EQ(line.Points.size(), 5U);
  EXPECT_EQ(line.Points[3], (LinePoint{1, 1, 12, false}));
  EXPECT_EQ(line.Points[4], line.Points[0]);
  EXPECT_EQ(line.Name + line.Type, "");
  EXPECT_EQ(line.Color, 77);
  EXPECT_EQ(line.Box, poly.Box);
}

TEST(RingDirection, IsJudgedAtTheNorthernmostPoint) {
  const struct {
    const char* name;
    std::vector<PolyPoint> ring;
    bool reversed;
  } rows[] = {
      {"clockwise", {{0, 0, 0, false}, {1, 2, 0, false}, {2, 0, 0, false}}, false},
      {"against the clock", {{2, 0, 0, false}, {1, 2, 0, false}, {0, 0, 0, false}}, true},
      {"two northernmost", {{0, 2, 0, false}, {0, 0, 0, false}, {2, 0, 0, false}, {2, 2, 0, false}}, true},
      {"there and back on one line in the north",
       {{1, 4, 0, false}, {1, 2, 0, false}, {0, 0, 0, false}, {2, 0, 0, false}, {1, 2, 0, false}},
       true},
      {"no area", {{0, 0, 0, false}, {1, 1, 0, false}, {2, 2, 0, false}}, false},
  };
  for (const auto& row : rows) {
    for (std::size_t start = 0; start < row.ring.size(); ++start) {
      std::vector<PolyPoint> ring = row.ring;
      RotatePolyStart(ring, start);
      EXPECT_EQ(ring.front(), row.ring[start]);
      EXPECT_EQ(OrientPoly(ring), row.reversed) << row.name << ", start " << start;
    }
  }
}

}  // namespace
}  // namespace landsmith
