#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class LineModeTest : public testing::Test, public EditorRig {
protected:
  LineModeTest() { editor.ChooseMode(ModeId::Line); }
};

TEST_F(LineModeTest, OneClickMakesNoLine) {
  Click({-100, 0}).Key(27);
  EXPECT_TRUE(Lines().empty());
  EXPECT_FALSE(session.project.Dirty);
  Click({0, 0}).Click({50, 0});
  EXPECT_EQ(Place(0, 0).x, 0) << "the pending point of before is forgotten";
}

TEST_F(LineModeTest, TheRubberSegmentFollowsTheMouseWhileDrawing) {
  Click({-100, 0}).MoveTo({60, 20});
  const auto strokes = canvas.top.Of(RecordingSurface::Call::Kind::Polyline);
  ASSERT_EQ(strokes.size(), 1U);
  EXPECT_EQ(strokes[0].points, (std::vector<PixelPoint>{{300, 300}, {460, 320}}));
  Key(27);
  MoveTo({80, 20});
  EXPECT_TRUE(canvas.top.Of(RecordingSurface::Call::Kind::Polyline).empty());
}

TEST_F(LineModeTest, ADraggedVertexMovesAloneAndADraggedLineAsAWhole) {
  AddLine({{-100, 0}, {0, 0}, {100, 0}});
  editor.Canvas().DisplayAll();
  Press({0, 0}).MoveTo({10, 5}).MoveTo({20, 30}).Release();
  EXPECT_FLOAT_EQ(Place(0, 1).x, 20);
  EXPECT_FLOAT_EQ(Place(0, 1).y, 30);
  EXPECT_FLOAT_EQ(Place(0, 0).x, -100);
  EXPECT_DOUBLE_EQ(Lines()[0].Box.SLat, Lines()[0].Points[1].Lat) << "the box follows";
  Press({-40, 15}).MoveTo({-40, 25}).Release();
  EXPECT_TRUE(Lines()[0].Selected);
  EXPECT_FLOAT_EQ(Place(0, 0).y, 10);
  EXPECT_FLOAT_EQ(Place(0, 2).y, 10);
  EXPECT_EQ(Selected(), 1);
}

TEST_F(LineModeTest, ShiftAddsLinesAndBeginsNone) {
  AddLine({{-100, 0}, {100, 0}});
  AddLine({{-100, 50}, {100, 50}});
  Click({0, 0});
  shift = true;
  Click({0, 50});
  EXPECT_EQ(Selected(), 2);
  Click({0, 200});
  EXPECT_EQ(Lines().size(), 2U);
  EXPECT_FALSE(session.project.Dirty) << "selecting is no edit";
}

TEST_F(LineModeTest, ADragWithShiftNearTheEdgeDoesNotJump) {
  AddLine({{300, 0}, {399, 0}});
  shift = true;
  Press({380, 0});
  ASSERT_TRUE(editor.GestureAlive());
  MoveTo({382, 0}).Release();
  EXPECT_NEAR(Lines()[0].Points[0].Lon, At(302, 0).lon, 1e-9);
}

TEST_F(LineModeTest, KeysEditTheVertexUnderTheClick) {
  struct Row {
    const char* name;
    int key;
    std::size_t points;  ///< of the line pressed on
    std::size_t lines;
    float width;  ///< of its third vertex
  };
  for (const Row& row : {Row{"D deletes", 68, 4, 1, 10}, Row{"B cuts", 66, 3, 2, 10},
                         Row{"minus narrows", 109, 5, 1, 10 / 1.5F}, Row{"plus widens", 107, 5, 1, 15}}) {
    SCOPED_TRACE(row.name);
    session.project.Lines.clear();
    session.project.Dirty = false;
    session.tool.Selected = {};
    AddLine({{-200, 0}, {-100, 0}, {0, 0}, {100, 0}, {200, 0}});
    editor.ChooseMode(ModeId::Line);
    Key(row.key).Click({0, 0});
    ASSERT_EQ(Lines().size(), row.lines);
    ASSERT_EQ(Lines()[0].Points.size(), row.points);
    EXPECT_FLOAT_EQ(Lines()[0].Points[2].Wid, row.width);
    EXPECT_FALSE(editor.GestureAlive());
    EXPECT_TRUE(session.project.Dirty);
    editor.KeyUp({row.key, false, false, false});
    Click({-200, 0});
    EXPECT_EQ(Lines()[0].Points.size(), row.points) << "the key counts while held alone";
  }
}

TEST_F(LineModeTest, InsertingTakesTheSegmentUnderTheClick) {
  AddLine({{-200, 0}, {0, 0}, {200, 0}});
  Key('I').Click({100, 2});
  ASSERT_EQ(Lines()[0].Points.size(), 4U);
  EXPECT_FLOAT_EQ(Place(0, 2).x, 100);
  EXPECT_TRUE(Lines()[0].Points[2].Selected);
  editor.KeyUp({'I', false, false, false});
  editor.KeyUp({45, false, false, false});  // Ins counts from its release
  Click({-100, 1});
  EXPECT_EQ(Lines()[0].Points.size(), 5U);
  Click({0, 150});
  EXPECT_EQ(Lines().size(), 1U) << "a miss begins no line";
  Key(16).Click({0, 150}).Click({0, 180});
  EXPECT_EQ(Lines().size(), 2U) << "any key ends it";
}

TEST_F(LineModeTest, AClickNearTheEdgeBecomesTheCentreFirst) {
  const LatLon place = At(380, 0);
  Click({380, 0});
  EXPECT_NEAR(session.view.LonDispCenter, place.lon, 1e-12);
  Click({50, 0});
  ASSERT_EQ(Lines().size(), 1U);
  EXPECT_NEAR(Lines()[0].Points[0].Lon, place.lon, 1e-12);
}

TEST_F(LineModeTest, AFinishedLineJoinsItsNeighbourWithABeep) {
  session.settings.AutoLineJoin = 1;
  AddLine({{0, 0}, {100, 0}});
  Click({-150, 100}).Click({-50, 50}).Click({100, 30}).Click({0, 0}, MouseButton::Right);
  EXPECT_EQ(Lines().size(), 2U) << "ends apart";
  Click({-150, -100}).Click({-60, -50}).Click({1, 10});
  editor.Press(Pointer({0, 0}, MouseButton::Right));
  EXPECT_EQ(dialogs.beeps, 0) << "10 pixels are too far";
  Click({-200, -10}).Click({-90, -10}).Click({-7, -1}).Click({-1, -1}).Click({0, 0}, MouseButton::Right);
  EXPECT_EQ(dialogs.beeps, 1);
  EXPECT_EQ(Lines().size(), 3U);
}

TEST_F(LineModeTest, InterruptionsLeaveNothingHalfMade) {
  Click({-100, 0}).Click({0, 0});
  session.project.Lines.clear();  // as a command does
  MoveTo({50, 50}).Click({60, 60}).Click({90, 90});
  EXPECT_EQ(Lines().size(), 1U) << "what is left of the figure begins a new one";
  editor.ChooseMode(ModeId::Pointer);
  MoveTo({10, 10}).Click({150, 150});
  EXPECT_EQ(Lines()[0].Points.size(), 2U);
  editor.ChooseMode(ModeId::Line);
  Click({0, -100}).Click({50, -100});
  editor.ChooseMode(ModeId::Line);
  Click({100, -150});
  EXPECT_EQ(Lines().size(), 2U);
  EXPECT_EQ(Lines()[1].Points.size(), 2U) << "choosing the tool again ends the line";
}

TEST_F(LineModeTest, TwoSelectedLinesOpenTheirCommonForm) {
  AddLine({{-100, 0}, {100, 0}});
  AddLine({{-100, 50}, {100, 50}});
  Click({0, 0}).Click({0, 0}, MouseButton::Right);
  ASSERT_EQ(host.menus.size(), 1U);
  EXPECT_EQ(host.menus[0].Title, "LINE # 1");
  shift = true;
  Click({0, 50});
  shift = false;
  Click({0, 200}, MouseButton::Right);
  ASSERT_EQ(host.lineForms.size(), 1U);
  EXPECT_EQ(host.lineForms[0], std::nullopt);
}

TEST_F(LineModeTest, ADoubleClickIsTwoClicks) {
  Click({10, 20}).Click({10, 20});
  ASSERT_EQ(Lines().size(), 1U);
  ASSERT_EQ(Lines()[0].Points.size(), 2U);
  EXPECT_EQ(Lines()[0].Points[0], Lines()[0].Points[1]);
  EXPECT_EQ(canvas.overlay.Of(RecordingSurface::Call::Kind::Spans).size(), 1U) << "its one pixel shows";
}

TEST_F(LineModeTest, TheSpaceBarClicksAndDragsAsLongAsItIsHeld) {
  AddLine({{-100, 0}, {100, 0}});
  MoveTo({0, 0}).Key(' ');
  EXPECT_TRUE(editor.GestureAlive());
  MoveTo({0, 10}).Key(' ');  // held down, the key repeats
  MoveTo({0, 30});
  editor.KeyUp({' ', false, false, false});
  EXPECT_FALSE(editor.GestureAlive());
  MoveTo({0, 90});
  EXPECT_FLOAT_EQ(Place(0, 0).y, 30);
  editor.KeyUp({'R', false, false, false});
  MoveTo({0, 150}).Key(' ');
  MoveTo({50, 150}).Key(' ');
  EXPECT_EQ(Lines().size(), 2U) << "R waits for the mouse";
}

TEST_F(LineModeTest, CtrlDragsABoxAroundLines) {
  AddLine({{-100, 0}, {100, 0}});
  AddLine({{-100, 50}, {300, 50}});
  ctrl = true;
  Press({-120, -20}).MoveTo({150, 80}).Release();
  EXPECT_TRUE(Lines()[0].Selected);
  EXPECT_FALSE(Lines()[1].Selected) << "it reaches out of the box";
  Press({-120, 80}).MoveTo({150, 120}).Release();
  ctrl = false;
  EXPECT_EQ(Selected(), 0);
  EXPECT_TRUE(session.view.Pending(LayerKind::Lines)) << "what is drawn next must show";
}

}  // namespace
}  // namespace landsmith::test
