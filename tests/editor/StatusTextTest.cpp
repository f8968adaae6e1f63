#include "EditorRig.h"
#include "core/Color.h"
#include "editor/StatusText.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

// 40 N 10 W: 170 degrees and 50 degrees from the north-west corner of the world.
class StatusText : public testing::Test, public EditorRig {
protected:
  StatusText() {
    session.view.LatDispCenter = 40;
    session.view.LonDispCenter = -10;
    session.view.Classes = ClassWindowOf(40, -10);
    editor.Resize(800, 600);
  }
  StatusPanels Panels(std::int32_t pixel = 0) const { return ComposeStatusText(session, {0, 0}, pixel); }
  std::string Extra(ModeId mode, std::int32_t pixel = 0) {
    session.tool.Mode = mode;
    return Panels(pixel).Extra;
  }
};

TEST_F(StatusText, TellsThePlaceInEveryGrid) {
  session.view.Zoom = 0.25;
  const StatusPanels panels = Panels();
  EXPECT_EQ(panels.Lat, "40° 00' 00.0000'' N");
  EXPECT_EQ(panels.Lon, "10° 00' 00.0000'' W");
  EXPECT_EQ(panels.Lod5, " Lod5 = 45 17");
  EXPECT_EQ(panels.Cell, " Cell = 362 142");
  EXPECT_EQ(panels.Area, " Area = 21 7");
  EXPECT_EQ(panels.Point, " Area Pt = 85 28");
  EXPECT_EQ(panels.Zoom, "Zoom = 0.25");
  EXPECT_EQ(panels.Extra, "");
  session.settings.AreaPoints = false;
  session.settings.DecimalDegrees = true;
  EXPECT_EQ(Panels().Point, " Cell Pt = 9520 5893");
  EXPECT_EQ(Panels().Lat, "40.0000000");
  EXPECT_EQ(Panels().Lon, "-10.0000000");
}

TEST_F(StatusText, FollowsTheMouse) {
  const StatusPanels west = ComposeStatusText(session, {-1e6F, 0}, 0);
  EXPECT_EQ(west.Lat, "40° 00' 00.0000'' N");
  EXPECT_NE(west.Lon, Panels().Lon);
}

TEST_F(StatusText, NamesTileAndClassOfTheMode) {
  EXPECT_EQ(Extra(ModeId::Photo), "  Custom = 012110323010323");
  EXPECT_EQ(Extra(ModeId::Land), "  Land Class = NONE");
  EXPECT_EQ(Extra(ModeId::Water), "  Water Class = NONE");
  session.project.Lands.Set(597, 711, 3 | 128);
  session.project.Waters.Set(597, 711, 2);
  session.lands.Items[3].Code = 101;
  session.waters.Items[2].Code = 132;
  EXPECT_EQ(Extra(ModeId::Land), "  Land Class = 101") << "also while selected";
  EXPECT_EQ(Extra(ModeId::Water), "  Water Class = 132");
  session.view.LonDispCenter = 60;  // outside the class window
  EXPECT_EQ(Extra(ModeId::Land), "  Land Class = NONE");
  session.view.ShowFlag.fill(false);
  for (const ModeId mode : {ModeId::Photo, ModeId::Land, ModeId::Water, ModeId::Line})
    EXPECT_EQ(Extra(mode), "");
}

TEST_F(StatusText, ReadsAltitudesFromTheColorOfAMesh) {
  session.view.MapView = "Mesh";
  EXPECT_EQ(Extra(ModeId::Land), "Altitude = n.a.");
  session.project.Maps.emplace_back().Level[3] = {10, 10, 40, 39, -10, -9};  // its corner is under the mouse
  struct Row {
    int r, g, b;
    const char *plain, *eightBit;
  };
  for (const Row& row : {Row{128, 0, 0, "void", "void"}, Row{0, 0, 255, "0", "0"},
                         Row{1, 44, 0, "300", "38"},  // 5.5 + 32 = 37.5
                         Row{2, 20, 0, "532", "66"},  // 2.5 + 64 = 66.5, halves to even
                         Row{35, 40, 0, "9000", "1125"}, Row{35, 41, 0, "-1", "1125"},
                         Row{1, 44, 1, "-1", "-1"}, Row{1, 0, 255, "-1", "-1"}}) {
    session.settings.Mesh8 = false;
    EXPECT_EQ(Extra(ModeId::Land, Rgb(row.r, row.g, row.b)), std::string("Altitude = ") + row.plain);
    session.settings.Mesh8 = true;
    EXPECT_EQ(Extra(ModeId::Land, Rgb(row.r, row.g, row.b)), std::string("Altitude = ") + row.eightBit);
  }
}

}  // namespace
}  // namespace landsmith::test
