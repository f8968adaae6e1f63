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

TEST(ViewState, AnAreaIsEightPixelsHighAtZoomOne) {
  const ViewState view = View(1, {0, 0});
  EXPECT_NEAR(view.LatTop - view.LatBottom, 600 / 8.0 * 0.010986328125, 1e-12);
  EXPECT_NEAR(ToCanvas(view, 0, 0.010986328125).y, 292, 1e-9);
  EXPECT_NEAR(ToCanvas(view, 0, 0).x, 400, 1e-9);
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

struct CrossRow {
  const char* name;
  PixelOffset from, to;  // from the centre of 800 by 600
  bool crosses;
};
class Crossing : public testing::TestWithParam<CrossRow> {};
TEST_P(Crossing, IsFoundWithoutAnEndInView) {
  const ViewState view = View(1, {0, 0});
  const LatLon a = ToLatLon(view, GetParam().from), b = ToLatLon(view, GetParam().to);
  EXPECT_EQ(SegmentCrossesView(view, a.lon, a.lat, b.lon, b.lat), GetParam().crosses);
}
INSTANTIATE_TEST_SUITE_P(Rows, Crossing,
                         testing::Values(CrossRow{"across", {-500, 0}, {500, 10}, true},
                                         CrossRow{"down", {0, -400}, {10, 400}, true},
                                         CrossRow{"past_the_corner", {-500, -200}, {-300, -500}, false},
                                         CrossRow{"through_the_corner", {-500, -150}, {-150, -500}, true},
                                         CrossRow{"beyond_one_side", {-500, -900}, {-450, 900}, false},
                                         CrossRow{"no_length_outside", {500, 0}, {500, 0}, false}),
                         [](const auto& row) { return row.param.name; });

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
