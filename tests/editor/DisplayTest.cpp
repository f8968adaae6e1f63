#include "EditorRig.h"
#include "core/Color.h"

#include <gtest/gtest.h>

#include <cmath>

namespace landsmith::test {
namespace {

using Kind = RecordingSurface::Call::Kind;

class DisplayTest : public testing::Test, public EditorRig {
protected:
  std::size_t BaseLines() const { return canvas.base.Of(Kind::Polygon).size(); }
  std::size_t OverlayLines() const { return canvas.overlay.Of(Kind::Polygon).size(); }
};

// The four cases: in its own mode the kind under edit lives on the overlay, unless all is asked for by 0.
TEST_F(DisplayTest, LinesUnderEditLiveOnTheOverlay) {
  AddLine({{-100, 0}, {100, 0}});
  struct Row {
    ModeId mode;
    int mask;
    std::size_t base, overlay;
    bool pending;
  };
  for (const Row& row : {Row{ModeId::Pointer, 1023, 1, 0, false}, Row{ModeId::Pointer, 867, 0, 0, true},
                         Row{ModeId::Line, 1023, 0, 1, true}, Row{ModeId::Line, 867, 0, 1, true},
                         Row{ModeId::Line, 0, 1, 0, false}}) {
    session.tool.Mode = row.mode;
    editor.Canvas().RebuildDisplay(row.mask);
    EXPECT_EQ(BaseLines(), row.base) << row.mask;
    EXPECT_EQ(OverlayLines(), row.overlay) << row.mask;
    EXPECT_EQ(session.view.Pending(LayerKind::Lines), row.pending) << row.mask;
    EXPECT_FALSE(session.view.BusyPainting);
  }
}

TEST_F(DisplayTest, ARepaintWithinARepaintDoesNothing) {
  const int before = canvas.presented;
  session.view.BusyPainting = true;
  editor.Canvas().DisplayAll();
  editor.Canvas().RedrawOverlay();
  EXPECT_EQ(canvas.presented, before);
}

TEST_F(DisplayTest, AWideSegmentIsAQuadAndItsJointIsFilledFromTheThirdVertexOn) {
  AddLine({{-100, 0}, {0, 0}, {0, 100}});
  const float metres = static_cast<float>(8 / session.view.Scale.PixelsPerMeter);
  for (LinePoint& point : session.project.Lines.Edit(0).Points)
    point.Wid = metres;
  session.project.Lines.Edit(0).Color = 77;
  editor.Canvas().DisplayAll();
  const auto quads = canvas.base.Of(Kind::Polygon);
  ASSERT_EQ(quads.size(), 3U);
  EXPECT_EQ(quads[0].points, (std::vector<PixelPoint>{{300, 304}, {300, 296}, {400, 296}, {400, 304}}));
  EXPECT_EQ(quads[1].points, (std::vector<PixelPoint>{{396, 300}, {404, 300}, {400, 296}, {400, 304}}));
  EXPECT_EQ(quads[2].points, (std::vector<PixelPoint>{{396, 300}, {404, 300}, {404, 400}, {396, 400}}));
  EXPECT_EQ(quads[0].pen, 77);
  EXPECT_EQ(quads[0].brush, 77);
  EXPECT_EQ(session.view.LinesDrawn, std::vector<std::uint8_t>{1});
}

TEST_F(DisplayTest, AGapInVisibilityLeavesTheJointOut) {
  AddLine({{0, 0}, {500, 0}, {500, 900}, {0, 900}, {0, 250}});
  const float metres = static_cast<float>(8 / session.view.Scale.PixelsPerMeter);
  for (LinePoint& point : session.project.Lines.Edit(0).Points)
    point.Wid = metres;
  editor.Canvas().DisplayAll();
  EXPECT_EQ(BaseLines(), 2U) << "first and last segment, nothing between";
}

TEST_F(DisplayTest, MarksShowSelectionAndDirection) {
  AddLine({{-100, 0}, {0, 0}, {100, 0}});
  session.project.Lines.Edit(0).Points[1].Selected = true;
  session.tool.Selected.Add();
  editor.Canvas().DisplayAll();
  const auto marks = canvas.base.Of(Kind::Box);
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_EQ(marks[0].box, (PixelBox{298, 298, 303, 303}));
  EXPECT_EQ(marks[0].pen, session.settings.PtColorUns);
  EXPECT_EQ(marks[1].pen, session.settings.PtColorSel);
  EXPECT_EQ(marks[2].box, (PixelBox{497, 297, 504, 304}));
  EXPECT_EQ(marks[2].brushStyle, BrushStyle::None);
  editor.ChooseMode(ModeId::Line);
  EXPECT_EQ(canvas.overlay.Of(Kind::Box).size(), 3U) << "while drawing, all vertices show";
}

TEST_F(DisplayTest, AMillionPointsWithinOnePixelStillPaintSomething) {
  LineRec line = Figure<LineRec>({{0, 0}});
  line.Points.resize(1000, line.Points[0]);
  session.project.Lines.push_back(line);
  editor.Canvas().DisplayAll();
  EXPECT_GE(canvas.base.calls.size(), 1U);
  EXPECT_LT(canvas.base.calls.size(), 10U);
}

TEST_F(DisplayTest, AtTheHighestZoomFarEndsDoNotOverflow) {
  AddLine({{-30000, 0}, {30000, 0}});
  PolyRec& poly = session.project.Polys.emplace_back();
  poly.Points = {{-170, -80, 0, false}, {170, -80, 0, false}, {0, 85, 0, false}};
  SetPathBounds(poly);
  session.view.Zoom = 65536;
  editor.Resize(800, 600);
  const auto shapes = canvas.base.Of(Kind::Polygon);
  ASSERT_EQ(shapes.size(), 2U);
  for (const auto& shape : shapes) {
    for (const PixelPoint& at : shape.points)
      EXPECT_LE(std::max(std::abs(at.x), std::abs(at.y)), 30000);
  }
  EXPECT_GE(shapes[0].points.size(), 4U) << "the polygon covers the view";
}

TEST_F(DisplayTest, HiddenStretchesOfARingFallAway) {
  PolyRec poly;
  for (const PixelOffset at : {PixelOffset{0, 0}, PixelOffset{900, 10}, PixelOffset{950, 500},
                               PixelOffset{900, -20}, PixelOffset{1000, 700}, PixelOffset{0, 200}}) {
    const LatLon place = At(at.x, at.y);
    poly.Points.push_back({place.lon, place.lat, 0, false});
  }
  SetPathBounds(poly);
  session.project.Polys.push_back(poly);
  editor.Canvas().DisplayAll();
  const auto shapes = canvas.base.Of(Kind::Polygon);
  ASSERT_EQ(shapes.size(), 1U);
  EXPECT_EQ(shapes[0].points, (std::vector<PixelPoint>{{400, 300}, {1300, 310}, {1400, 1000}, {400, 500}}));
}

TEST_F(DisplayTest, ClassCellsHaveBandsOfZoomAndTheTablesColor) {
  session.view.Classes = ClassWindowOf(0, 0);
  const double column = std::floor((0.001 - session.view.Classes.LandWest) / AreaWidth);
  const double row = std::floor((session.view.Classes.LandNorth - 0.001) / AreaHeight);
  session.project.Lands.Set(static_cast<int>(column), static_cast<int>(row), 3);
  session.project.NoOfLands = 1;
  session.lands.Items[3].R = 10;
  session.lands.Items[3].G = 20;
  session.lands.Items[3].Texture = "004B2SU1.BMP";
  struct Row {
    double zoom;
    std::size_t boxes, pictures;
  };
  for (const Row& zoom : {Row{0.0625, 0, 0}, Row{1, 1, 0}, Row{5, 1, 0}, Row{8, 0, 1}}) {
    session.view.Zoom = zoom.zoom;
    editor.Resize(800, 600);
    EXPECT_EQ(canvas.base.Of(Kind::Box).size(), zoom.boxes) << zoom.zoom;
    EXPECT_EQ(canvas.base.Of(Kind::Image).size(), zoom.pictures) << zoom.zoom;
    if (zoom.boxes == 1) {
      EXPECT_EQ(canvas.base.Of(Kind::Box)[0].brush, Rgb(10, 20, 0));
    }
  }
}

// At zoom 1 an Area is 8 pixels high; level 15 has a quarter of that and is left out.
TEST_F(DisplayTest, GridLevelsTooFineToSeeAreLeftOut) {
  const auto strokes = [&](int lod) {
    editor.SetGrid(lod);
    return canvas.base.Of(Kind::Polyline);
  };
  EXPECT_TRUE(strokes(0).empty());
  const auto coarse = strokes(8);
  ASSERT_FALSE(coarse.empty());
  const auto fine = strokes(15);
  // Levels 13 (8 pixels high, 10.7 wide) and 8 remain: 600 / 8 rows and 800 / 10.67 columns.
  EXPECT_EQ(fine.size(), coarse.size() - 2 + 75 + 75);
  for (const auto& stroke : fine)
    EXPECT_EQ(stroke.penStyle, PenStyle::Solid);
}

}  // namespace
}  // namespace landsmith::test
