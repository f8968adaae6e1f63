// The data file beside a bitmap, adding a map by it, and the arithmetic of a calibration.
#include "EditorRig.h"
#include "editor/Calibration.h"
#include "editor/MapData.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <cmath>

namespace landsmith::test {
namespace {

/// The first 26 bytes of a bitmap of 300 by 200 pixels, or of one stored from the top.
std::string Bitmap(bool fromTop = false) {
  std::string head(26, '\0');
  head[0] = 'B';
  head[1] = 'M';
  head[18] = 0x2C;
  head[19] = 0x01;
  head[22] = static_cast<char>(fromTop ? 0x38 : 0xC8);
  if (fromTop) head[23] = head[24] = head[25] = static_cast<char>(0xFF);
  return head;
}

TEST(MapData, ABitmapIsKnownByItsHeader) {
  const TempFolder folder;
  struct Row {
    const char* name;
    std::string bytes;
    std::optional<BitmapSize> size;
  };
  for (const Row& row :
       {Row{"bitmap", Bitmap(), BitmapSize{300, 200}},
        Row{"from the top", Bitmap(true), BitmapSize{300, 200}}, Row{"cut off", Bitmap().substr(0, 25), {}},
        Row{"another format", "XX" + Bitmap().substr(2), {}},
        Row{"no width", "BM" + std::string(24, '\0'), {}}}) {
    WriteWholeFile(folder / "a.bmp", row.bytes);
    EXPECT_EQ(ReadBitmapSize(folder / "a.bmp"), row.size) << row.name;
  }
  EXPECT_FALSE(ReadBitmapSize(folder / "missing.bmp"));
}

TEST(MapData, TheFileHoldsDecimalDegreesAndIsReadInAnyOrder) {
  const std::string text =
      "[GEOGRAPHIC]\r\nNorth=40.5\r\nSouth=40\r\nWest=-10.25\r\nEast=-9\r\nFile1=land "
      "\xE9.bmp\r\nNorth1=1\r\n"
      "South1=0.00025\r\nWest1=2\r\nEast1=3\r\nFile2=\r\nNorth2=0\r\nSouth2=0\r\nWest2=0\r\nEast2=0\r\n\r\n";
  const MapData data = ParseMapData(text);
  EXPECT_EQ(data.Main.Box, (GeoBox{40.5, 40, -10.25, -9}));
  EXPECT_EQ(data.Land.File, "land é.bmp");
  EXPECT_EQ(data.Land.Box, (GeoBox{1, 0.00025, 2, 3}));
  EXPECT_EQ(MapDataText(data), text);

  const MapData odd = ParseMapData(
      "[Other]\nNorth=9\n[geographic]\nEAST=3\nNorth=4o\nSouth= -1,5 \nWest=1e400\nFile2= a b.bmp \n");
  EXPECT_EQ(odd.Main.Box, (GeoBox{0, -1.5, 0, 3}));
  EXPECT_EQ(odd.Mesh.File, "a b.bmp");
  EXPECT_EQ(MapDataName("d:\\maps\\coast.bmp"), "d:\\maps\\coast.TXT");
}

struct AddRow {
  const char* name;
  std::string data;  ///< of the data file; none when empty
  GeoBox main, land;
  bool hasLand;
  std::vector<std::string> messages;
};

constexpr const char* MainPart = "[GEOGRAPHIC]\r\nNorth=2\r\nSouth=1\r\nWest=3\r\nEast=5\r\n";
constexpr const char* LandPart = "North1=12\r\nSouth1=11\r\nWest1=13\r\nEast1=15\r\n";
constexpr const char* MeshPart = "File2=mesh.bmp\r\nNorth2=22\r\nSouth2=21\r\nWest2=23\r\nEast2=25\r\n";
constexpr const char* Advice = "You may need to calibrate this bitmap!";

TEST(AddMap, TheDataFileSaysWhereEachSetLies) {
  const GeoBox known{2, 1, 3, 5}, land{12, 11, 13, 15}, around{0.1, -0.1, -0.1, 0.1};
  const AddRow rows[] = {
      {"all three",
       std::string(MainPart) + "File1=land.bmp\r\n" + LandPart + MeshPart,
       known,
       land,
       true,
       {}},
      {"main alone", MainPart, known, known, false, {Advice}},
      {"land is no bitmap",
       std::string(MainPart) + "File1=land.txt\r\n" + LandPart + MeshPart,
       known,
       known,
       false,
       {"Land Map must have Bitmap file format!", Advice}},
      {"east of main missing",
       "[GEOGRAPHIC]\r\nNorth=2\r\nSouth=1\r\nWest=3\r\nFile1=land.bmp\r\n" + std::string(LandPart),
       around,
       land,
       true,
       {Advice}},
      {"no data file", "", around, around, false, {Advice}},
  };
  for (const AddRow& row : rows) {
    EditorRig rig;
    for (const char* file : {"coast.bmp", "land.bmp", "mesh.bmp"})
      WriteWholeFile(rig.folder / file, Bitmap());
    WriteWholeFile(rig.folder / "land.txt", "no bitmap");
    if (!row.data.empty()) WriteWholeFile(rig.folder / "coast.TXT", row.data);
    rig.dialogs.files = {rig.folder / "coast.bmp"};
    rig.editor.ChooseMode(ModeId::Map);
    rig.Click({0, 0});

    ASSERT_EQ(rig.session.project.Maps.size(), 1U) << row.name;
    const MapRec& map = rig.session.project.Maps[0];
    const auto box = [&](std::size_t level) {
      return GeoBox{map.Level[level].NLat, map.Level[level].SLat, map.Level[level].WLon,
                    map.Level[level].ELon};
    };
    EXPECT_EQ(map.Name, "MAP01");
    EXPECT_EQ(map.BMPSu, (rig.folder / "coast.bmp").string());
    EXPECT_EQ(map.Level[1].COLS, 300);
    EXPECT_EQ(box(1), row.main) << row.name;
    EXPECT_EQ(map.Level[0], map.Level[1]);
    EXPECT_EQ(box(2), row.land) << row.name;
    EXPECT_EQ(map.BMPLC, row.hasLand ? (rig.folder / "land.bmp").string() : "") << row.name;
    std::vector<std::string> said;
    for (const auto& message : rig.dialogs.messages)
      said.push_back(message.text);
    EXPECT_EQ(said, row.messages) << row.name;
    EXPECT_EQ(rig.host.mapForms.size(), row.messages.empty() ? 0U : 1U) << row.name;
    EXPECT_EQ(rig.session.view.MapView, "Summer");
    EXPECT_EQ(rig.session.view.Zoom, 8);
    EXPECT_DOUBLE_EQ(rig.session.view.LonDispCenter, (row.main.WLon + row.main.ELon) / 2) << row.name;
  }
}

TEST(AddMap, NothingComesOfAnotherFileOrOfCancel) {
  EditorRig rig;
  WriteWholeFile(rig.folder / "notes.txt", "no bitmap");
  rig.dialogs.files = {rig.folder / "notes.txt", std::nullopt};
  rig.editor.ChooseMode(ModeId::Map);
  rig.Click({0, 0}).Click({0, 0});
  ASSERT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(rig.dialogs.messages[0].text, "Main/Summer Map must have Bitmap file format!");
  EXPECT_TRUE(rig.session.project.Maps.empty());
  EXPECT_FALSE(rig.session.project.Dirty);
}

TEST(AddMap, IsUndoneAndRedone) {
  EditorRig rig;
  WriteWholeFile(rig.folder / "coast.bmp", Bitmap());
  rig.dialogs.files = {rig.folder / "coast.bmp", rig.folder / "coast.bmp"};
  rig.editor.ChooseMode(ModeId::Map);
  rig.Click({0, 0}).Click({0, 0});
  EXPECT_EQ(rig.session.project.Maps[1].Name, "MAP02");
  rig.editor.Undo();
  rig.editor.Undo();
  EXPECT_TRUE(rig.session.project.Maps.empty());
  rig.editor.Redo();
  EXPECT_EQ(rig.session.project.Maps.size(), 1U);
  EXPECT_EQ(rig.session.view.Pictures.Files.size(), 1U);
}

struct CalibrationRow {
  const char* name;
  CalibrationPoint first, second;
  CalibrationAxis axis;
  GeoBox box;
  std::string refusal;
};

// A bitmap of 400 by 500 pixels on a display where a degree is 80 pixels wide and 100 high. By both axes:
// 0.01 degrees a column and 0.005 a row, the middle of the points is pixel (200, 150) at 40.5 north 11 east.
TEST(Calibration, FollowsFromTwoPoints) {
  const CalibrationPoint nw{{41, 10}, 100, 50}, se{{40, 12}, 300, 250};
  const CalibrationPoint above{{41, 11}, 200, 50}, below{{40, 11}, 200, 250};
  const CalibrationPoint left{{40.5, 10}, 100, 150}, right{{40.5, 12}, 300, 150};
  using Axis = CalibrationAxis;
  const CalibrationRow rows[] = {
      {"both axes", nw, se, Axis::Both, {41.25, 38.75, 9, 13}, ""},
      {"one above the other", above, below, Axis::Lat, {41.25, 38.75, 9.75, 12.25}, ""},
      {"side by side", left, right, Axis::Lon, {41.7, 37.7, 9, 13}, ""},
      {"same column", above, below, Axis::Both, {}, "Check X Pixel Values"},
      {"same row", left, right, Axis::Lat, {}, "Check Y Pixel Values"},
      {"no latitude", {{100, 10}, 100, 50}, se, Axis::Both, {}, "Check Latitude & Longitude Values"},
      {"upside down",
       {{40, 10}, 100, 50},
       {{41, 12}, 300, 250},
       Axis::Both,
       {},
       "Check Latitude & Longitude Values"},
      {"no pixel", {{41, 10}, NAN, 50}, se, Axis::Both, {}, "Check X Pixel Values"},
  };
  for (const CalibrationRow& row : rows) {
    ViewScale scale;
    scale.PixelsPerDegLat = 100;
    scale.PixelsPerDegLon = 80;
    const auto outcome = Calibrate({row.first, row.second, row.axis, 400, 500, scale});
    if (!row.refusal.empty()) {
      ASSERT_TRUE(std::holds_alternative<CalibrationRefusal>(outcome)) << row.name;
      EXPECT_EQ(std::get<CalibrationRefusal>(outcome).Message, row.refusal) << row.name;
      continue;
    }
    ASSERT_TRUE(std::holds_alternative<GeoBox>(outcome)) << row.name;
    const GeoBox& box = std::get<GeoBox>(outcome);
    EXPECT_NEAR(box.NLat, row.box.NLat, 1e-12) << row.name;
    EXPECT_NEAR(box.SLat, row.box.SLat, 1e-12) << row.name;
    EXPECT_NEAR(box.WLon, row.box.WLon, 1e-12) << row.name;
    EXPECT_NEAR(box.ELon, row.box.ELon, 1e-12) << row.name;
  }
}

TEST(Calibration, PixelsAreFoundOnTheMapAloneSidesIncluded) {
  const MapLevel shown{400, 500, 41.25, 38.75, 9, 13};
  const auto pixel = PixelOnMap(shown, {41, 10});
  ASSERT_TRUE(pixel);
  EXPECT_EQ(pixel->X, 100);
  EXPECT_EQ(pixel->Y, 50);
  EXPECT_TRUE(PixelOnMap(shown, {38.75, 13}));
  EXPECT_FALSE(PixelOnMap(shown, {38.749, 13}));
}

}  // namespace
}  // namespace landsmith::test
