#include "WindowRig.h"

#include <QLineEdit>
#include <QMenu>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace landsmith {
namespace {

using test::WindowRig;

class Canvas : public testing::Test {
protected:
  /// A line of four points along the middle of the canvas, ended.
  void DrawRoad() {
    for (const int x : {-90, -30, 30, 90})
      rig.Click(x, 0);
    rig.Click(90, 60, Qt::RightButton);
  }
  const LineRec& Road() const { return rig.session.project.Lines[0]; }

  WindowRig rig;
};

TEST_F(Canvas, ClicksDrawALineAndTheRightButtonEndsIt) {
  rig.ShowProject("Line");
  rig.session.settings.LnColorUns = 77;
  rig.session.settings.DefPWidth = 12;
  rig.Click(-100, 20);
  EXPECT_TRUE(rig.session.project.Lines.empty()) << "the line is made by its second point";
  rig.Click(0, -40);
  rig.Click(120, 60);
  rig.Click(150, 60, Qt::RightButton);
  ASSERT_EQ(rig.session.project.Lines.size(), 1U);

  // At zoom 1 a cell of 90/8192 degrees is 8 pixels high, and at 40 degrees north a degree of longitude is
  // cos(40) of that wide. The offset counts from the real middle, which may lie between two pixels.
  const double perDegree = 8 / (90.0 / 8192);
  const double perDegreeLon = perDegree * std::cos(40 * 3.14159265358979 / 180);
  const double halfX = rig.canvas->width() % 2 * 0.5, halfY = rig.canvas->height() % 2 * 0.5;
  const std::array<std::array<double, 2>, 3> offsets{{{-100, 20}, {0, -40}, {120, 60}}};
  ASSERT_EQ(Road().Points.size(), 3U);
  for (std::size_t i = 0; i < offsets.size(); ++i) {
    EXPECT_NEAR(Road().Points[i].Lon, -10 + (offsets[i][0] - halfX) / perDegreeLon, 1e-9) << i;
    EXPECT_NEAR(Road().Points[i].Lat, 40 - (offsets[i][1] - halfY) / perDegree, 1e-9) << i;
    EXPECT_EQ(Road().Points[i].Wid, 12) << i;
  }
  EXPECT_EQ(Road().Color, 77);
  EXPECT_EQ(Road().Box.SLat, Road().Points[2].Lat);
  EXPECT_TRUE(rig.session.project.Dirty);
  rig.Click(-100, -80);  // ended: this begins another line
  EXPECT_EQ(Road().Points.size(), 3U);
}

TEST_F(Canvas, ADoubleClickAddsOnePointForEachPress) {
  rig.ShowProject("Line");
  rig.Click(-50, 0);
  const QPoint at = rig.FromCentre(50, 0);
  QTest::mousePress(rig.canvas, Qt::LeftButton, {}, at);
  QTest::mouseRelease(rig.canvas, Qt::LeftButton, {}, at);
  QTest::mouseDClick(rig.canvas, Qt::LeftButton, {}, at);
  QTest::mouseRelease(rig.canvas, Qt::LeftButton, {}, at);
  EXPECT_EQ(Road().Points.size(), 3U);
}

TEST_F(Canvas, WhatIsDrawnIsOnTheScreen) {
  rig.session.settings.LnColorUns = Rgb(0, 0, 255);
  rig.ShowProject("Line");
  rig.session.settings.DefPWidth = 200;
  rig.window->TheEditor().ZoomAt({}, ZoomStep::In);
  DrawRoad();
  rig.Button("Pointer").click();
  const QImage shown = rig.canvas->grab().toImage();
  EXPECT_NE(FromQColor(shown.pixelColor(rig.FromCentre(60, 0))), 0xFFFFFF);
  EXPECT_EQ(FromQColor(shown.pixelColor(rig.FromCentre(60, 40))), 0xFFFFFF);
}

TEST_F(Canvas, AVertexIsDraggedWithTheMouse) {
  rig.ShowProject("Line");
  DrawRoad();
  const LinePoint before = Road().Points[1];
  const LinePoint last = Road().Points[3];
  rig.session.undo.Reset();
  QTest::mousePress(rig.canvas, Qt::LeftButton, {}, rig.FromCentre(-30, 0));
  QTest::qWait(60);  // a press counts as a drag only after a moment
  for (const int y : {20, 40, 60})
    QTest::mouseMove(rig.canvas, rig.FromCentre(-30, y));
  QTest::mouseRelease(rig.canvas, Qt::LeftButton, {}, rig.FromCentre(-30, 60));
  EXPECT_NEAR(Road().Points[1].Lat, before.Lat - 60 / (8 / (90.0 / 8192)), 1e-6);
  EXPECT_NEAR(Road().Points[1].Lon, before.Lon, 1e-9);
  EXPECT_EQ(Road().Points[3].Lat, last.Lat);
  EXPECT_FALSE(rig.window->TheEditor().GestureAlive());
  EXPECT_TRUE(rig.Action("mnuEUndo").isEnabled());
  QTest::mouseClick(rig.canvas, Qt::MiddleButton, {}, rig.FromCentre(0, 0));
  EXPECT_TRUE(rig.Action("mnuEUndo").isEnabled()) << "the end of a pan brings it back";
}

TEST_F(Canvas, KeysCountWhereTheyWerePressed) {
  rig.ShowProject("Line");
  QTest::keyPress(rig.canvas, Qt::Key_P);
  EXPECT_TRUE(rig.session.tool.PanKeyDown);
  QLineEdit other(rig.window.get());
  other.show();
  other.setFocus();
  QTest::keyRelease(&other, Qt::Key_P);
  EXPECT_FALSE(rig.session.tool.PanKeyDown);
  rig.canvas->setFocus();
  QTest::keyRelease(rig.canvas, Qt::Key_R);  // a letter that chose a command of a menu
  EXPECT_FALSE(rig.session.tool.NextClickIsRight);
  QTest::keyClick(rig.canvas, Qt::Key_Insert);
  EXPECT_TRUE(rig.session.tool.InsertPoints);
  QTest::keyClick(rig.canvas, Qt::Key_F5);
  EXPECT_FALSE(rig.session.tool.InsertPoints) << "any key ends it";
}

TEST_F(Canvas, TheMiddleButtonPansWhileALineIsUnderWay) {
  rig.ShowProject("Line");
  rig.Click(-50, 0);
  const double lon = rig.session.view.LonDispCenter;
  QTest::mousePress(rig.canvas, Qt::MiddleButton, {}, rig.FromCentre(0, 0));
  QTest::mouseMove(rig.canvas, rig.FromCentre(40, 0));
  QTest::mouseRelease(rig.canvas, Qt::MiddleButton, {}, rig.FromCentre(40, 0));
  EXPECT_LT(rig.session.view.LonDispCenter, lon);
  rig.Click(50, 0);
  EXPECT_EQ(Road().Points.size(), 2U);
}

TEST_F(Canvas, TheRightButtonOpensTheMenuOfWhatIsThere) {
  rig.ShowProject("Line");
  DrawRoad();
  rig.Button("Pointer").click();
  rig.Action("mnuSAll").trigger();
  EXPECT_TRUE(rig.Action("mnuEDelete").isEnabled());
  EXPECT_TRUE(rig.Action("mnuSLines").isChecked()) << "all lines are selected";
  rig.Click(0, 0, Qt::RightButton);
  auto* objects = rig.canvas->findChild<QMenu*>("mnuPUObjects");
  ASSERT_TRUE(objects->isVisible());
  EXPECT_EQ(rig.window->findChild<QAction*>("mnuPUObjectsItem")->text().toStdString(), "LINE # 1");
  objects->close();
  rig.dialogs.answers = {true};
  rig.window->findChild<QAction*>("mnuPUObjectsDelete")->trigger();
  EXPECT_EQ(rig.dialogs.questions.back(), "Delete this Line ?");
  EXPECT_TRUE(rig.session.project.Lines.empty());

  rig.Click(0, 0, Qt::RightButton);
  auto* general = rig.canvas->findChild<QMenu*>("mnuPUGeneral");
  ASSERT_TRUE(general->isVisible());
  EXPECT_EQ(rig.window->findChild<QAction*>("mnuPUGeneralItem")->text().toStdString(), "TRIAL");
  general->close();
  rig.window->findChild<QAction*>("mnuPUGeneralZI")->trigger();
  EXPECT_EQ(rig.session.view.Zoom, 2);
}

struct KeyRow {
  const char* name;
  int qtKey;
  Qt::KeyboardModifiers held;
  int code;  ///< 0: the editor does not know it
};

TEST(CanvasKeys, HaveTheCodesThatTheEditorKnows) {
  const std::array rows{
      KeyRow{"Delete", Qt::Key_Delete, {}, 46},
      KeyRow{"Esc", Qt::Key_Escape, {}, 27},
      KeyRow{"Ins", Qt::Key_Insert, {}, 45},
      KeyRow{"Space", Qt::Key_Space, {}, 32},
      KeyRow{"Ctrl", Qt::Key_Control, Qt::ControlModifier, 17},
      KeyRow{"left", Qt::Key_Left, {}, 37},
      KeyRow{"up", Qt::Key_Up, {}, 38},
      KeyRow{"right", Qt::Key_Right, {}, 39},
      KeyRow{"down of the numeric pad", Qt::Key_Down, Qt::KeypadModifier, 40},
      KeyRow{"numeric pad plus", Qt::Key_Plus, Qt::KeypadModifier, 107},
      KeyRow{"numeric pad minus", Qt::Key_Minus, Qt::KeypadModifier, 109},
      KeyRow{"plus of the main pad", Qt::Key_Plus, Qt::ShiftModifier, 0},
      KeyRow{"I", Qt::Key_I, {}, 73},
      KeyRow{"Alt P", Qt::Key_P, Qt::AltModifier, 80},
      KeyRow{"F5", Qt::Key_F5, {}, 0},
  };
  for (const KeyRow& row : rows) {
    const std::optional<KeyInput> key = ToKeyInput(QKeyEvent(QEvent::KeyPress, row.qtKey, row.held));
    ASSERT_EQ(key.has_value(), row.code != 0) << row.name;
    if (!key) continue;
    EXPECT_EQ(key->code, row.code) << row.name;
    EXPECT_EQ(key->alt, row.held.testFlag(Qt::AltModifier)) << row.name;
  }
}

}  // namespace
}  // namespace landsmith
