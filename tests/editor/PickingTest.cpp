#include "EditorRig.h"
#include "editor/PopupAt.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class PickingTest : public testing::Test, public EditorRig {};

TEST_F(PickingTest, TheFirstHitWinsVerticesBeforeObjectsBeforeSegments) {
  AddPoly({{0, 0}, {60, 80}, {-60, 80}});
  AddLine({{-100, 0}, {0, 0}, {100, 0}});
  AddObject({50, 0}, 20);
  AddObject({0, 2}, 20);
  AddMap({-200, -2}, {200, 200});
  editor.Canvas().DisplayAll();
  Click({2, 1});
  EXPECT_TRUE(Lines()[0].Points[1].Selected) << "a line's vertex before a polygon's and all else";
  EXPECT_EQ(Selected(), 1);
  Click({60, 80});
  EXPECT_TRUE(session.project.Polys[0].Points[1].Selected);
  Click({50, 0});
  EXPECT_TRUE(session.project.Objects[0].Selected) << "an object before the line's segment";
  EXPECT_EQ(Selected(), 1);
  Click({40, -10});
  EXPECT_TRUE(session.project.Objects[0].Selected) << "by a side of its footprint";
  Click({44, 7});
  EXPECT_EQ(Selected(), 0) << "not by the inside, where its box still is";
  Click({-80, 1});
  EXPECT_TRUE(Lines()[0].Selected) << "the line before the map's border under it";
  EXPECT_FALSE(session.tool.Selected.MapSelected);
  Click({-20, 80});
  EXPECT_TRUE(session.project.Polys[0].Selected);
}

TEST_F(PickingTest, MapsAndExcludesAreTakenByTheirBorderOnly) {
  AddMap({-100, -50}, {100, 50});
  AddExclude({-100, 100}, {100, 200});
  AddExclude({-100, 98}, {100, 150});
  session.project.Excludes.Edit(1).Corner = 2;
  struct Row {
    PixelOffset at;
    bool map;
    int excludes;
  };
  for (const Row& row : {Row{{-103, 0}, true, 0}, Row{{-97, 0}, true, 0}, Row{{-96, 0}, false, 0},
                         Row{{-104, 0}, false, 0}, Row{{0, 0}, false, 0}, Row{{0, 52}, true, 0},
                         Row{{0, 99}, false, 2}, Row{{0, 150}, false, 1}, Row{{0, 125}, false, 0}}) {
    SCOPED_TRACE(std::to_string(row.at.x) + ", " + std::to_string(row.at.y));
    Click(row.at);
    EXPECT_EQ(session.project.Maps[0].Selected, row.map);
    EXPECT_EQ(session.tool.Selected.MapSelected, row.map);
    EXPECT_EQ(Selected(), row.excludes + (row.map ? 1 : 0));
  }
  EXPECT_EQ(session.project.Excludes[1].Corner, 0);
  Click({0, 0}, MouseButton::Right);
  EXPECT_EQ(host.menus.back().Kind, "") << "nor does the menu of a map open from within";
  Press({-100, 0}).MoveTo({-90, 5}).Release();
  EXPECT_NEAR(PixelOf({0, session.project.Maps[0].Level[0].WLon}).x, -90, 1e-3);
}

TEST_F(PickingTest, ARubberBoxTakesEveryShownKindThatLiesStrictlyInside) {
  AddLine({{-50, 0}, {50, 0}});
  AddPoly({{-50, 10}, {50, 10}, {0, 30}});
  AddObject({0, 50}, 10);
  AddMap({-60, -60}, {60, 60});
  AddExclude({-60, -60}, {60, 60});
  AddExclude({-60, -60}, {90, 60});
  Press({-100, -100}).MoveTo({90, 90}).Release();
  EXPECT_EQ(Selected(), 5) << "all but the exclude that touches";
  EXPECT_TRUE(session.tool.Selected.MapSelected);
  editor.ToggleShown(LayerKind::Maps);
  Press({150, 150}).MoveTo({-100, -100}).Release();
  EXPECT_EQ(Selected(), 5) << "from the other corner; without the hidden map";
  EXPECT_FALSE(session.project.Maps[0].Selected);
}

struct PopupRow {
  const char* kind;
  ModeId own;
  const char* title;
  const char* question;
  bool form;
};
class Popups : public testing::TestWithParam<PopupRow>, public EditorRig {
protected:
  void Add(std::string_view kind) {
    ProjectState& project = session.project;
    const GeoBox box = Box({-20, -20}, {20, 20});
    if (kind == "PtInLine" || kind == "Line") AddLine({{-100, 0}, {0, 0}, {100, 0}});
    if (kind == "PtInPoly" || kind == "Poly") AddPoly({{-100, 0}, {0, 0}, {100, 0}, {0, 90}});
    if (kind == "Object") AddObject({0, 0}, 10);
    if (kind == "Exclude") AddExclude({-50, 0}, {50, 90});
    if (kind == "Map") AddMap({-50, 0}, {50, 90});
    if (kind == "Photo") project.Photos.emplace_back().Box = box;
    if (kind == "Mesh") project.Meshes.emplace_back().Box = box;
    if (kind == "Fill") {
      project.Fills.emplace_back().Box = box;
      project.Fills.emplace_back().Box = box;
    }
    // Two tiles of 256 cells lie west and north of 0 N 0 E, which is the middle of a cell of 10.7 by 8
    // pixels.
    if (kind == "Land") project.Lands.Set(513, 512, 5 + 128);
    if (kind == "Water") project.Waters.Set(513, 512, 7);
    project.NoOfLands = project.NoOfWaters = 1;
  }
};
TEST_P(Popups, NameWhatLiesThereInPointerModeAndTheKindsOwn) {
  const PopupRow& row = GetParam();
  Add(row.kind);
  const ProjectState before = session.project;
  const std::string kind = row.kind;
  const PixelOffset at = kind == "Line" || kind == "Poly"    ? PixelOffset{50, 0}
                         : kind == "Land" || kind == "Water" ? PixelOffset{12, 0}
                                                             : PixelOffset{1, 0};
  Click(at, MouseButton::Right);
  editor.ChooseMode(row.own);
  session.view.Zoom = 1;
  editor.Resize(800, 600);
  Click(at, MouseButton::Right);
  editor.ChooseMode(row.own == ModeId::Photo ? ModeId::Line : ModeId::Photo);
  Click(at, MouseButton::Right);
  ASSERT_EQ(host.menus.size(), 3U);
  for (const std::size_t menu : {0U, 1U}) {
    EXPECT_EQ(host.menus[menu].Kind, row.kind);
    EXPECT_EQ(host.menus[menu].Title, row.title);
  }
  EXPECT_EQ(host.menus[2].Kind, "") << "another kind's mode";
  EXPECT_EQ(host.menus[2].Title, "COAST");

  EXPECT_EQ(HasProperties(host.menus[0]), row.form);
  editor.DeleteTarget(host.menus[0]);
  EXPECT_TRUE(session.project == before) << "No is the default";
  dialogs.answers = {true};
  editor.DeleteTarget(host.menus[0]);
  EXPECT_EQ(dialogs.questions.back(), row.question);
  EXPECT_FALSE(session.project == before);
  EXPECT_EQ(session.undo.UndoCount(), 1U);
  EXPECT_EQ(session.project.NoOfLands, kind == "Land" ? 0 : 1);
  const std::size_t asked = dialogs.questions.size();
  if (kind.starts_with("Pt") || kind == "Fill") return;  // another of its kind stands in its place
  editor.DeleteTarget(host.menus[0]);
  EXPECT_EQ(dialogs.questions.size(), asked) << "a target that is gone asks nothing";
}
INSTANTIATE_TEST_SUITE_P(
    Of, Popups,
    testing::Values(
        PopupRow{"PtInLine", ModeId::Line, "POINT # 2 from LINE # 1", "Delete this Point from this Line ?",
                 true},
        PopupRow{"PtInPoly", ModeId::Poly, "POINT # 2 from POLY # 1", "Delete this Point from this Poly ?",
                 true},
        PopupRow{"Line", ModeId::Line, "LINE # 1", "Delete this Line ?", true},
        PopupRow{"Poly", ModeId::Poly, "POLY # 1", "Delete this Poly ?", true},
        PopupRow{"Object", ModeId::Object, "OBJECT # 1", "Delete this Object ?", false},
        PopupRow{"Exclude", ModeId::Exclude, "EXCLUDE # 1", "Delete this Exclude ?", false},
        PopupRow{"Photo", ModeId::Photo, "PHOTO # 1", "Delete this Photo ?", false},
        PopupRow{"Land", ModeId::Land, "LAND CLASS Row=512 Col=513", "Delete this Land Class ?", false},
        PopupRow{"Water", ModeId::Water, "WATER CLASS Row=512 Col=513", "Delete this Water Class ?", false},
        PopupRow{"Fill", ModeId::Fill, "AREA FILL # 2", "Delete this Area Fill ?", true},
        PopupRow{"Mesh", ModeId::Mesh, "MESH # 1", "Delete this Mesh tile ?", false},
        PopupRow{"Map", ModeId::Map, "Sheet", "Delete this Map ?", true}),
    [](const auto& row) { return std::string(row.param.kind); });

TEST_F(PickingTest, LabelsNameObjectsThenLinesThenPolygonsInTheirModes) {
  session.settings.ShowLabels = 1;
  AddObject({0, 0}, 10);
  AddLine({{-100, 0}, {100, 0}});
  AddPoly({{-100, 0}, {100, 0}, {0, 90}});
  session.project.Polys.Edit(0).Name = "Lake";
  struct Row {
    ModeId mode;
    const char* at0;
    const char* at60;
  };
  for (const Row& row : {Row{ModeId::Pointer, "Tower", "Line #1"}, Row{ModeId::Line, "Line #1", "Line #1"},
                         Row{ModeId::Poly, "Lake", "Lake"}, Row{ModeId::Object, "Tower", ""}}) {
    SCOPED_TRACE(static_cast<int>(row.mode));
    editor.ChooseMode(row.mode);
    MoveTo({1, 0});
    EXPECT_EQ(host.label, row.at0);
    EXPECT_EQ(host.labelAt, (PixelPoint{421, 290}));
    MoveTo({60, 0});
    EXPECT_EQ(host.label, row.at60);
  }
  session.project.Objects.Edit(0).Description = "0A|1|";
  host.hasTimers = true;
  MoveTo({1, 0});
  EXPECT_EQ(host.running[TimerId::Label], 100);
  editor.TimerTick(TimerId::Label);
  EXPECT_EQ(host.label, "Object #1");
  MoveTo({2, 0});
  EXPECT_EQ(host.running[TimerId::Label], 500) << "while a label shows";
  Press({200, 0});
  EXPECT_EQ(host.label, "");
  EXPECT_TRUE(host.running.empty());
}

}  // namespace
}  // namespace landsmith::test
