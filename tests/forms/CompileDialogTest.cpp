// The compilation dialog: what it offers, the run, and what it shows afterwards.
#include "DialogRig.h"
#include "forms/SourceExcerpt.h"
#include "forms/frmBGL.h"
#include "support/Builders.h"

#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>

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
