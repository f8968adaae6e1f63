// Area fills by mouse. The tool zooms to 8, where an Area is 85.3 by 64 pixels, and the canvas's middle is a
// corner of a Cell: Cell 384, 256 lies south-east of it.
#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class FillModeTest : public testing::Test, public EditorRig {
protected:
  FillModeTest() { editor.ChooseMode(ModeId::Fill); }
  const RecordList<FillRec>& Fills() const { return session.project.Fills; }
  /// Columns from the canvas's middle to the east.
  std::vector<int> Columns() const {
    std::vector<int> columns;
    for (const FillRec& fill : Fills())
      columns.push_back((fill.CellX - 384) * 32 + fill.Col);
    return columns;
  }
  using Boxes = std::vector<RecordingSurface::Call>;
  Boxes TopBoxes() const { return canvas.top.Of(RecordingSurface::Call::Kind::Box); }
};

TEST_F(FillModeTest, AClickFillsTheBlockAndALargerOneTakesInTheSmall) {
  session.settings.PolyLandColor = 7;
  session.tool.CurrentFillType = FillType::Land;
  session.tool.CurrentFillHeight = 30;
  Click({10, 70});
  ASSERT_EQ(Fills().size(), 1U);
  EXPECT_EQ(Fills()[0].Size, 1);
  EXPECT_EQ(Fills()[0].CellX, 384);
  EXPECT_EQ(Fills()[0].CellY, 256);
  EXPECT_EQ(Fills()[0].Col, 0);
  EXPECT_EQ(Fills()[0].Row, 1);
  EXPECT_EQ(Fills()[0].Type, 1);
  EXPECT_EQ(Fills()[0].Height, 0) << "land has none";
  const Boxes shown = canvas.base.Of(RecordingSurface::Call::Kind::Box);
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].box, (PixelBox{400, 364, 485, 428}));
  EXPECT_EQ(shown[0].brush, 7);

  session.tool.CurrentFillType = FillType::Flatten;
  Click({100, 10});
  EXPECT_EQ(Fills()[1].Height, 30);
  editor.SelectKind(LayerKind::Fills, true);
  EXPECT_EQ(Selected(), 2);
  editor.SetGrid(11);
  EXPECT_EQ(host.cursor, CursorShape::Fill4);
  EXPECT_EQ(host.modeForms.back(), ModeId::Fill) << "the palette tells the new size";
  Click({300, 200});
  ASSERT_EQ(Fills().size(), 1U);
  EXPECT_EQ(Fills()[0].Size, 4);
  EXPECT_EQ(Selected(), 0) << "of what is gone nothing is selected";
  EXPECT_EQ(session.undo.UndoCount(), 3U);
  editor.Undo();
  EXPECT_EQ(Fills().size(), 2U);
  editor.Redo();
  editor.SetGrid(13);
  Click({10, 10});
  EXPECT_EQ(Fills().size(), 2U) << "a small one stays beside the large one below";
  Click({10, 10});
  EXPECT_EQ(session.undo.UndoCount(), 4U) << "the same once more is no change";
}

TEST_F(FillModeTest, AStrokeFillsItsWholeWayAsOneChange) {
  host.hasTimers = true;
  Press({10, 10}).MoveTo({90, 10}).Release();
  EXPECT_EQ(Columns(), (std::vector<int>{0})) << "a trembling click";
  Press({10, 10}).MoveTo({-20, 10});
  editor.TimerTick(TimerId::DragSettle);
  MoveTo({-100, 20});
  editor.SetGrid(11);
  MoveTo({-350, 30});
  EXPECT_EQ(TopBoxes().size(), 5U) << "seen at once";
  EXPECT_EQ(Columns(), (std::vector<int>{0, -1, -2, -3, -4, -5}))
      << "one size to the end, over a Cell's border";
  editor.Undo();
  EXPECT_EQ(Fills().size(), 6U) << "not while the button is held";
  Press({0, 0}, MouseButton::Right);
  EXPECT_TRUE(host.menus.empty()) << "the right button ended the stroke and did no more";
  MoveTo({-350, 200});
  EXPECT_EQ(Fills().size(), 6U);
  EXPECT_EQ(session.undo.UndoCount(), 2U);
  editor.Undo();
  EXPECT_EQ(Columns(), (std::vector<int>{0}));
}

TEST_F(FillModeTest, NothingIsFilledOutsideTheWorld) {
  editor.GoTo({0, 180});
  Press({10, 10});
  EXPECT_FALSE(editor.GestureAlive());
  Press({-10, 10}).MoveTo({10, 10}).Release();
  ASSERT_EQ(Fills().size(), 1U);
  EXPECT_EQ(Fills()[0].CellX, 767);
}

TEST_F(FillModeTest, AFrameShowsTheBlockUnderTheMouse) {
  MoveTo({-10, 10});
  ASSERT_EQ(TopBoxes().size(), 2U) << "white and black";
  EXPECT_EQ(TopBoxes()[1].box, (PixelBox{315, 300, 400, 364}));
  EXPECT_EQ(TopBoxes()[1].brushStyle, BrushStyle::None);
  const int presented = canvas.presented;
  MoveTo({-70, 50});
  EXPECT_EQ(canvas.presented, presented) << "the same block";
  editor.SetGrid(12);
  EXPECT_EQ(TopBoxes()[1].box, (PixelBox{229, 300, 400, 428}));
  editor.PointerLeft();
  EXPECT_TRUE(TopBoxes().empty());
}

TEST_F(FillModeTest, TheMenuOfAFillLeadsToItsProperties) {
  Click({10, 10});
  Click({100, 10});
  Click({100, 10}, MouseButton::Right);
  ASSERT_EQ(host.menus.size(), 1U);
  EXPECT_EQ(host.menus[0].Title, "AREA FILL # 2");
  editor.ShowTargetProperties(host.menus[0]);
  EXPECT_EQ(host.fillForms, (std::vector<std::size_t>{1}));
  EXPECT_EQ(Fills().size(), 2U);
}

}  // namespace
}  // namespace landsmith::test
