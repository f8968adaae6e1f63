// The forms that stand beside the canvas: find, one vertex in short and in all grid systems, and the display
// centre; driven with the keyboard and the mouse.
#include "Controls.h"
#include "WindowRig.h"
#include "forms/frmFind.h"
#include "forms/frmPoints0P.h"
#include "forms/frmPointsP.h"
#include "support/Builders.h"

#include <QLabel>
#include <QMenu>

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

class PointForms : public testing::Test {
protected:
  PointForms() {
    rig.ShowProject();
    rig.window->TheEditor().GoTo({47.5, 8.25});
    rig.session.project.Lines = {
        ALine().Named("Coast road").Through({{47.5, 8.25}, {47.5, 8.26}, {47.51, 8.26}}),
        ALine().Through({{47.6, 8.3}, {47.6, 8.4}})};
    PolyRec lake;
    for (const double lon : {8.1, 8.2, 8.15})
      lake.Points.push_back({lon, lon + 39, 50, false});
    SetPathBounds(lake);
    rig.session.project.Polys = {lake};
    rig.window->TheEditor().Canvas().DisplayAll();
  }
  ~PointForms() override { rig.window->TheEditor().State().project.Dirty = false; }

  template <class Form>
  Form* Open() const {
    for (Form* form : rig.window->findChildren<Form*>())
      if (form->isVisible()) return form;
    return nullptr;
  }
  /// The short form of a vertex, as its context menu opens it.
  frmPoints0P& OpenPoint(const char* kind, std::size_t item, std::size_t point) {
    PopupTarget target;
    target.Kind = kind;
    target.Item = item;
    target.Point = point;
    rig.window->TheEditor().ShowTargetProperties(target);
    auto* form = Open<frmPoints0P>();
    if (!form) throw std::runtime_error("no form");
    return *form;
  }
  const LinePoint& LineVertex(std::size_t line, std::size_t point) const {
    return rig.session.project.Lines[line].Points[point];
  }
  static std::string Label(QWidget& form, const char* name) {
    return landsmith::test::Find<QLabel>(form, name).text().toStdString();
  }
  std::string LastMessage() const {
    return rig.dialogs.messages.empty() ? "" : rig.dialogs.messages.back().text;
  }

  WindowRig rig;
};

TEST_F(PointForms, FindStaysOpenAndEnterGoesOn) {
  rig.Action("mnuEFind").trigger();
  frmFind& form = *Open<frmFind>();
  QTest::keyClicks(form.findChild<QLineEdit*>("txtSearch"), "coast");
  EXPECT_EQ(TextOf(form, "txtSearch"), "COAST");
  QTest::keyClick(form.findChild<QLineEdit*>("txtSearch"), Qt::Key_Return);
  EXPECT_TRUE(rig.session.project.Lines[0].Selected);
  EXPECT_TRUE(form.isVisible());
  EXPECT_NEAR(rig.session.view.LatDispCenter, 47.505, 1e-9);
  EXPECT_TRUE(rig.Action("mnuESnapLOD").isEnabled()) << "the menus know what is selected";
  Type(form, "txtSearch", "mill");
  QTest::keyClick(&form, Qt::Key_Return);
  EXPECT_EQ(LastMessage(), "Line not found !");
  Press(form, "ckLines");
  EXPECT_FALSE(landsmith::test::Find<QAbstractButton>(form, "cmdNext").isEnabled()) << "nowhere to look";
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(PointForms, AVertexIsEditedAsOneChangeAndOnlyWhereItWasTyped) {
  const LinePoint before = LineVertex(0, 1);
  frmPoints0P& form = OpenPoint("PtInLine", 0, 1);
  EXPECT_EQ(Label(form, "lbTitle"), "Coast road  LINE # 1");
  EXPECT_EQ(Label(form, "lbPoint"), "PT # 2");
  EXPECT_EQ(TextOf(form, "txtLat"), "47° 30' 00.0000'' N");
  Press(form, "cmdOK");
  EXPECT_FALSE(rig.session.project.Dirty) << "nothing was typed";

  frmPoints0P& again = OpenPoint("PtInLine", 0, 1);
  Type(again, "txtLat", "95");
  Press(again, "cmdOK");
  EXPECT_EQ(LastMessage(), "Check Latitude and longitude!");
  Type(again, "txtLat", "47 45");
  Type(again, "txtWidth", "");
  Press(again, "cmdOK");
  EXPECT_EQ(LastMessage(), "Check Width!");
  Type(again, "txtWidth", "300");
  EXPECT_EQ(LastMessage(), "Maximum Line Width is 255 meters!");
  EXPECT_EQ(TextOf(again, "txtWidth"), "255");
  EXPECT_TRUE(again.isVisible());
  EXPECT_FALSE(rig.session.project.Dirty);
  QTest::keyClick(again.findChild<QLineEdit*>("txtWidth"), Qt::Key_Return);
  EXPECT_FALSE(again.isVisible());
  EXPECT_EQ(LineVertex(0, 1).Lat, 47.75);
  EXPECT_EQ(LineVertex(0, 1).Lon, before.Lon) << "not rounded to its text";
  EXPECT_EQ(LineVertex(0, 1).Wid, 255);
  EXPECT_EQ(rig.session.project.Lines[0].Box.NLat, 47.75);
  EXPECT_TRUE(rig.Action("mnuEUndo").isEnabled());
  rig.Action("mnuEUndo").trigger();
  EXPECT_EQ(LineVertex(0, 1).Lat, before.Lat);
  EXPECT_FALSE(rig.Action("mnuEUndo").isEnabled());
}

TEST_F(PointForms, TheFormFollowsTheWalkAndWalksItself) {
  frmPoints0P& form = OpenPoint("PtInLine", 0, 0);
  EXPECT_NEAR(rig.session.view.LonDispCenter, 8.25, 1e-12) << "the view stays where the menu was opened";
  QTest::keyClick(rig.canvas, Qt::Key_Up);
  EXPECT_EQ(Label(form, "lbPoint"), "PT # 2");
  EXPECT_NEAR(rig.session.view.LonDispCenter, 8.26, 1e-12);
  QTest::keyClick(rig.canvas, Qt::Key_Right);
  EXPECT_EQ(Label(form, "lbTitle") + Label(form, "lbPoint"), "LINE # 2PT # 1");
  rig.Click(200, 150);  // the walk is over
  QTest::keyClick(rig.canvas, Qt::Key_Up);
  EXPECT_EQ(Label(form, "lbPoint"), "PT # 1");
  QTest::keyClick(form.findChild<QLineEdit*>("txtLat"), Qt::Key_Down);
  EXPECT_EQ(Label(form, "lbPoint"), "PT # 2");
  Press(form, "cmdNext");
  QTest::keyClick(form.findChild<QLineEdit*>("txtLat"), Qt::Key_PageUp);
  EXPECT_EQ(Label(form, "lbTitle") + Label(form, "lbPoint"), "Coast road  LINE # 1PT # 1");
  EXPECT_TRUE(LineVertex(0, 0).Selected);
  EXPECT_EQ(rig.session.tool.Selected.SelectedCount, 1);
}

TEST_F(PointForms, AFormWhoseVertexIsGoneClosesAndWritesNothing) {
  struct Row {
    const char* name;
    void (*change)(ProjectState&);
  };
  Editor& editor = rig.window->TheEditor();
  const Row rows[] = {
      {"deleted", [](ProjectState& p) { p.Lines.Erase(0); }},
      {"vertex before it deleted",
       [](ProjectState& p) {
         auto& points = p.Lines.Edit(0).Points;
         points.erase(points.begin());
       }},
  };
  for (const Row& row : rows) {
    frmPoints0P& form = OpenPoint("PtInLine", 0, 2);
    Type(form, "txtWidth", "77");
    const auto lines = rig.session.project.Lines;
    row.change(rig.session.project);
    const auto changed = rig.session.project.Lines;
    Press(form, "cmdOK");
    EXPECT_EQ(LastMessage(), "This point is no longer there!") << row.name;
    EXPECT_FALSE(form.isVisible()) << row.name;
    EXPECT_TRUE(rig.session.project.Lines == changed) << row.name;
    rig.session.project.Lines = lines;
    rig.window->RefreshUi();
  }
  OpenPoint("PtInLine", 1, 1);
  QTest::keyClick(rig.canvas, Qt::Key_Escape);
  rig.session.project.Lines.Erase(1);
  rig.window->RefreshUi();
  EXPECT_EQ(Open<PointForm>(), nullptr) << "noticed without a press in the form";
  OpenPoint("PtInLine", 0, 1);
  rig.session.project.Dirty = false;
  editor.OpenProject(rig.SavedProject("Other"));
  EXPECT_EQ(Open<PointForm>(), nullptr);
}

TEST_F(PointForms, AMovedVertexIsShownAnew) {
  frmPoints0P& form = OpenPoint("PtInLine", 0, 1);
  rig.session.project.Lines.Edit(0).Points[1].Lat = 47.25;
  rig.window->RefreshUi();
  EXPECT_EQ(TextOf(form, "txtLat"), "47° 15' 00.0000'' N");
}

TEST_F(PointForms, TheExtendedFormSnapsBetweenTheSystems) {
  Press(OpenPoint("PtInPoly", 0, 0), "cmdExtended");
  EXPECT_EQ(Open<frmPoints0P>(), nullptr);
  frmPointsP& form = *Open<frmPointsP>();
  EXPECT_EQ(Label(form, "lbTitle"), "POLY # 1");
  EXPECT_EQ(TextOf(form, "txtWidth"), "50");
  Type(form, "txtLat", "47.5");
  Type(form, "txtLon", "8.25");
  Press(form, "cmdSnapLL");
  EXPECT_EQ(TextOf(form, "txtCX") + " " + TextOf(form, "txtCY"), "401 120");
  EXPECT_EQ(TextOf(form, "txtPtAX") + " " + TextOf(form, "txtPtCY"), "51 11333");
  Type(form, "txtPtCX", "8980");
  Press(form, "cmdSnapCell");
  EXPECT_EQ(TextOf(form, "txtPtAX"), "55");
  Type(form, "txtPtAX", "300");
  Type(form, "txtLat", "?");
  Press(form, "cmdSnapArea");
  EXPECT_EQ(LastMessage(), "Area Point X is outside 0 and 255!");
  Type(form, "txtLat", "?");
  Press(form, "cmdSnapLL");
  EXPECT_EQ(LastMessage(), "Check Latitude and longitude!");
  EXPECT_EQ(TextOf(form, "txtLat").substr(0, 2), "47") << "back to the position at hand";
  Type(form, "txtPtAX", "56");
  Press(form, "cmdSnapArea");
  EXPECT_EQ(TextOf(form, "txtPtCX"), "8981");
  Type(form, "txtWidth", "60.5");
  Press(form, "cmdOK");
  const PolyPoint& stored = rig.session.project.Polys[0].Points[0];
  EXPECT_NEAR(stored.Lon, 8.25 + 5 * StepLon, 1e-9);
  EXPECT_EQ(stored.Alt, 60.5F);
  EXPECT_EQ(rig.session.project.Polys[0].Box.NLat, stored.Lat);
}

TEST_F(PointForms, GoToPositionMovesTheViewAndCoordinatesDoNot) {
  rig.Action("mnuECoordinates").trigger();
  frmPointsP& coordinates = *Open<frmPointsP>();
  EXPECT_EQ(coordinates.windowTitle(), "Landsmith - Coordinate Conversions");
  Type(coordinates, "txtLat", "40");
  Press(coordinates, "cmdOK");
  EXPECT_EQ(rig.session.view.LatDispCenter, 47.5);

  rig.Action("mnuVGotoPosition").trigger();
  frmPointsP& form = *Open<frmPointsP>();
  EXPECT_EQ(form.windowTitle(), "Landsmith - Center Display");
  EXPECT_EQ(TextOf(form, "txtCX"), "401");
  EXPECT_FALSE(landsmith::test::Find<QLineEdit>(form, "txtWidth").isVisible());
  Type(form, "txtLat", "40");
  QTest::keyClick(&form, Qt::Key_Return);
  EXPECT_EQ(rig.session.view.LatDispCenter, 40);
  EXPECT_EQ(rig.session.view.LonDispCenter, 8.25) << "not rounded to its text";
  EXPECT_FALSE(rig.session.project.Dirty);
}

}  // namespace
}  // namespace landsmith::test
