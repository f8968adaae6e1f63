#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

struct ToolRow {
  ModeId mode;
  CursorShape cursor;
  std::optional<LayerKind> kind;
  double zoom;  ///< 0: as it was
  int grid;
  const char* view;
};
class Tools : public testing::TestWithParam<ToolRow>, public EditorRig {};
TEST_P(Tools, ShowWhatTheirWorkNeeds) {
  const ToolRow& tool = GetParam();
  AddLine({{-100, 0}, {100, 0}});
  editor.SelectAll();
  session.view.ShowFlag.fill(false);
  session.view.MapView = "Winter";
  session.view.GridLod = 15;
  session.view.FillSize = 4;
  session.tool.MeasureOn = session.tool.PasteArmed = session.tool.InsertPoints = true;
  editor.ChooseMode(tool.mode);
  const ViewState& view = session.view;
  EXPECT_EQ(host.cursor, tool.cursor);
  EXPECT_FALSE(host.hint.empty());
  EXPECT_FALSE(session.tool.MeasureOn || session.tool.PasteArmed || session.tool.InsertPoints);
  EXPECT_EQ(Selected(), tool.kind ? 0 : 1) << "a tool for one kind clears the selection";
  EXPECT_EQ(view.Zoom, tool.zoom > 0 ? tool.zoom : 1);
  EXPECT_DOUBLE_EQ(view.Scale.PixelsPerDegLat, view.Zoom * 8 / 0.010986328125);
  EXPECT_DOUBLE_EQ(view.LatTop - view.LatBottom, 600 / view.Scale.PixelsPerDegLat);
  EXPECT_EQ(view.GridLod, tool.grid);
  EXPECT_EQ(view.MapView, tool.view);
  for (std::size_t i = 0; i < LayerKindCount; ++i) {
    const auto kind = static_cast<LayerKind>(i);
    EXPECT_EQ(view.Shows(kind), kind == tool.kind || (kind == LayerKind::Maps && tool.zoom > 0)) << i;
    EXPECT_EQ(editor.MaySelectKind(kind), kind == tool.kind) << i << ": of the kinds that are shown";
  }
  EXPECT_EQ(editor.MaySelectAll(), !tool.kind);
  const bool form = tool.zoom > 0;
  EXPECT_EQ(host.modeForms.size(), form ? 1U : 0U);
  editor.ChooseMode(ModeId::Pointer);
  std::vector<std::optional<ModeId>> forms;
  if (form) forms = {tool.mode, std::nullopt};
  EXPECT_EQ(host.modeForms, forms);
  EXPECT_FALSE(editor.CanUndo()) << "nothing of this is an edit";
}
INSTANTIATE_TEST_SUITE_P(
    All, Tools,
    testing::Values(ToolRow{ModeId::Pointer, CursorShape::Arrow, {}, 0, 15, "Winter"},
                    ToolRow{ModeId::Zoom, CursorShape::Zoom, {}, 0, 15, "Winter"},
                    ToolRow{ModeId::Map, CursorShape::Map, LayerKind::Maps, 0, 15, "Winter"},
                    ToolRow{ModeId::Mesh, CursorShape::Mesh, LayerKind::Meshes, 0.25, 8, "Mesh"},
                    ToolRow{ModeId::Line, CursorShape::Line, LayerKind::Lines, 0, 15, "Winter"},
                    ToolRow{ModeId::Poly, CursorShape::Poly, LayerKind::Polys, 0, 15, "Winter"},
                    ToolRow{ModeId::Object, CursorShape::Object, LayerKind::Objects, 0, 15, "Winter"},
                    ToolRow{ModeId::Exclude, CursorShape::Exclude, LayerKind::Excludes, 0, 15, "Winter"},
                    ToolRow{ModeId::Photo, CursorShape::Photo, LayerKind::Photos, 8, 13, "Summer"},
                    ToolRow{ModeId::Land, CursorShape::Land, LayerKind::Lands, 8, 13, "Winter"},
                    ToolRow{ModeId::Water, CursorShape::Water, LayerKind::Waters, 8, 13, "Winter"},
                    ToolRow{ModeId::Fill, CursorShape::Fill4, LayerKind::Fills, 8, 11, "Winter"}));

class ModesTest : public testing::Test, public EditorRig {};

TEST_F(ModesTest, TheMeshToolWarnsOfEightBitMeshes) {
  editor.ChooseMode(ModeId::Mesh);
  EXPECT_TRUE(dialogs.messages.empty());
  session.settings.Mesh8 = true;
  editor.ChooseMode(ModeId::Mesh);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "You should unset the 8-bit/meter option\nin the Preferences menu!");
}

TEST_F(ModesTest, ObjectsAndExcludesAreSelectedAndDragged) {
  AddObject({0, 0}, 10);
  AddObject({100, 0}, 10);
  AddExclude({-50, 50}, {50, 90});
  editor.ChooseMode(ModeId::Object);
  Click({0, 0});
  shift = true;
  Click({100, 0});
  EXPECT_EQ(Selected(), 2);
  Press({200, 200}).MoveTo({210, 200}).Release();
  EXPECT_NEAR(PixelOf({0, session.project.Objects[1].Lon}).x, 110, 1e-3);
  shift = false;
  Click({200, 200});
  EXPECT_EQ(Selected(), 0);
  editor.ChooseMode(ModeId::Exclude);
  host.hasTimers = true;
  Press({0, 50});
  EXPECT_EQ(host.running[TimerId::DragSettle], 100) << "an exclude is held more firmly";
  MoveTo({5, 50});
  editor.TimerTick(TimerId::DragSettle);
  MoveTo({10, 60}).Release();
  EXPECT_NEAR(PixelOf({session.project.Excludes[0].Box.NLat, 0}).y, 60, 1e-3);
  EXPECT_EQ(session.undo.UndoCount(), 2U);
}

/// A drag of each kind that a mode has.
struct DragRow {
  const char* name;
  ModeId mode;
  PixelOffset from;
  MouseButton button;
  bool ctrl;
  int key;
};
class Drags : public testing::TestWithParam<DragRow>, public EditorRig {
protected:
  void Begin() {
    const DragRow& row = GetParam();
    AddLine({{-100, 0}, {100, 0}});
    AddPoly({{-100, 50}, {100, 50}, {0, 90}});
    AddObject({0, -50}, 10);
    AddExclude({-50, -150}, {50, -100});
    editor.ChooseMode(row.mode);
    ctrl = row.ctrl;
    if (row.key != 0) Key(row.key);
    Press(row.from, row.button);
    ctrl = false;
    MoveTo({row.from.x + 10, row.from.y + 60});
  }
};
TEST_P(Drags, EndWhateverInterruptsThemAndUndoWaits) {
  struct Interruption {
    const char* name;
    void (*interrupt)(EditorRig&);
  };
  for (const Interruption& how :
       {Interruption{"mode change", [](EditorRig& rig) { rig.editor.ChooseMode(ModeId::Land); }},
        Interruption{"right click",
                     [](EditorRig& rig) {
                       rig.Press({0, 0}, MouseButton::Right);
                     }},
        Interruption{"new project",
                     [](EditorRig& rig) {
                       rig.dialogs.answers = {true};
                       rig.editor.NewProject();
                     }},
        Interruption{"focus loss", [](EditorRig& rig) { rig.editor.FocusLost(); }},
        Interruption{"release", [](EditorRig& rig) { rig.Release(); }}}) {
    SCOPED_TRACE(how.name);
    session.project = ProjectState{};
    session.project.Name = "Coast";
    session.project.ProjectOpen = true;
    session.undo.Reset();
    session.view.Zoom = 1;
    session.view.LatDispCenter = session.view.LonDispCenter = 0;
    editor.Resize(800, 600);
    Begin();
    ASSERT_TRUE(editor.GestureAlive());
    const ProjectState during = session.project;
    EXPECT_FALSE(editor.CanUndo());
    editor.Undo();
    EXPECT_TRUE(session.project == during);
    how.interrupt(*this);
    EXPECT_FALSE(editor.GestureAlive());
    KeyUp(GetParam().key);
    const ProjectState ended = session.project;
    const double zoom = session.view.Zoom, center = session.view.LatDispCenter;
    MoveTo({200, 200}).MoveTo({-200, -200});
    EXPECT_TRUE(session.project == ended) << "later moves do nothing";
    EXPECT_EQ(session.view.Zoom, zoom);
    EXPECT_EQ(session.view.LatDispCenter, center);
    EXPECT_LE(session.undo.UndoCount(), 1U);
    host.menus.clear();
  }
}
constexpr MouseButton Left = MouseButton::Left, Middle = MouseButton::Middle;
INSTANTIATE_TEST_SUITE_P(
    Of, Drags,
    testing::Values(DragRow{"line", ModeId::Pointer, {50, 0}, Left, false, 0},
                    DragRow{"box", ModeId::Pointer, {200, 200}, Left, false, 0},
                    DragRow{"vertex", ModeId::Line, {100, 0}, Left, false, 0},
                    DragRow{"line_box", ModeId::Line, {200, 200}, MouseButton::Right, true, 0},
                    DragRow{"poly", ModeId::Poly, {50, 50}, Left, false, 0},
                    DragRow{"object", ModeId::Object, {0, -50}, Left, false, 0},
                    DragRow{"exclude", ModeId::Exclude, {0, -100}, Left, false, 0},
                    DragRow{"fill", ModeId::Fill, {0, 0}, Left, false, 0},
                    DragRow{"pan", ModeId::Zoom, {0, 0}, Middle, false, 0},
                    DragRow{"pan_key", ModeId::Map, {0, 0}, Left, false, 'P'},
                    DragRow{"zoom_key", ModeId::Line, {0, 0}, Left, false, 'Z'}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ModesTest, ThePressOfTheZoomToolIsNoDragEvenWithZ) {
  editor.ChooseMode(ModeId::Zoom);
  Key('Z').Click({0, 0});
  EXPECT_FALSE(editor.GestureAlive());
  EXPECT_EQ(session.view.Zoom, 2);
  KeyUp('R').Click({0, 0});
  EXPECT_EQ(session.view.Zoom, 1) << "R makes the left click a right one";
}

struct HeadingRow {
  LatLon to;
  double heading;
};
TEST_F(ModesTest, TheMeasureTellsDistanceHeadingAndMiddle) {
  for (const HeadingRow& row :
       {HeadingRow{{1, 0}, 0}, HeadingRow{{0, 1}, 90}, HeadingRow{{-1, 0}, 180}, HeadingRow{{0, -1}, 270},
        HeadingRow{{0, 0}, 0}, HeadingRow{{1e-5, 1e-5}, 45}, HeadingRow{{-1e-5, -1e-5}, 225}})
    EXPECT_NEAR(MeasureBetween({0, 0}, row.to).HeadingDeg, row.heading, 1e-6);
  // 0.1 degrees of latitude at 60 N are 11133 m; 0.1 of longitude half of that.
  EXPECT_NEAR(MeasureBetween({60, 10}, {60, 10.1}).DistanceMetres, 5566.5, 1e-6);
  session.settings.DecimalDegrees = true;
  const Measurement north = MeasureBetween({60, 10}, {60.1, 10});
  const std::string rest = "\n0.000 deg\n\n" + FormatLatText(60.05, CoordForm::DecimalDegrees) + "\n" +
                           FormatLonText(10, CoordForm::DecimalDegrees);
  EXPECT_EQ(MeasureLabel(north, session.settings), "11133.000 m" + rest);
  session.settings.MeasuringMeters = false;
  EXPECT_EQ(MeasureLabel(north, session.settings), "36525.146 ft" + rest);
}

TEST_F(ModesTest, MeasuringTakesTheClicksUntilTheRightButtonOrEscape) {
  AddLine({{-100, 0}, {100, 0}});
  for (const ModeId mode : {ModeId::Pointer, ModeId::Line, ModeId::Poly, ModeId::Object}) {
    SCOPED_TRACE(static_cast<int>(mode));
    editor.ChooseMode(mode);
    Key('M');
    EXPECT_EQ(host.cursor, CursorShape::Measure);
    Click({0, 100}).MoveTo({100, 100});
    EXPECT_EQ(canvas.top.Of(RecordingSurface::Call::Kind::Polyline).size(), 4U) << "three circles, a line";
    EXPECT_NE(host.label.find("90.000 deg"), std::string::npos);
    EXPECT_EQ(host.labelAt, (PixelPoint{535, 365}));
    Click({100, 100}).MoveTo({150, 150});
    EXPECT_EQ(host.label, "") << "the second click ends it";
    if (mode == ModeId::Line)
      Key(27);
    else
      Click({0, 100}, MouseButton::Right);
    EXPECT_FALSE(session.tool.MeasureOn);
    EXPECT_TRUE(host.menus.empty());
    EXPECT_FALSE(editor.GestureAlive());
  }
  EXPECT_TRUE(session.project.Polys.empty());
  editor.ChooseMode(ModeId::Line);
  Click({0, 150});
  EXPECT_FALSE(editor.MayMeasure()) << "a line is under way";
  editor.ChooseMode(ModeId::Zoom);
  EXPECT_FALSE(editor.MayMeasure());
}

TEST_F(ModesTest, APlaceThatAFormWaitsForGoesNowhereElse) {
  std::vector<PixelOffset> picked;
  editor.ChooseMode(ModeId::Line);
  editor.PickPoint([&](const PointerInput& in) { picked.push_back(in.at); });
  EXPECT_EQ(host.cursor, CursorShape::Cross);
  Press({0, 0}, MouseButton::Middle).MoveTo({5, 5}).Release();
  EXPECT_TRUE(picked.empty()) << "panning goes before";
  Click({40, 30}).Click({50, 30}).Click({90, 30});
  ASSERT_EQ(picked.size(), 1U);
  EXPECT_EQ(picked[0].x, 40);
  EXPECT_EQ(Lines().size(), 1U);
}

}  // namespace
}  // namespace landsmith::test
