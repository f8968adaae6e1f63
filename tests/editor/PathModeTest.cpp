#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

constexpr int Escape = 27, Insert = 45;

template <class Path>
struct KindOf;
template <>
struct KindOf<LineRec> {
  static constexpr ModeId Mode = ModeId::Line, Other = ModeId::Poly;
  static constexpr auto List = &ProjectState::Lines;
  static constexpr std::size_t Least = 2;
};
template <>
struct KindOf<PolyRec> {
  static constexpr ModeId Mode = ModeId::Poly, Other = ModeId::Line;
  static constexpr auto List = &ProjectState::Polys;
  static constexpr std::size_t Least = 3;
};

/// Lines and polygons are drawn and edited alike.
template <class Path>
class PathModeTest : public testing::Test, public EditorRig {
protected:
  PathModeTest() { editor.ChooseMode(KindOf<Path>::Mode); }
  RecordList<Path>& Paths() { return session.project.*KindOf<Path>::List; }
  void Add(std::initializer_list<PixelOffset> points) { Paths().push_back(Figure<Path>(points)); }
  PixelOffset Place(std::size_t item, std::size_t point) {
    const auto& p = Paths()[item].Points.at(point);
    return PixelOf({p.Lat, p.Lon});
  }
};
using Kinds = testing::Types<LineRec, PolyRec>;
TYPED_TEST_SUITE(PathModeTest, Kinds);

TYPED_TEST(PathModeTest, AFigureIsUndoneInOneStepAndARedoBringsAllOfIt) {
  this->Click({-100, 0}).Click({0, 0}).Click({0, 90}).Click({-90, 90}).Click({0, 0}, MouseButton::Right);
  ASSERT_EQ(this->Paths().size(), 1U);
  const auto drawn = this->Paths()[0];
  EXPECT_EQ(drawn.Points.size(), 4U);
  EXPECT_DOUBLE_EQ(drawn.Box.SLat, drawn.Points[2].Lat);
  EXPECT_EQ(this->session.undo.UndoCount(), 1U);
  this->editor.Undo();
  EXPECT_TRUE(this->Paths().empty());
  this->editor.Redo();
  ASSERT_EQ(this->Paths().size(), 1U);
  EXPECT_EQ(this->Paths()[0], drawn);
}

TYPED_TEST(PathModeTest, AFigureWithTooFewVerticesLeavesNoTrace) {
  const std::vector<void (*)(EditorRig&)> endings{
      [](EditorRig& rig) { rig.Key(Escape); },
      [](EditorRig& rig) {
        rig.Click({0, 0}, MouseButton::Right);
      },
      [](EditorRig& rig) { rig.editor.ChooseMode(KindOf<TypeParam>::Mode); },
  };
  for (std::size_t i = 0; i < endings.size(); ++i) {
    for (std::size_t clicks = 1; clicks < KindOf<TypeParam>::Least; ++clicks) {
      SCOPED_TRACE(std::to_string(i) + ": " + std::to_string(clicks));
      this->Click({-100, 0});
      if (clicks > 1) this->Click({0, 0});
      endings[i](*this);
      EXPECT_TRUE(this->Paths().empty());
      EXPECT_FALSE(this->session.project.Dirty);
      EXPECT_FALSE(this->editor.CanUndo());
      EXPECT_TRUE(this->host.menus.empty()) << "the right button ends and opens nothing";
    }
  }
}

TYPED_TEST(PathModeTest, UndoWhileDrawingTakesTheFigureAndTheNextClickBeginsAnother) {
  this->Click({-100, 0}).Click({0, 0}).Click({0, 50});
  this->editor.Undo();
  EXPECT_TRUE(this->Paths().empty());
  this->editor.Redo();
  this->Click({-100, 100});
  this->editor.Undo();
  EXPECT_EQ(this->Paths().size(), 1U) << "a first click alone goes before what is finished";
  this->editor.Undo();
  EXPECT_TRUE(this->Paths().empty());
  this->MoveTo({30, 30}).Click({50, 0}).Click({90, 0}).Click({90, 50}).Key(Escape);
  ASSERT_EQ(this->Paths().size(), 1U);
  EXPECT_EQ(this->Paths()[0].Points.size(), 3U);
}

TYPED_TEST(PathModeTest, PanningAndLosingTheFocusLeaveTheFigureUnderWay) {
  this->Click({-100, -50});
  this->Press({0, 0}, MouseButton::Middle).MoveTo({30, 40}).Release();
  this->editor.FocusLost();
  this->Click({0, 0}).Click({0, 50}).Key(Escape);
  ASSERT_EQ(this->Paths().size(), 1U);
  EXPECT_EQ(this->Paths()[0].Points.size(), 3U);
  EXPECT_NEAR(this->Place(0, 0).x, -100, 1e-3) << "what is drawn stays where it is on the ground";
}

TYPED_TEST(PathModeTest, CommandsEndTheFigureBeforeTheyChangeTheProject) {
  this->Add({{-100, 100}, {0, 100}, {0, 150}});
  this->Click({-50, 100});
  this->editor.Copy();
  this->Click({-100, 0}).Click({0, 0}).Click({0, 50});
  this->editor.Paste();
  this->Click({100, 0});
  EXPECT_EQ(this->Paths().size(), 3U);
  EXPECT_EQ(this->Paths()[1].Points.size(), 3U);
}

TYPED_TEST(PathModeTest, AVertexMovesAloneAndAFigureAsAWholeEachInOneStepOfUndo) {
  this->Add({{-100, 0}, {0, 0}, {100, 0}, {100, 100}});
  this->editor.Canvas().DisplayAll();
  this->Press({0, 0}).MoveTo({10, -5}).MoveTo({20, -30}).Release();
  EXPECT_FLOAT_EQ(this->Place(0, 1).y, -30);
  EXPECT_FLOAT_EQ(this->Place(0, 0).x, -100);
  EXPECT_DOUBLE_EQ(this->Paths()[0].Box.NLat, this->Paths()[0].Points[1].Lat) << "the box follows";
  EXPECT_EQ(this->session.undo.UndoCount(), 1U);
  this->Press({100, 50}).MoveTo({100, 60}).MoveTo({110, 60}).Release();
  EXPECT_TRUE(this->Paths()[0].Selected);
  EXPECT_FLOAT_EQ(this->Place(0, 0).x, -90);
  EXPECT_FLOAT_EQ(this->Place(0, 2).y, 10);
  EXPECT_EQ(this->session.undo.UndoCount(), 2U);
  this->Click({110, 60});
  EXPECT_EQ(this->session.undo.UndoCount(), 2U) << "a click that moves nothing";
}

TYPED_TEST(PathModeTest, DDeletesVerticesUntilTheFigureGoes) {
  this->Add({{-100, 0}, {0, 0}, {100, 0}, {100, 100}});
  this->Key('D');
  this->Click({-100, 0});
  EXPECT_EQ(this->Paths()[0].Points.size(), 3U);
  EXPECT_FALSE(this->editor.GestureAlive());
  EXPECT_EQ(this->session.undo.UndoCount(), 1U);
  this->Click({0, 0});
  if (KindOf<TypeParam>::Least == 2) this->Click({100, 0});
  EXPECT_TRUE(this->Paths().empty());
  EXPECT_EQ(this->Selected(), 0);
}

TYPED_TEST(PathModeTest, IInsertsWhileHeldAndInsUntilTheNextKey) {
  this->Add({{-200, 0}, {0, 0}, {200, 0}, {200, 100}});
  this->Key('I').Click({100, 2});
  ASSERT_EQ(this->Paths()[0].Points.size(), 5U);
  EXPECT_FLOAT_EQ(this->Place(0, 2).x, 100);
  EXPECT_TRUE(this->Paths()[0].Points[2].Selected);
  EXPECT_EQ(this->session.undo.UndoCount(), 1U);
  this->KeyUp('I').Key(Insert).Click({-100, 1});
  EXPECT_EQ(this->Paths()[0].Points.size(), 5U) << "Ins works on its release";
  this->KeyUp(Insert);
  this->editor.FocusLost();  // a menu has been opened
  this->Click({-100, 1}).Click({0, 150});
  EXPECT_EQ(this->Paths()[0].Points.size(), 6U);
  EXPECT_EQ(this->Paths().size(), 1U) << "a miss begins no figure";
  this->Click({0, 150}, MouseButton::Right);
  EXPECT_FALSE(this->session.tool.InsertPoints) << "a right click ends it";
  this->KeyUp(Insert).Key(16).Click({0, 150}).Click({0, 180}).Click({50, 180});
  EXPECT_EQ(this->Paths().size(), 2U) << "any key ends it";
}

TYPED_TEST(PathModeTest, ShiftAddsFiguresAndBeginsNone) {
  this->Add({{-100, 0}, {100, 0}, {100, -20}});
  this->Add({{-100, 50}, {100, 50}, {100, 70}});
  this->Click({0, 0});
  this->shift = true;
  this->Click({0, 50});
  EXPECT_EQ(this->Selected(), 2);
  this->Press({0, 200}).MoveTo({10, 200}).Release();
  EXPECT_EQ(this->Paths().size(), 2U);
  EXPECT_FLOAT_EQ(this->Place(0, 0).x, -90) << "what is selected is dragged from anywhere";
  this->shift = false;
  this->Click({0, 250}, MouseButton::Right);
  EXPECT_TRUE(this->host.menus.empty()) << "several have a form of their own";
  EXPECT_EQ(this->host.lineForms.size() + this->host.polyForms.size(), 1U);
  const auto& forms = KindOf<TypeParam>::Mode == ModeId::Line ? this->host.lineForms : this->host.polyForms;
  ASSERT_EQ(forms.size(), 1U);
  EXPECT_EQ(forms[0], std::nullopt);
}

class LineModeTest : public PathModeTest<LineRec> {};

TEST_F(LineModeTest, TheRubberSegmentFollowsTheMouseWhileDrawing) {
  Click({-100, 0}).MoveTo({60, 20});
  const auto strokes = canvas.top.Of(RecordingSurface::Call::Kind::Polyline);
  ASSERT_EQ(strokes.size(), 1U);
  EXPECT_EQ(strokes[0].points, (std::vector<PixelPoint>{{300, 300}, {460, 320}}));
  EXPECT_EQ(host.hint, "Click: next point. Right click: give up the line");
  Key(Escape).MoveTo({80, 20});
  EXPECT_TRUE(canvas.top.Of(RecordingSurface::Call::Kind::Polyline).empty());
  EXPECT_EQ(host.hint, "Click: start a line. Right click: menu. Ctrl+drag: select");
}

TEST_F(LineModeTest, AClickNearTheEdgeBecomesTheCentreFirst) {
  const LatLon place = At(380, 0);
  const int presented = canvas.presented;
  Click({380, 0});
  EXPECT_EQ(canvas.presented, presented + 1) << "painted once";
  EXPECT_NEAR(session.view.LonDispCenter, place.lon, 1e-12);
  Click({50, 0});
  ASSERT_EQ(Lines().size(), 1U);
  EXPECT_NEAR(Lines()[0].Points[0].Lon, place.lon, 1e-12);
  AddLine({{680, 50}, {770, 50}});
  Key(Escape).Press({380, 50});
  ASSERT_TRUE(editor.GestureAlive());
  MoveTo({382, 50}).Release();
  EXPECT_NEAR(Lines()[1].Points[0].Lon, At(682, 0).lon, 1e-9) << "the drag does not jump";
}

TEST_F(LineModeTest, KeysEditTheVertexUnderTheClick) {
  struct Row {
    const char* name;
    int key;
    std::size_t points;  ///< of the line pressed on
    std::size_t lines;
    float width;  ///< of its third vertex
  };
  for (const Row& row : {Row{"B cuts", 66, 3, 2, 10}, Row{"minus narrows", 109, 5, 1, 10 / 1.5F},
                         Row{"plus widens", 107, 5, 1, 15}}) {
    SCOPED_TRACE(row.name);
    session.project.Lines.clear();
    session.tool.Selected = {};
    session.undo.Reset();
    AddLine({{-200, 0}, {-100, 0}, {0, 0}, {100, 0}, {200, 0}});
    Key(row.key).Click({0, 0});
    ASSERT_EQ(Lines().size(), row.lines);
    ASSERT_EQ(Lines()[0].Points.size(), row.points);
    EXPECT_FLOAT_EQ(Lines()[0].Points[2].Wid, row.width);
    EXPECT_FALSE(editor.GestureAlive());
    EXPECT_EQ(session.undo.UndoCount(), 1U);
    KeyUp(row.key).Click({-200, 0});
    EXPECT_EQ(Lines()[0].Points.size(), row.points) << "the key counts while held alone";
  }
}

TEST_F(LineModeTest, AFigureThatIsDrawnOrMovedJoinsItsNeighbourWithABeep) {
  session.settings.AutoLineJoin = 1;
  AddLine({{0, 0}, {100, 0}});
  Click({-150, 100}).Click({-50, 50}).Click({100, 30}).Click({0, 0}, MouseButton::Right);
  EXPECT_EQ(Lines().size(), 2U) << "ends apart";
  EXPECT_EQ(dialogs.beeps, 0);
  Click({-200, -10}).Click({-90, -10}).Click({-7, -1}).Click({-1, -1}).Click({0, 0}, MouseButton::Right);
  EXPECT_EQ(dialogs.beeps, 1);
  EXPECT_EQ(Lines().size(), 2U);
  editor.Undo();
  EXPECT_EQ(Lines()[0].Points.size(), 2U) << "the joining goes with the line that was drawn";
  Press({-150, 100}).MoveTo({-120, 20}).MoveTo({99, 1}).Release();
  EXPECT_EQ(dialogs.beeps, 2);
  EXPECT_EQ(Lines().size(), 1U);
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
  MoveTo({0, 30}).KeyUp(' ');
  EXPECT_FALSE(editor.GestureAlive());
  MoveTo({0, 90});
  EXPECT_FLOAT_EQ(Place(0, 0).y, 30);
  KeyUp('R');
  MoveTo({0, 150}).Key(' ');
  MoveTo({50, 150}).Key(' ');
  EXPECT_EQ(Lines().size(), 2U) << "R waits for the mouse";
}

class PolyModeTest : public PathModeTest<PolyRec> {};

TEST_F(PolyModeTest, TheClosingEdgeCountsAsTheOthersDo) {
  Add({{-100, 0}, {100, 0}, {0, 100}});
  Key('I').Click({-50, 50});
  ASSERT_EQ(Paths()[0].Points.size(), 4U);
  EXPECT_FLOAT_EQ(Place(0, 3).x, -50) << "between the last vertex and the first";
  KeyUp('I').Click({-20, 80});
  EXPECT_TRUE(Paths()[0].Selected);
}

TEST_F(PolyModeTest, AFileHoldsNoPolygonBeforeItIsOne) {
  session.project.ProjectFile = (folder.Path() / "Coast.LSP").string();
  Click({-100, 0}).Click({0, 0});
  ASSERT_TRUE(editor.Save());
  Click({0, 80}).Key(Escape);
  EXPECT_EQ(Paths().size(), 1U) << "saving does not stop the hand";
  editor.OpenProject(session.project.ProjectFile);
  EXPECT_TRUE(Paths().empty());
}

}  // namespace
}  // namespace landsmith::test
