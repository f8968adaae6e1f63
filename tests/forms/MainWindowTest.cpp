#include "WindowRig.h"
#include "core/IniFile.h"

#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

#include <array>

namespace landsmith {
namespace {

using test::WindowRig;

class MainWindow : public testing::Test {
protected:
  std::string Caption() const { return rig.window->windowTitle().toStdString(); }
  std::string Panel(const char* name) const {
    return rig.window->findChild<QLabel*>(name)->text().toStdString();
  }

  WindowRig rig;
};

const std::array ProjectItems{"mnuFSaveAs",  "mnuFProperties", "mnuFASurfer", "mnuFBGL",
                              "mnuOPointer", "mnuOZoom",       "mnuOLine",    "mnuVLines",
                              "mnuEInvert",  "tbSaveAction",   "mnuVZoomOut", "mnuSLines"};

TEST_F(MainWindow, StartsWithoutAProject) {
  rig.Show();
  EXPECT_EQ(Caption(), "Landsmith");
  for (const char* name : ProjectItems)
    EXPECT_FALSE(rig.Action(name).isEnabled()) << name;
  for (const char* name : {"mnuFNew", "mnuFOpen", "mnuFPreferences", "mnuFExit"})
    EXPECT_TRUE(rig.Action(name).isEnabled()) << name;
  rig.Click(10, 10);
  EXPECT_TRUE(rig.session.project.Lines.empty());
  EXPECT_EQ(FromQColor(rig.canvas->grab().toImage().pixelColor(5, 5)), CanvasColors{}.Workspace);
}

TEST_F(MainWindow, AnOpenProjectIsNamedAndCanBeWorkedOn) {
  rig.ShowProject();
  EXPECT_EQ(Caption(), "TRIAL  Landsmith");
  for (const char* name : ProjectItems)
    EXPECT_TRUE(rig.Action(name).isEnabled()) << name;
  EXPECT_TRUE(rig.Action("mnuFSave").isEnabled());
  EXPECT_FALSE(rig.Action("mnuEDelete").isEnabled());
  EXPECT_EQ(FromQColor(rig.canvas->grab().toImage().pixelColor(5, 5)), 0xFFFFFF);
  EXPECT_EQ(Panel("sbZoom"), "Zoom = 1");
  EXPECT_EQ(Panel("sbSimulator"), "Simulator: shipped folder");
}

TEST_F(MainWindow, EveryToolbarKeyHasItsButtonPictureAndTip) {
  rig.ShowProject();
  for (const char* key : {"New", "Open", "Save", "Undo", "Pointer", "Zoom", "Map", "Mesh", "Line", "Poly",
                          "Object", "Exclude", "Photo", "Land", "Water", "Fill", "BGL"}) {
    QToolButton& button = rig.Button(key);
    EXPECT_FALSE(button.icon().isNull()) << key;
    EXPECT_FALSE(button.toolTip().isEmpty()) << key;
  }
}

/// Mean lightness of what is drawn in a picture, 0 black to 1 white.
double Lightness(const QIcon& icon) {
  const QImage image = icon.pixmap(24).toImage();
  double sum = 0, weight = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, y);
      sum += color.lightnessF() * color.alphaF();
      weight += color.alphaF();
    }
  }
  return sum / weight;
}

TEST_F(MainWindow, PicturesFollowTheWindowFromLightToDark) {
  rig.ShowProject();
  const QPalette light = QApplication::palette();
  EXPECT_LT(Lightness(rig.Button("Pointer").icon()), 0.4);
  QPalette dark = light;
  dark.setColor(QPalette::Window, QColor(45, 45, 48));
  dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
  QApplication::setPalette(dark);
  QTest::qWait(1);
  EXPECT_GT(Lightness(rig.Button("Pointer").icon()), 0.6);
  EXPECT_EQ(FromQColor(rig.canvas->grab().toImage().pixelColor(5, 5)), 0xFFFFFF);
  QApplication::setPalette(light);
}

TEST_F(MainWindow, OneToolIsPressedAtATime) {
  rig.ShowProject();
  rig.Button("Line").click();
  EXPECT_EQ(rig.session.tool.Mode, ModeId::Line);
  EXPECT_TRUE(rig.Button("Line").isChecked());
  EXPECT_FALSE(rig.Button("Pointer").isChecked());
  EXPECT_FALSE(rig.Action("mnuSAll").isEnabled());
  EXPECT_TRUE(rig.Action("mnuSLines").isEnabled());
  rig.Button("Line").click();  // pressed again it stays
  EXPECT_TRUE(rig.Button("Line").isChecked());
  rig.Action("mnuOPointer").trigger();
  EXPECT_TRUE(rig.Button("Pointer").isChecked());
  EXPECT_TRUE(rig.Action("mnuSAll").isEnabled());
}

TEST_F(MainWindow, TheGridMenuMarksOneLevel) {
  rig.ShowProject();
  EXPECT_TRUE(rig.Action("mnuG0").isChecked());
  for (const char* name : {"mnuG13", "mnuG8", "mnuG8"}) {
    rig.Action(name).trigger();
    for (const int level : {0, 5, 8, 13, 19}) {
      const std::string item = "mnuG" + std::to_string(level);
      EXPECT_EQ(rig.Action(item).isChecked(), item == name) << item << " after " << name;
    }
  }
  EXPECT_EQ(rig.session.view.GridLod, 8);
}

TEST_F(MainWindow, ShowAllLeavesTheKindOfTheModeAloneAndBringsTheOthersBack) {
  rig.ShowProject("Line");
  EXPECT_TRUE(rig.Action("mnuVAll").isChecked());
  rig.Action("mnuVAll").trigger();
  EXPECT_FALSE(rig.Action("mnuVAll").isChecked());
  EXPECT_TRUE(rig.Action("mnuVLines").isChecked());
  EXPECT_FALSE(rig.Action("mnuVObjects").isChecked());
  EXPECT_FALSE(rig.Action("mnuVObjects").isEnabled());
  rig.Button("Pointer").click();
  EXPECT_TRUE(rig.Action("mnuSLines").isEnabled());
  for (const char* name : {"mnuSObjects", "mnuSAll", "mnuESelectAll"})
    EXPECT_FALSE(rig.Action(name).isEnabled()) << name;
  rig.Action("mnuVAll").trigger();
  for (const char* name : {"mnuVObjects", "mnuSObjects", "mnuSAll", "mnuESelectAll"})
    EXPECT_TRUE(rig.Action(name).isEnabled()) << name;
  EXPECT_TRUE(rig.Action("mnuVObjects").isChecked());
}

TEST_F(MainWindow, HoveringTellsThePlace) {
  rig.ShowProject();
  // The view's centre is 40 north, 10 west; the canvas may be one pixel wider than even.
  QTest::mouseMove(rig.canvas, rig.FromCentre(50, 30));
  QTest::mouseMove(rig.canvas, rig.FromCentre(0, 0));
  QTest::qWait(1);
  // x = 170 of 3.75 wide columns: 45.33; y = 50 of 2.8125 high rows: 17.78.
  EXPECT_EQ(Panel("sbLod5"), " Lod5 = 45 17");
}

TEST_F(MainWindow, TheWheelZoomsUnlessAKeyIsHeld) {
  rig.ShowProject();
  const auto turn = [&](int delta, Qt::KeyboardModifiers held) {
    const QPointF at(rig.canvas->rect().center());
    QWheelEvent event(at, rig.canvas->mapToGlobal(at), {}, {0, delta}, Qt::NoButton, held, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(rig.canvas, &event);
  };
  turn(120, Qt::NoModifier);
  EXPECT_EQ(Panel("sbZoom"), "Zoom = 2");
  turn(-120, Qt::ShiftModifier);
  EXPECT_EQ(Panel("sbZoom"), "Zoom = 2");
}

TEST_F(MainWindow, ClosingAsksAboutUnsavedData) {
  rig.ShowProject();
  rig.session.project.Dirty = true;
  for (const bool answer : {false, true}) {
    rig.dialogs.answers = {answer};
    EXPECT_EQ(rig.window->close(), answer);
    EXPECT_EQ(rig.window->isVisible(), !answer);
    EXPECT_EQ(rig.dialogs.questions.back(), "You did not save your data! Really want to exit ?");
  }
}

TEST_F(MainWindow, RemembersItsSizeApartFromTheSettings) {
  rig.ShowProject();
  rig.window->resize(777, 555);
  rig.window->close();
  EXPECT_EQ(FindIniKey(ReadWholeFile(rig.session.folders.IniPath()), "Window", "Geometry"), "");
  rig.Show();
  EXPECT_EQ(rig.window->size(), QSize(777, 555));
  WriteIniKey(rig.folder / "window.ini", "Window", "Geometry", "no base64 at all");
  rig.Show();  // what no window wrote is passed over
  EXPECT_TRUE(rig.window->isVisible());
}

TEST_F(MainWindow, ANarrowWindowHasNoToolbar) {
  rig.ShowProject();
  auto* bar = rig.window->findChild<QWidget*>("toolBar");
  rig.window->resize(679, 500);
  EXPECT_FALSE(bar->isVisible());
  rig.window->resize(680, 500);
  EXPECT_TRUE(bar->isVisible());
  rig.Action("mnuVToolbar").trigger();
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(MainWindow, RecentFilesAreInTheFileMenu) {
  rig.Show();
  EXPECT_FALSE(rig.Action("mnuSep").isVisible());
  EXPECT_FALSE(rig.Action("mnuRecentFile1").isVisible());
  const std::filesystem::path first = rig.SavedProject("Rock & Sand");
  rig.window->TheEditor().OpenProject(first);
  rig.window->TheEditor().OpenProject(rig.SavedProject("Second"));
  EXPECT_TRUE(rig.Action("mnuSep").isVisible());
  EXPECT_TRUE(rig.Action("mnuRecentFile1").text().endsWith("Second.LSP"));
  EXPECT_TRUE(rig.Action("mnuRecentFile2").text().endsWith("Rock && Sand.LSP"));
  rig.Action("mnuRecentFile2").trigger();
  EXPECT_EQ(Caption(), "ROCK & SAND  Landsmith");
}

TEST_F(MainWindow, TutorialsAreOnWhereThereIsOne) {
  std::filesystem::create_directories(rig.session.folders.Html());
  WriteWholeFile(rig.session.folders.Html() / "Island Tutorial.pdf", "x");
  const std::filesystem::path ini = rig.session.folders.IniPath();
  WriteIniKey(ini, "Tutorials", "Title1", "Cliffs & Bays");
  WriteIniKey(ini, "Tutorials", "Link2", "http://example.org/a");
  WriteIniKey(ini, "Tutorials", "Link4", "missing.pdf");
  rig.Show();  // the first New reads the settings
  QMetaObject::invokeMethod(rig.window->findChild<QMenu*>("mnuHelp"), "aboutToShow");
  EXPECT_EQ(rig.Action("mnuHTutorial1").text().toStdString(), "Cliffs && Bays");
  const std::array enabled{true, true, false, false, false};
  for (std::size_t i = 0; i < enabled.size(); ++i)
    EXPECT_EQ(rig.Action("mnuHTutorial" + std::to_string(i + 1)).isEnabled(), enabled[i]) << i;
  rig.Action("mnuHTutorial2").trigger();
  rig.Action("mnuHTutorial1").trigger();
  ASSERT_EQ(rig.tools.opened.size(), 2U);
  EXPECT_EQ(rig.tools.opened[0], "http://example.org/a");
  EXPECT_TRUE(FindExisting(rig.tools.opened[1]).has_value()) << rig.tools.opened[1];
}

bool Drop(QWidget& window, const std::filesystem::path& file) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
  QDragEnterEvent enter({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QApplication::sendEvent(&window, &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop({20, 20}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&window, &drop);
  QTest::qWait(1);
  return true;
}

TEST_F(MainWindow, AProjectFileCanBeDropped) {
  rig.Show();
  EXPECT_TRUE(Drop(*rig.window, rig.SavedProject("Dropped")));
  EXPECT_EQ(Caption(), "DROPPED  Landsmith");
  EXPECT_FALSE(Drop(*rig.window, rig.folder / "picture.bmp"));

  const std::filesystem::path other = rig.SavedProject("Other");
  rig.session.project.Dirty = true;
  EXPECT_TRUE(Drop(*rig.window, other));  // the question is answered No
  EXPECT_EQ(Caption(), "DROPPED  Landsmith");
  EXPECT_EQ(rig.dialogs.questions.back(), "You did not save your data! Continue ?");
}

TEST_F(MainWindow, TheBitmapsOfTheMapsAreChosenInTheViewMenu) {
  rig.ShowProject();
  ASSERT_TRUE(rig.Action("mnuVSummer").isChecked());
  rig.Action("mnuVHard").trigger();
  EXPECT_EQ(rig.session.view.MapView, "HardWinter");
  EXPECT_TRUE(rig.Action("mnuVHard").isChecked());
  EXPECT_FALSE(rig.Action("mnuVSummer").isChecked());
  rig.session.view.MapView.clear();  // as in a project that is new
  rig.window->RefreshUi();
  for (const char* name : {"mnuVSummer", "mnuVMesh"})
    EXPECT_FALSE(rig.Action(name).isEnabled()) << name;
  EXPECT_FALSE(rig.window->findChild<QMenu*>("mnuVBitmap")->isEnabled());
}

TEST_F(MainWindow, AHintThatIsTooLongLeavesTheOthersTheirRoom) {
  rig.ShowProject();
  const auto right = [this](const char* name) {
    return rig.window->findChild<QWidget*>(name)->geometry().right();
  };
  const struct {
    int width;
    const char *hint, *neighbour;
    bool toolbar;
  } rows[] = {{1200, "tbHint", "tbBGL", true}, {1600, "sbHint", "sbSimulator", false}};
  for (const auto& row : rows) {
    rig.window->resize(row.width, 500);
    if (!row.toolbar) rig.Action("mnuVToolbar").trigger();
    rig.window->SetHint("Click: select");
    QTest::qWait(1);
    auto* hint = rig.window->findChild<QLabel*>(row.hint);
    EXPECT_TRUE(hint->isVisible() && hint->width() > 100) << row.hint << " " << hint->width();
    const int before = right(row.neighbour);
    rig.window->SetHint(std::string(2000, 'x'));
    QTest::qWait(1);
    EXPECT_EQ(right(row.neighbour), before) << row.neighbour;
    EXPECT_EQ(rig.window->width(), row.width);
    EXPECT_EQ(hint->toolTip().size(), 2000);
  }
}

}  // namespace
}  // namespace landsmith
