#include "core/Grid.h"
#include "vector/GridSnap.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

// Cell 408, 121 begins at 11.25 east and 90 - 121 * 0.3515625 north; points are named by their steps from
// its north-west corner.
constexpr double West = 11.25;
constexpr double North = 90 - 121 * 0.3515625;

LatLon At(double stepsX, double stepsY) {
  return {North - stepsY * StepLat, West + stepsX * StepLon};
}

template <class Path>
Path Selected(std::initializer_list<LatLon> points) {
  Path path;
  path.Selected = true;
  for (const LatLon& at : points)
    path.Points.push_back({at.lon, at.lat, 10, false});
  return path;
}

template <class Point>
void ExpectAt(const Point& point, double stepsX, double stepsY) {
  EXPECT_NEAR((point.Lon - West) / StepLon, stepsX, 1e-5);
  EXPECT_NEAR((North - point.Lat) / StepLat, stepsY, 1e-5);
}

TEST(GridSnap, MovesSelectedVerticesToPoints) {
  ProjectState project;
  project.Lines = {Selected<LineRec>({At(100.3, 50.2), At(254.8, 60.4)}),
                   Selected<LineRec>({At(1.3, 1.3), At(9.3, 9.3)})};
  project.Lines.Edit(1).Selected = false;
  project.Polys = {Selected<PolyRec>({At(10.3, 10.3), At(254.8, 10.3), At(100.4, 99.8)})};
  const LineRec untouched = project.Lines[1];
  const SnapResult result = SnapSelectedToLod21(project);
  EXPECT_EQ(result.Verified, 5);
  EXPECT_EQ(result.Eliminated, 0);
  ExpectAt(project.Lines[0].Points[0], 100, 50);
  ExpectAt(project.Lines[0].Points[1], 255, 60);  // no nudge at a border inside the Cell
  ExpectAt(project.Polys[0].Points[0], 10, 10);
  ExpectAt(project.Polys[0].Points[1], 254.999, 10);  // a thousandth of a step inside its Area
  EXPECT_EQ(project.Lines[1], untouched);
  EXPECT_EQ(project.Lines[0].Box.NLat, project.Lines[0].Points[0].Lat);
}

TEST(GridSnap, DropsPointsThatMeetTheOneBefore) {
  ProjectState project;
  project.Lines = {Selected<LineRec>({At(10, 10), At(10.2, 10.2), At(9.8, 10.1), At(20, 20), At(10, 10)})};
  project.Polys = {Selected<PolyRec>({At(10, 10), At(50, 10), At(50.1, 10.2), At(50, 50), At(10.2, 9.9)})};
  project.Polys.Edit(0).Points[4].Alt = 50;
  project.Polys.Edit(0).Type = "LWM//Land//50//10//5//1//";
  const SnapResult result = SnapSelectedToLod21(project);
  EXPECT_EQ(result.Verified, 10);
  EXPECT_EQ(result.Eliminated, 2 + 2);  // the ring's last point meets its first as well
  ASSERT_EQ(project.Lines[0].Points.size(), 3u);
  ExpectAt(project.Lines[0].Points[1], 20, 20);
  ASSERT_EQ(project.Polys[0].Points.size(), 3u);
  ExpectAt(project.Polys[0].Points[2], 50, 50);
  EXPECT_EQ(project.Polys[0].Type, "LWM//Land//10//10//1//1//");
}

TEST(GridSnap, DeletesWhatHasTooFewPointsLeft) {
  ProjectState project;
  project.Lines = {Selected<LineRec>({At(10, 10), At(10.1, 10), At(10.2, 10)}),
                   Selected<LineRec>({At(10.3, 10), At(20.3, 10)}),  // comes right behind a deleted one
                   Selected<LineRec>({At(5, 5)}), Selected<LineRec>({At(30.3, 10), At(40.3, 10)})};
  project.Polys = {Selected<PolyRec>({At(10, 10), At(10.1, 10), At(30, 30), At(60, 10)}),
                   Selected<PolyRec>({At(10, 10), At(30, 30), At(10.1, 10)}),
                   Selected<PolyRec>({At(10, 10), At(10.1, 10), At(30, 30)})};
  const SnapResult result = SnapSelectedToLod21(project);
  EXPECT_EQ(result.Verified, 3 + 2 + 1 + 2 + 4 + 3 + 3);
  EXPECT_EQ(result.Eliminated, 3 + 0 + 0 + 0 + 1 + 3 + 3);
  ASSERT_EQ(project.Lines.size(), 2u);
  ExpectAt(project.Lines[0].Points[0], 10, 10);
  ExpectAt(project.Lines[1].Points[0], 30, 10);
  ASSERT_EQ(project.Polys.size(), 1u);
  EXPECT_EQ(project.Polys[0].Points.size(), 3u);
}

}  // namespace
}  // namespace landsmith
