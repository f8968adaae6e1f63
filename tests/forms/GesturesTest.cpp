// What a hand does with mouse and keys in the shown window, where a plausible slip would go unseen elsewhere.
#include "WindowRig.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::WindowRig;

class Gestures : public testing::TestWithParam<const char*> {
protected:
  /// Two triangles, A on the left and B on the right, drawn in the mode at hand.
  void DrawTwo() {
    for (const int x : {-55, 55}) {
      rig.Click(x - 35, -60);
      rig.Click(x + 35, -60);
      rig.Click(x, -10);
      rig.Click(x, 80, Qt::RightButton);
    }
  }
  void ClickWith(Qt::KeyboardModifier held, int x, int y) {
    QTest::mouseClick(rig.canvas, Qt::LeftButton, held, rig.FromCentre(x, y));
  }
  void Drag(Qt::KeyboardModifiers held, QPoint from, QPoint to) {
    QTest::mousePress(rig.canvas, Qt::LeftButton, held, rig.FromCentre(from.x(), from.y()));
    QTest::mouseMove(rig.canvas, rig.FromCentre(to.x(), to.y()));
    QTest::mouseRelease(rig.canvas, Qt::LeftButton, held, rig.FromCentre(to.x(), to.y()));
  }
  std::int32_t Selected() const { return rig.session.tool.Selected.SelectedCount; }
  bool Draws(const char* mode) const { return std::string(GetParam()) == mode; }
  std::size_t Count() const {
    const ProjectState& project = rig.session.project;
    return Draws("Line") ? project.Lines.size() : project.Polys.size();
  }
  std::size_t PointsOfA() const {
    const ProjectState& project = rig.session.project;
    return Draws("Line") ? project.Lines[0].Points.size() : project.Polys[0].Points.size();
  }
  bool VertexOfA() const {
    const ProjectState& project = rig.session.project;
    return Draws("Line") ? project.Lines[0].Points[0].Selected : project.Polys[0].Points[0].Selected;
  }

  WindowRig rig;
};

TEST_P(Gestures, ClicksSelectAndShiftAdds) {
  rig.ShowProject(GetParam());
  DrawTwo();
  ASSERT_EQ(Count(), 2U);
  rig.Click(-55, -60);
  EXPECT_EQ(Selected(), 1);
  ClickWith(Qt::ShiftModifier, 55, -60);
  EXPECT_EQ(Selected(), 2);
  rig.Click(-90, -60);
  EXPECT_EQ(Selected(), 1) << "a vertex comes before the figure that it belongs to";
  EXPECT_TRUE(VertexOfA());
  EXPECT_EQ(Count(), 2U);
}

TEST_P(Gestures, ABoxTakesWhatLiesWhollyInside) {
  rig.ShowProject(GetParam());
  DrawTwo();
  Drag(Qt::ControlModifier, {-110, -75}, {-40, 5});
  EXPECT_EQ(Selected(), 0) << "it crosses A";
  Drag(Qt::ControlModifier, {0, 5}, {-110, -75});
  EXPECT_EQ(Selected(), 1) << "A alone, dragged backwards";
  Drag(Qt::ControlModifier | Qt::ShiftModifier, {0, -75}, {110, 5});
  EXPECT_EQ(Selected(), 2);
}

TEST_P(Gestures, KeysChangeTheNextClickOnce) {
  rig.ShowProject(GetParam());
  DrawTwo();
  auto* menu = rig.canvas->findChild<QMenu*>("mnuPUObjects");
  QTest::keyClick(rig.canvas, Qt::Key_R);
  rig.Click(-55, -60);
  EXPECT_TRUE(menu->isVisible()) << "R made it a right click";
  menu->close();
  rig.Click(-55, -60);
  EXPECT_FALSE(menu->isVisible());
  QTest::keyClick(rig.canvas, Qt::Key_Insert);
  rig.Click(-55, -60);
  EXPECT_EQ(PointsOfA(), 4U);
  QTest::keyClick(rig.canvas, Qt::Key_Shift);
  rig.Click(-70, -60);
  EXPECT_EQ(PointsOfA(), 4U) << "another key has ended Ins";
}

TEST_P(Gestures, PasteLastsUntilARightClickAndDeletingAsks) {
  rig.ShowProject(GetParam());
  DrawTwo();
  rig.Click(-55, -60);
  QTest::keyClick(rig.canvas, Qt::Key_C, Qt::ControlModifier);
  QTest::keyClick(rig.canvas, Qt::Key_V, Qt::ControlModifier);
  rig.Click(-120, 60);
  rig.Click(20, 60);
  EXPECT_EQ(Count(), 4U);
  EXPECT_EQ(Selected(), 1) << "the copy alone";
  rig.Click(0, 0, Qt::RightButton);
  EXPECT_FALSE(rig.session.tool.PasteArmed);
  rig.dialogs.answers = {false, true};
  QTest::keyClick(rig.canvas, Qt::Key_Delete);
  EXPECT_EQ(Count(), 4U);
  QTest::keyClick(rig.canvas, Qt::Key_Delete);
  EXPECT_EQ(Count(), 3U);
  ASSERT_EQ(rig.dialogs.questions.size(), 2U);
  EXPECT_EQ(rig.dialogs.questions.back(), "Delete 1 item(s) ?");
}

INSTANTIATE_TEST_SUITE_P(Modes, Gestures, testing::Values("Line", "Poly"),
                         [](const auto& mode) { return std::string(mode.param); });

TEST(GesturesOfTheView, ADragWithZStepsBothWays) {
  WindowRig rig;
  rig.ShowProject("Pointer");
  QTest::keyPress(rig.canvas, Qt::Key_Z);
  QTest::mousePress(rig.canvas, Qt::LeftButton, {}, rig.FromCentre(0, 0));
  const struct {
    int y;
    double zoom;
  } steps[] = {{49, 1}, {50, 0.5}, {1, 0.5}, {0, 1}, {-50, 2}};
  for (const auto& step : steps) {
    QTest::mouseMove(rig.canvas, rig.FromCentre(0, step.y));
    EXPECT_EQ(rig.session.view.Zoom, step.zoom) << step.y;
  }
  QTest::mouseRelease(rig.canvas, Qt::LeftButton, {}, rig.FromCentre(0, -50));
  QTest::keyRelease(rig.canvas, Qt::Key_Z);
  EXPECT_FALSE(rig.window->TheEditor().GestureAlive());
}

TEST(GesturesOnMaps, OnlyTheBorderIsTheMap) {
  WindowRig rig;
  rig.ShowProject("Pointer");
  const LatLon northWest = ToLatLon(rig.session.view, {-80, -60});
  const LatLon southEast = ToLatLon(rig.session.view, {80, 60});
  MapRec map;
  map.Level[0] = map.Level[1] = {160, 120, northWest.lat, southEast.lat, northWest.lon, southEast.lon};
  rig.session.project.Maps.push_back(map);
  rig.Click(0, 0);
  EXPECT_FALSE(rig.session.tool.Selected.MapSelected);
  rig.Click(-80, 0);
  EXPECT_TRUE(rig.session.project.Maps[0].Selected);
}

}  // namespace
}  // namespace landsmith
