// The properties of a map, and its calibration with clicks on the canvas.
#include "Controls.h"
#include "WindowRig.h"
#include "core/Color.h"
#include "forms/frmCalibrate.h"
#include "forms/frmMapsP.h"

#include <QImage>
#include <QLabel>

namespace landsmith::test {
namespace {

/// Four quarters: red and green above, blue and white below.
std::filesystem::path Quarters(const TempFolder& folder, const std::string& name, int side = 200) {
  QImage picture(side, side, QImage::Format_RGB32);
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x)
      picture.setPixelColor(
          x, y, y < side / 2 ? (x < side / 2 ? Qt::red : Qt::green) : (x < side / 2 ? Qt::blue : Qt::white));
  std::filesystem::path file = folder / name;
  EXPECT_TRUE(picture.save(QString::fromStdString(file.string())));
  return file;
}

struct MapForms : testing::Test {
  WindowRig rig;
  std::filesystem::path main = Quarters(rig.folder, "coast.bmp");

  MapForms() {
    rig.ShowProject();
    rig.session.settings.DecimalDegrees = true;
    MapRec map;
    map.Name = "MAP01";
    map.BMPSu = main.string();
    map.Level[1] = {200, 200, 40.2, 40, -10, -9.8};
    {
      Edit edit(rig.session, TheEditor().Canvas());
      edit.Project().Maps.push_back(map);
    }
    TheEditor().GoTo({40.1, -9.9});
  }
  Editor& TheEditor() { return rig.window->TheEditor(); }
  const MapRec& Map() { return rig.session.project.Maps[0]; }
  std::string LastMessage() { return rig.dialogs.messages.empty() ? "" : rig.dialogs.messages.back().text; }
};

TEST_F(MapForms, OkStoresOneStepOfUndoAndKeepsWhatIsFinerThanItsText) {
  rig.session.project.Maps.Edit(0).Level[1].NLat = 40.2000000001;
  const MapRec before = Map();
  frmMapsP form(rig.session, TheEditor(), rig.window.get());
  form.ShowMap(0);
  EXPECT_EQ(Find<QLabel>(form, "lbDegLon").text(), "0.001000000");
  EXPECT_FALSE(Find<QWidget>(form, "cmdCalibrateLand").isEnabled()) << "there is no land bitmap";
  rig.dialogs.files = {Quarters(rig.folder, "land.bmp", 64), rig.folder / "Trial.LSP",
                       rig.folder / "winter.jpg"};
  Press(form, "cmdLand");
  Press(form, "cmdMesh");
  EXPECT_EQ(LastMessage(), "Mesh Map must have Bitmap file format!");
  EXPECT_EQ(TextOf(form, "txtBMPMesh"), "");
  Press(form, "cmdWinter");
  for (const char* refused : {"south", "40.3"}) {
    Type(form, "txtSLat0", refused);
    rig.dialogs.messages.clear();
    Press(form, "cmdOK");
    EXPECT_EQ(LastMessage(), "Check Latitude & Longitude Values") << refused;
    EXPECT_EQ(Map(), before);
  }
  Type(form, "txtSLat0", "39.5");
  Press(form, "cmdOK");
  EXPECT_EQ(form.result(), QDialog::Accepted);
  EXPECT_EQ(Map().Level[1], (MapLevel{200, 200, 40.2000000001, 39.5, -10, -9.8}));
  EXPECT_EQ(Map().Level[2].COLS, 64);
  EXPECT_EQ(Map().BMPLC, (rig.folder / "land.bmp").string());
  EXPECT_EQ(Map().BMPWi, (rig.folder / "winter.jpg").string());
  EXPECT_EQ(rig.session.view.MapView, "Winter");
  TheEditor().Undo();
  EXPECT_EQ(Map().BMPWi, "");
}

TEST_F(MapForms, TheDataFileIsOverwrittenOnYesAlone) {
  rig.session.settings.DecimalDegrees = false;
  const std::filesystem::path data = rig.folder / "coast.TXT";
  WriteWholeFile(data, "mine");
  frmMapsP form(rig.session, TheEditor(), rig.window.get());
  form.ShowMap(0);
  Type(form, "txtNLat0", "40 30 00 N");
  rig.dialogs.answers = {false, true};
  Press(form, "cmdData");
  EXPECT_EQ(ReadWholeFile(data), "mine");
  EXPECT_EQ(rig.dialogs.questions.back(),
            "\n\nThe file:\n\n" + data.string() + "\n\nalready exists! Overwrite?");
  Press(form, "cmdData");
  EXPECT_EQ(ReadWholeFile(data).find("[GEOGRAPHIC]\r\nNorth=40.5\r\nSouth=40\r\nWest=-10\r\nEast=-9.8\r\n"),
            0U);
}

TEST_F(MapForms, ClicksOnTheCanvasCalibrateTheView) {
  rig.session.project.Maps.Edit(0).BMPLC = Quarters(rig.folder, "land.bmp").string();
  rig.session.project.Maps.Edit(0).Level[2] = Map().Level[1];
  rig.session.undo.Reset();
  TheEditor().SetMapView("Land");
  EXPECT_FALSE(rig.Action("mnuEUndo").isEnabled());
  const MapLevel mainSet = Map().Level[1];
  frmCalibrate::Open(rig.session, TheEditor(), 0, rig.window.get());
  auto* form = rig.window->findChild<frmCalibrate*>();
  ASSERT_NE(form, nullptr);

  // The bitmap is 0.2 degrees a side around the middle of the canvas.
  const double perDegree = rig.session.view.Scale.PixelsPerDegLat;
  const int quarter = static_cast<int>(0.05 * perDegree);
  const int far = static_cast<int>(0.2 * perDegree);
  Press(*form, "cmdPP1");
  EXPECT_FALSE(form->isVisible());
  rig.Click(0, -far);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(LastMessage(), "Point is not on the map!");
  Press(*form, "cmdPP1");
  rig.Click(-quarter, -quarter);
  Press(*form, "cmdPP2");
  rig.Click(quarter, quarter);
  Press(*form, "cmdLL1");
  rig.Click(quarter, 0);
  EXPECT_EQ(TextOf(*form, "txtLat1").substr(0, 4), "40.1");
  Press(*form, "cmdLL2");
  rig.Click(0, 0, Qt::RightButton);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(TextOf(*form, "txtLat2"), "");
  // 36 pixels of the canvas are 0.0494 degrees, 49.4 pixels of the bitmap.
  EXPECT_EQ(TextOf(*form, "txtPY1"), "51");
  EXPECT_EQ(TextOf(*form, "txtPY2"), "149");
  EXPECT_TRUE(rig.session.tool.Selected.SelectedCount == 0) << "no click went to the tool";

  Type(*form, "txtLat1", "51");
  Type(*form, "txtLon1", "7");
  Type(*form, "txtLat2", "50");
  Type(*form, "txtLon2", "8");
  // Typed anew, so that the fractions of a pixel that the clicks had do not count.
  for (const char* box : {"txtPX1", "txtPY1"})
    Type(*form, box, "50.0");
  for (const char* box : {"txtPX2", "txtPY2"})
    Type(*form, box, "150.0");
  Press(*form, "cmdCalibrate");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Map().Level[2], (MapLevel{200, 200, 51.5, 49.5, 6.5, 8.5}));
  EXPECT_EQ(Map().Level[0], Map().Level[2]);
  EXPECT_EQ(Map().Level[1], mainSet);
  rig.Action("mnuEUndo").trigger();
  EXPECT_EQ(Map().Level[0], mainSet);
}

TEST_F(MapForms, ACalibrationEndsWithItsMap) {
  rig.session.project.Maps.Edit(0).BMPLC = (rig.folder / "gone.bmp").string();
  TheEditor().SetMapView("Land");
  frmCalibrate::Open(rig.session, TheEditor(), 0, rig.window.get());
  EXPECT_EQ(LastMessage(), "The bitmap under calibration is not shown!");
  EXPECT_EQ(rig.window->findChild<frmCalibrate*>(), nullptr);
  rig.dialogs.messages.clear();

  TheEditor().SetMapView("Summer");
  frmCalibrate::Open(rig.session, TheEditor(), 0, rig.window.get());
  auto* form = rig.window->findChild<frmCalibrate*>();
  Press(*form, "cmdPP1");
  TheEditor().Undo();  // the map is gone
  ASSERT_TRUE(rig.session.project.Maps.empty());
  rig.Click(0, 0);
  EXPECT_EQ(LastMessage(), "The bitmap under calibration is not shown!");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(MapForms, TheCanvasShowsTheBitmapInItsPlace) {
  const double perDegree = rig.session.view.Scale.PixelsPerDegLat;
  const int quarter = static_cast<int>(0.05 * perDegree);
  const auto at = [&](int x, int y) {
    const QPoint place = rig.FromCentre(x, y);
    return rig.canvas->Base().Pixel({place.x(), place.y()});
  };
  EXPECT_EQ(at(-quarter, -quarter), Rgb(255, 0, 0));
  EXPECT_EQ(at(quarter, -quarter), Rgb(0, 255, 0));
  EXPECT_EQ(at(-quarter, quarter), Rgb(0, 0, 255));
  for (int step = 0; step < 12; ++step)
    TheEditor().ZoomAt({}, ZoomStep::In);
  EXPECT_EQ(at(-40, -40), Rgb(255, 0, 0)) << "a pixel of the bitmap is far larger than the canvas";
  EXPECT_EQ(at(40, -40), Rgb(0, 255, 0));
}

}  // namespace
}  // namespace landsmith::test
