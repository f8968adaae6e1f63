// The compilation dialog: what it offers, the run, and what it shows afterwards.
#include "DialogRig.h"
#include "WindowRig.h"
#include "forms/SourceExcerpt.h"
#include "forms/frmBGL.h"
#include "support/Builders.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace landsmith::test {
namespace {

struct CompileDialog : testing::Test {
  DialogRig rig;

  CompileDialog() {
    rig.session.project.Lines.push_back(
        ALine().Named("Road").Vtp("4", "12").Through({{47.5, 8.1}, {47.51, 8.12}}).Selected());
    rig.tools.answer = [this](const std::string& command) {
      if (command.starts_with("scasm")) WriteWholeFile(rig.session.folders.Work() / "Coast_VTPL.BGL", "bgl");
      return 0;
    };
  }
};

TEST_F(CompileDialog, OffersWhatIsSelectedAndCanBeCompiled) {
  rig.session.project.Excludes.emplace_back().Selected = true;
  frmBGL dialog(rig.session, rig.display, nullptr);
  const auto enabled = [&](const char* name) { return Find<QWidget>(dialog, name).isEnabled(); };
  for (const char* name : {"frVTP", "ckVTPLines", "ckCopyBGLs"})
    EXPECT_TRUE(enabled(name)) << name;
  EXPECT_TRUE(IsChecked(dialog, "ckVTPLines"));
  EXPECT_FALSE(IsChecked(dialog, "ckCopyBGLs"));
  for (const char* name : {"frClass", "frLWM", "frPhoto", "ckVTPPolys", "ckCopyTEXs"})
    EXPECT_FALSE(enabled(name)) << name;
}

TEST_F(CompileDialog, WithNothingSelectedThereIsNothingToRun) {
  rig.session.project.Lines.Edit(0).Selected = false;
  frmBGL dialog(rig.session, rig.display, nullptr);
  EXPECT_FALSE(Find<QWidget>(dialog, "cmdCompile").isEnabled());
  Press(dialog, "ckStartFS9");
  Press(dialog, "cmdCompile");
  EXPECT_EQ(rig.tools.started, std::vector{'"' + (rig.folder / "fs" / "fs9.exe").string() + '"'});
  EXPECT_TRUE(rig.tools.ran.empty());
}

TEST_F(CompileDialog, RunsTheStepCopiesTheOutputAndStaysWithTheText) {
  frmBGL dialog(rig.session, rig.display, nullptr);
  dialog.show();
  Press(dialog, "ckCopyBGLs");
  Press(dialog, "cmdCompile");
  EXPECT_EQ(ReadWholeFile(rig.folder / "out" / "Coast_VTPL.BGL"), "bgl");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(Find<QTabWidget>(dialog, "tabBGL").currentIndex(), 1);
  EXPECT_GE(Find<QListWidget>(dialog, "lstFiles").count(), 1);
  QString source = QString::fromStdString(ReadWholeFile(rig.session.folders.Work() / "Coast_VTPL.scm"));
  ASSERT_FALSE(source.isEmpty());
  EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtSource").toPlainText(), source.remove('\r'));
  EXPECT_EQ(Find<QAbstractButton>(dialog, "cmdCancel").text(), "Close");
  Press(dialog, "cmdCancel");
  EXPECT_FALSE(dialog.isVisible());
}

// Step functions are plain pointers, so what they did is seen in the report.
void WriteNothing(const CompileContext& context) {
  context.tools.RunAndWait("first", {}, context.progress);
}
void FailLoudly(const CompileContext& context) {
  context.tools.RunAndWait("second", {}, context.progress);
  throw std::runtime_error("disk full");
}
bool Always(const ProjectState&) {
  return true;
}
const StepTable TwoSteps{{"bitmaps", "ckBitmaps", "frPhoto", "Bitmaps", Always, true, true, WriteNothing},
                         {"xbitmaps", "ckXBitmaps", "frPhoto", "High", Always, true, true, FailLoudly}};

TEST_F(CompileDialog, AFailingStepIsToldAndTheDialogLivesOn) {
  frmBGL dialog(rig.session, rig.display, TwoSteps, nullptr);
  Press(dialog, "cmdCompile");
  EXPECT_EQ(rig.tools.ran, (std::vector<std::string>{"first", "second"}));
  EXPECT_EQ(rig.LastMessage(), "disk full");
  EXPECT_NE(Find<QLabel>(dialog, "lbResult").text().indexOf("failed"), -1);
  EXPECT_TRUE(Find<QWidget>(dialog, "cmdCompile").isEnabled());
}

TEST_F(CompileDialog, StopEndsTheRunAfterThePresentStepAndDoesNotClose) {
  frmBGL dialog(rig.session, rig.display, TwoSteps, nullptr);
  dialog.show();
  rig.tools.answer = [&](const std::string&) {
    EXPECT_FALSE(Find<QWidget>(dialog, "ckBitmaps").isEnabled());
    Press(dialog, "cmdCancel");
    return 0;
  };
  Press(dialog, "cmdCompile");
  EXPECT_EQ(rig.tools.ran, (std::vector<std::string>{"first"}));
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(CompileDialog, TexturesAreCopiedOnlyWhileBitmapsAreMade) {
  frmBGL dialog(rig.session, rig.display, TwoSteps, nullptr);
  Press(dialog, "ckCopyTEXs");
  Press(dialog, "ckBitmaps");
  EXPECT_TRUE(IsChecked(dialog, "ckCopyTEXs"));
  Press(dialog, "ckXBitmaps");
  EXPECT_FALSE(IsChecked(dialog, "ckCopyTEXs"));
}

/// A second road that crosses a Cell without a vertex in it, and a polygon that crosses itself.
void AddFaultyItems(ProjectState& project) {
  project.Lines.push_back(ALine().Vtp("4", "12").Through({{47.5, 8.1}, {47.5, 9.1}}).Selected());
  PolyRec& knot = project.Polys.emplace_back();
  knot.Name = "Lake";
  knot.Type = "LWM//Water//0//0//1//1//";
  knot.Selected = true;
  for (const LatLon at : {LatLon{47, 8}, {47.01, 8.02}, {47, 8.02}, {47.01, 8}})
    knot.Points.push_back({at.lon, at.lat, 0, false});
}

TEST_F(CompileDialog, FindingsAreListedAndLeadToTheirPlaces) {
  AddFaultyItems(rig.session.project);
  frmBGL dialog(rig.session, rig.display, nullptr);
  std::vector<LatLon> places;
  QObject::connect(&dialog, &frmBGL::GoTo, [&](const Finding& finding) { places.push_back(finding.At); });
  dialog.show();
  auto& list = Find<QTreeWidget>(dialog, "lstFindings");
  ASSERT_EQ(list.topLevelItemCount(), 2);
  EXPECT_EQ(list.topLevelItem(0)->text(0), "Line 2");
  EXPECT_EQ(list.topLevelItem(1)->text(0), "Polygon 1, Lake");
  EXPECT_TRUE(list.topLevelItem(1)->text(1).contains("crosses itself"));

  Press(dialog, "cmdGoTo");
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  list.setCurrentItem(list.topLevelItem(0));
  const QPoint second = list.visualItemRect(list.topLevelItem(1)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
  ASSERT_EQ(places.size(), 3U);
  EXPECT_NEAR(places[0].lon, 8.6, 0.1);  // the Cell from 8.4375 to 8.90625 is the empty one
  for (const std::size_t knot : {1U, 2U}) {
    EXPECT_NEAR(places[knot].lat, 47.005, 1e-4);
    EXPECT_NEAR(places[knot].lon, 8.01, 1e-4);
  }
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(rig.tools.ran.empty()) << "Enter in the list compiles";
  EXPECT_TRUE(Find<QWidget>(dialog, "cmdCompile").isEnabled());
}

/// The circle round the place, which stands in the middle of the canvas.
bool ShowsFindingMark(const WindowRig& rig) {
  return rig.canvas->grab().toImage().pixelColor(rig.FromCentre(16, 0)) == QColor(230, 0, 126);
}

TEST(CompileDialogInWindow, GoToMarksThePlaceBesideTheDialogAndKeepsTheSelection) {
  WindowRig rig;
  rig.ShowProject();
  AddFaultyItems(rig.session.project);
  bool asked = false;
  QTimer::singleShot(0, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    auto& list = Find<QTreeWidget>(*dialog, "lstFindings");
    list.setCurrentItem(list.topLevelItem(1));
    Press(*dialog, "cmdGoTo");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->focusWidget(), &list) << "the next finding is not an arrow key away";
    EXPECT_TRUE(ShowsFindingMark(rig));
    asked = true;
    dialog->close();
  });
  rig.Action("mnuFBGL").trigger();
  ASSERT_TRUE(asked);
  EXPECT_FALSE(ShowsFindingMark(rig));
  EXPECT_NEAR(rig.session.view.LatDispCenter, 47.005, 1e-4);
  EXPECT_NEAR(rig.session.view.LonDispCenter, 8.01, 1e-4);
  EXPECT_TRUE(rig.session.project.Lines[0].Selected);
  EXPECT_TRUE(rig.session.project.Polys[0].Selected);
}

TEST_F(CompileDialog, WithoutFindingsThereIsNoList) {
  frmBGL dialog(rig.session, rig.display, nullptr);
  dialog.show();
  EXPECT_FALSE(Find<QWidget>(dialog, "lstFindings").isVisible());
  EXPECT_FALSE(Find<QWidget>(dialog, "cmdGoTo").isVisible());
  EXPECT_TRUE(Find<QLabel>(dialog, "lbFindings").text().contains("nothing"));
}

TEST_F(CompileDialog, ALongCheckGoesOnWhileTheDialogLives) {
  for (int i = 0; i < 20000; ++i)
    AddFaultyItems(rig.session.project);
  frmBGL dialog(rig.session, rig.display, nullptr);
  dialog.show();
  auto& list = Find<QTreeWidget>(dialog, "lstFindings");
  EXPECT_LT(list.topLevelItemCount(), 40000);
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.topLevelItemCount() == 40000; }, 60000));
  EXPECT_TRUE(Find<QLabel>(dialog, "lbFindings").text().contains("40000"));
}

TEST(SourceExcerptTest, LongTextsAreCutBehindALine) {
  const TempFolder folder;
  WriteWholeFile(folder / "a.scm", "one\r\ntwo\r\nthree\xE9\r\n");
  const SourceExcerpt cut = ReadSourceExcerpt(folder / "a.scm", 12);
  EXPECT_EQ(cut.Text, "one\r\ntwo\r\n");
  EXPECT_FALSE(cut.IsWhole);
  EXPECT_EQ(cut.FileSize, 18U);
  const SourceExcerpt whole = ReadSourceExcerpt(folder / "a.scm", 18);
  EXPECT_TRUE(whole.IsWhole);
  EXPECT_EQ(whole.Text, "one\r\ntwo\r\nthree\u00E9\r\n");
}

}  // namespace
}  // namespace landsmith::test
