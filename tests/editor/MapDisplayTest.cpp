// Which picture a view shows of a map, how it is cut to the canvas, and what is painted.
#include "EditorRig.h"
#include "core/Color.h"
#include "editor/MapCut.h"
#include "editor/MapView.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

/// 800 by 600 pixels from 10 to 18 east and 50 to 44 north, a hundred pixels a degree both ways.
ViewState HundredPixelsADegree() {
  ViewState view;
  view.ScaleWidth = 800;
  view.ScaleHeight = 600;
  view.Scale.PixelsPerDegLat = view.Scale.PixelsPerDegLon = 100;
  view.LonLeft = 10;
  view.LonRight = 18;
  view.LatTop = 50;
  view.LatBottom = 44;
  return view;
}

struct CutRow {
  const char* name;
  MapLevel map;  ///< columns, rows, north, south, west, east
  PixelBox source;
  FloatBox target;
  float frameWidth, frameHeight;
};

// Worked out by hand. In the third row a pixel of the bitmap covers 40 by 25 pixels of the canvas, 0.75
// degrees lie left of it, which is 1.875 of its pixels: the second pixel begins 35 pixels left of the canvas.
TEST(MapCut, TouchesThePixelsUnderTheViewAndTwoMore) {
  const CutRow rows[] = {
      {"inside", {40, 20, 49, 48, 11, 13}, {0, 0, 40, 20}, {100, 100, 200, 100}, 200, 100},
      {"beyond the east", {32, 20, 49, 48, 12, 28}, {0, 0, 18, 20}, {200, 100, 900, 100}, 1600, 100},
      {"from the west", {10, 4, 49, 48, 9.25, 13.25}, {1, 0, 11, 4}, {-35, 100, 400, 100}, 325, 100},
      {"over all the width", {32, 20, 49, 48, 8.25, 24.25}, {3, 0, 21, 20}, {-25, 100, 900, 100}, 1425, 100},
      {"over all the height", {40, 20, 52, 42, 11, 13}, {0, 4, 40, 18}, {100, 0, 200, 700}, 200, 800},
      {"touching the west side", {40, 20, 49, 48, 8, 10}, {40, 0, 80, 20}, {0, 100, 200, 100}, 0, 100},
      {"of no known size", {0, 0, 49, 48, 11, 13}, {0, 0, 0, 0}, {100, 100, 200, 100}, 200, 100},
  };
  for (const CutRow& row : rows) {
    const auto cut = CutMap(row.map, HundredPixelsADegree());
    ASSERT_TRUE(cut) << row.name;
    EXPECT_EQ(cut->Source, row.source) << row.name;
    EXPECT_EQ(cut->Target, row.target) << row.name;
    EXPECT_EQ(cut->FrameWidth, row.frameWidth) << row.name;
    EXPECT_EQ(cut->FrameHeight, row.frameHeight) << row.name;
  }
  for (const MapLevel& unseen : {MapLevel{40, 20, 49, 48, 8, 9.999}, MapLevel{40, 20, 43.9, 43, 11, 13},
                                 MapLevel{40, 20, 48, 49, 11, 13}, MapLevel{40, 20, 1e300, -1e300, 11, 13}})
    EXPECT_FALSE(CutMap(unseen, HundredPixelsADegree()));
}

TEST(MapView, AltitudesHaveTheColourOfMeshBitmaps) {
  struct Row {
    float altitude;
    bool mesh8;
    std::int32_t color;
  };
  for (const Row& row :
       {Row{300, false, Rgb(1, 44, 0)}, Row{300, true, Rgb(9, 96, 0)}, Row{31, true, Rgb(0, 248, 0)},
        Row{32, true, Rgb(1, 0, 0)}, Row{256, true, Rgb(8, 0, 0)}, Row{9000, true, Rgb(25, 64, 0)}})
    EXPECT_EQ(ColorOfAltitude(row.altitude, row.mesh8), row.color) << row.altitude;
}

struct Maps : testing::Test {
  EditorRig rig;

  /// A map with bitmaps of the three sets, which lie side by side; those named exist.
  MapRec Map(const std::string& name, const std::vector<std::string>& existing) {
    MapRec map;
    map.BMPSu = (rig.folder / (name + "_su.bmp")).string();
    map.BMPLC = (rig.folder / (name + "_lc.bmp")).string();
    map.BMPME = (rig.folder / (name + "_me.bmp")).string();
    for (std::size_t level = 1; level <= 3; ++level)
      map.Level[level] = {10, 10, 1, 0, static_cast<double>(level), static_cast<double>(level) + 1};
    for (const std::string& file : existing)
      WriteWholeFile(rig.folder / file, "BM");
    return map;
  }
  ProjectState& Project() { return rig.session.project; }
  std::vector<std::string> Shown() {
    std::vector<std::string> names;
    for (const auto& file : rig.session.view.Pictures.Files)
      names.push_back(file.filename().string());
    return names;
  }
};

TEST_F(Maps, AMissingPictureEndsTheChangeOfViewThere) {
  Project().Maps = {Map("a", {"a_su.bmp", "a_lc.bmp"}), Map("b", {"b_su.bmp"}),
                    Map("c", {"c_su.bmp", "c_lc.bmp"})};
  rig.editor.SetMapView("Summer");
  EXPECT_EQ(Shown(), (std::vector<std::string>{"a_su.bmp", "b_su.bmp", "c_su.bmp"}));
  const ProjectState before = Project();
  rig.editor.SetMapView("Land");
  EXPECT_EQ(Shown(), (std::vector<std::string>{"a_lc.bmp", "b_su.bmp", "c_su.bmp"}));
  EXPECT_EQ(Project().Maps[0].Level[0].WLon, 2);
  EXPECT_EQ(Project().Maps[2].Level[0].WLon, 1);
  EXPECT_EQ(&Project().Maps[2], &before.Maps[2]) << "a record that stays is not copied";
  EXPECT_TRUE(rig.dialogs.messages.empty());
  EXPECT_FALSE(Project().Dirty);
  EXPECT_FALSE(rig.editor.CanUndo());
  rig.editor.SetMapView("Autumn");
  EXPECT_EQ(rig.session.view.MapView, "Land");
}

TEST_F(Maps, TheSisterBitmapServesBrightMeshes) {
  Project().Maps = {Map("a", {"a_me.bmp"})};
  rig.session.settings.Mesh8 = true;
  rig.editor.SetMapView("Mesh");
  EXPECT_EQ(Shown(), std::vector<std::string>{""});
  WriteWholeFile(rig.folder / "a_me_8.BMP", "BM");
  rig.editor.SettingsChanged(false);
  EXPECT_EQ(Shown(), std::vector<std::string>{"a_me_8.BMP"});
}

TEST_F(Maps, PicturesFollowTheirMaps) {
  Project().Maps = {Map("a", {"a_su.bmp"}), Map("b", {"b_su.bmp"})};
  rig.editor.SetMapView("Summer");
  PopupTarget first;
  first.Kind = "Map";
  rig.dialogs.answers = {true};
  rig.editor.DeleteTarget(first);
  EXPECT_EQ(Shown(), std::vector<std::string>{"b_su.bmp"});
  rig.editor.Undo();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"a_su.bmp", "b_su.bmp"}));
}

TEST_F(Maps, EachIsPaintedRecolouredAndFramedInTurn) {
  Project().Maps = {Map("a", {"a_su.bmp", "a_me.bmp"}), Map("b", {"b_su.bmp", "b_me.bmp"})};
  Project().Maps.Edit(1).Selected = true;
  rig.session.settings.Altitude2Change = 300;
  rig.session.view.Zoom = 0.25;
  UpdateScale(rig.session.view);
  rig.editor.GoTo({0.5, 3});
  using Call = RecordingSurface::Call;
  const auto painted = [&] {
    std::string calls;
    for (const Call& call : rig.canvas.base.calls) {
      if (call.kind == Call::Kind::ImagePart) calls += call.quality == PictureQuality::Exact ? "E" : "S";
      if (call.kind == Call::Kind::ReplaceColor && call.pen == Rgb(1, 44, 0)) calls += "R";
      if (call.kind == Call::Kind::Box)
        calls += std::to_string(call.pen) + "w" + std::to_string(call.penWidth);
    }
    return calls;
  };
  rig.editor.SetMapView("Summer");
  EXPECT_EQ(painted(), "S0w1S65535w2");
  rig.editor.SetMapView("Mesh");
  EXPECT_EQ(painted(), "ER0w1ER65535w2");
  rig.session.settings.Altitude2Change = 0;
  rig.session.settings.BorderON = false;
  rig.editor.SettingsChanged(false);
  EXPECT_EQ(painted(), "EE65535w2");
}

TEST_F(Maps, APlaceIsPickedByTheNextPress) {
  std::vector<MouseButton> picked;
  const auto pick = [&](const PointerInput& in) { picked.push_back(in.button); };
  rig.editor.PickPoint(pick);
  rig.Click({0, 0}, MouseButton::Middle);
  EXPECT_TRUE(picked.empty()) << "the view may be panned meanwhile";
  EXPECT_EQ(rig.host.cursor, CursorShape::Cross);
  rig.Click({5, 5}).Click({6, 6});
  EXPECT_EQ(picked, std::vector<MouseButton>{MouseButton::Left});
  rig.editor.PickPoint(pick);
  rig.Key(27);
  rig.editor.PickPoint(pick);
  rig.editor.NewProject();
  EXPECT_EQ(picked, (std::vector<MouseButton>{MouseButton::Left, MouseButton::Right, MouseButton::Right}));
}

}  // namespace
}  // namespace landsmith::test
