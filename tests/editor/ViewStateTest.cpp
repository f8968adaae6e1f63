#include "core/Numbers.h"
#include "editor/ViewState.h"

#include <gtest/gtest.h>

#include <cmath>

namespace landsmith {
namespace {

ViewState View(double zoom, LatLon center) {
  ViewState view;
  view.Zoom = zoom;
  view.LatDispCenter = center.lat;
  view.LonDispCenter = center.lon;
  view.ScaleWidth = 800;
  view.ScaleHeight = 600;
  UpdateScale(view);
  SetDisplayExtent(view);
  return view;
}

TEST(ViewState, PanStopsAtEightyDegreesAndOnlyThereTakesItsCosine) {
  ViewState view = View(1, {79.9, 8});
  const double before = view.Scale.PixelsPerDegLon;
  PanDisplay(view, 0, -10);
  EXPECT_DOUBLE_EQ(view.Scale.PixelsPerDegLon, before);
  PanDisplay(view, 0, -1000);
  EXPECT_EQ(view.LatDispCenter, 80);
  EXPECT_NEAR(view.Scale.PixelsPerDegLon, view.Scale.PixelsPerDegLat * std::cos(80 * Pi / 180), 1e-9);
  PanDisplay(view, 0, 1e7);
  EXPECT_EQ(view.LatDispCenter, -80);
}

TEST(ViewState, ZoomStepsEndAtTheirLimits) {
  ViewState view = View(65536, {0, 0});
  EXPECT_FALSE(StepZoom(view, ZoomStep::In));
  EXPECT_EQ(view.Zoom, 65536);
  view = View(0.0625, {0, 0});
  EXPECT_TRUE(StepZoom(view, ZoomStep::Out));
  EXPECT_EQ(view.Zoom, 0.03125);
  EXPECT_FALSE(StepZoom(view, ZoomStep::Out));
  EXPECT_EQ(view.Zoom, 0.03125);
}

TEST(ViewState, ASegmentCrossesTheViewWithoutAnEndInIt) {
  const struct {
    const char* name;
    PixelOffset from, to;  // from the centre of 800 by 600
    bool crosses;
  } rows[] = {{"across", {-500, 0}, {500, 10}, true},
              {"down", {0, -400}, {10, 400}, true},
              {"past the corner", {-500, -200}, {-300, -500}, false},
              {"through the corner", {-500, -150}, {-150, -500}, true},
              {"beyond one side", {-500, -900}, {-450, 900}, false},
              {"no length outside", {500, 0}, {500, 0}, false}};
  const ViewState view = View(1, {0, 0});
  for (const auto& row : rows) {
    const LatLon a = ToLatLon(view, row.from), b = ToLatLon(view, row.to);
    EXPECT_EQ(SegmentCrossesView(view, a.lon, a.lat, b.lon, b.lat), row.crosses) << row.name;
  }
}

// w = 800 / 2.2, lower = (300 - 20) / 1.2, upper = (30 - 300) / 1.2
TEST(ViewState, CenterBoxLeavesRoomForTheBars) {
  const ViewState view = View(1, {0, 0});
  const auto outside = [&](float x, float y) { return IsOutsideCenterBox(view, {x, y}, 30, 20); };
  EXPECT_FALSE(outside(363, 0));
  EXPECT_TRUE(outside(364, 0));
  EXPECT_TRUE(outside(-364, 0));
  EXPECT_FALSE(outside(0, 233));
  EXPECT_TRUE(outside(0, 234));
  EXPECT_FALSE(outside(0, -224));
  EXPECT_TRUE(outside(0, -225));
}

TEST(ViewState, BrushSizeFollowsTheGridLevel) {
  const std::pair<int, int> rows[] = {{0, 1},  {5, 32}, {8, 32}, {9, 16}, {10, 8},
                                      {11, 4}, {12, 2}, {13, 1}, {19, 1}};
  for (const auto& [lod, size] : rows)
    EXPECT_EQ(FillSizeOfGrid(lod), size) << lod;
}

}  // namespace
}  // namespace landsmith
