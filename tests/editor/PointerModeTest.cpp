#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class PointerModeTest : public testing::Test, public EditorRig {
protected:
  PointerModeTest() {
    AddLine({{-100, 0}, {0, 0}, {100, 0}});
    AddLine({{-100, 60}, {100, 60}});
    editor.Canvas().DisplayAll();
  }
};

TEST_F(PointerModeTest, ADragMovesTheSelectionAndOnlyItsLayersAreOnTheOverlay) {
  Press({50, 0});
  EXPECT_TRUE(session.view.Pending(LayerKind::Lines));
  EXPECT_FALSE(session.view.Pending(LayerKind::Fills));
  EXPECT_EQ(host.cursor, CursorShape::Move);
  MoveTo({60, -20}).Release();
  EXPECT_FLOAT_EQ(Place(0, 0).x, -90);
  EXPECT_FLOAT_EQ(Place(0, 0).y, -20);
  EXPECT_FLOAT_EQ(Place(1, 0).x, -100);
  EXPECT_TRUE(session.project.Dirty);
}

TEST_F(PointerModeTest, AClickThatHasNotSettledMovesNothing) {
  host.hasTimers = true;
  Press({50, 0}).MoveTo({53, 2}).Release();
  EXPECT_FLOAT_EQ(Place(0, 0).x, -100);
  EXPECT_FALSE(session.project.Dirty);
  Press({50, 0});
  EXPECT_EQ(host.running.at(TimerId::DragSettle), 30);
  MoveTo({53, 2});
  editor.TimerTick(TimerId::DragSettle);
  const int before = canvas.presented;
  MoveTo({60, 0}).MoveTo({70, 0}).MoveTo({80, 0});
  EXPECT_EQ(canvas.presented, before) << "moves are put together";
  editor.TimerTick(TimerId::DragRedraw);
  EXPECT_EQ(canvas.presented, before + 1);
  EXPECT_FLOAT_EQ(Place(0, 0).x, -70);
  Release();
  EXPECT_TRUE(host.running.empty());
}

TEST_F(PointerModeTest, ARubberBoxTakesWhatLiesWhollyInside) {
  Press({-150, -30}).MoveTo({150, 59});
  const auto boxes = canvas.top.Of(RecordingSurface::Call::Kind::Box);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].box, (PixelBox{250, 270, 551, 360}));
  EXPECT_EQ(boxes[0].penStyle, PenStyle::Dot);
  Release();
  EXPECT_TRUE(Lines()[0].Selected);
  EXPECT_FALSE(Lines()[1].Selected);
  EXPECT_TRUE(canvas.top.Of(RecordingSurface::Call::Kind::Box).empty());
}

TEST_F(PointerModeTest, DeletingAsksOnceAndCountsItems) {
  Click({0, 0});
  shift = true;
  Click({50, 60});
  shift = false;
  Key(46);
  EXPECT_EQ(dialogs.questions, std::vector<std::string>{"Delete 2 item(s) ?"});
  EXPECT_EQ(Lines().size(), 2U) << "No is the default";
  dialogs.answers = {true};
  Key(46);
  ASSERT_EQ(Lines().size(), 1U);
  EXPECT_EQ(Lines()[0].Points.size(), 2U);
  EXPECT_EQ(Selected(), 0);
  Click({50, 0});
  session.settings.AskDelete = false;
  Key(46);
  EXPECT_TRUE(Lines().empty());
  EXPECT_EQ(dialogs.questions.size(), 2U);
}

TEST_F(PointerModeTest, WheelStepsNeedAWholeNotchAndNoKey) {
  const auto wheel = [&](int delta) { editor.Wheel(delta, Pointer({100, 0}, MouseButton::None)); };
  wheel(120);
  EXPECT_EQ(session.view.Zoom, 2);
  wheel(-30);
  wheel(-60);
  EXPECT_EQ(session.view.Zoom, 2);
  wheel(-30);
  EXPECT_EQ(session.view.Zoom, 1);
  shift = true;
  wheel(120);
  EXPECT_EQ(session.view.Zoom, 1);
  shift = false;
  session.settings.ZoomAtCursor = true;
  const LatLon under = ToLatLon(session.view, {100, 0});
  wheel(240);
  EXPECT_EQ(session.view.Zoom, 2);
  EXPECT_NEAR(ToLatLon(session.view, {100, 0}).lon, under.lon, 1e-12);
}

TEST_F(PointerModeTest, HidingAKindClearsItsSelection) {
  editor.SelectAll();
  EXPECT_EQ(Selected(), 2);
  editor.ToggleShown(LayerKind::Lines);
  EXPECT_EQ(Selected(), 0);
  Click({50, 0});
  EXPECT_EQ(Selected(), 0) << "what is hidden is not hit";
  editor.ToggleShown(LayerKind::Lines);
  EXPECT_TRUE(session.view.Shows(LayerKind::Lines));
}

TEST_F(PointerModeTest, SelectAllNeverTakesMapsAndToggles) {
  session.project.Maps.emplace_back();
  session.project.Fills = {FillRec{}, FillRec{}};
  session.project.Lands.Set(5, 6, 3);
  editor.SelectAll();
  EXPECT_FALSE(session.project.Maps[0].Selected);
  EXPECT_EQ(session.project.Lands.At(5, 6), 131);
  EXPECT_EQ(Selected(), 5);
  editor.SelectAll();
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(session.project.Lands.At(5, 6), 3);
}

}  // namespace
}  // namespace landsmith::test
