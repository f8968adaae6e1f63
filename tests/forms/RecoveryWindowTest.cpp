#include "WindowRig.h"

#include <QTimer>

#include <gtest/gtest.h>

namespace landsmith {
namespace {

using test::WindowRig;

class RecoveryWindow : public testing::Test {
protected:
  std::filesystem::path Copy() const { return rig.folder / "recovery/copy1.LSP"; }
  bool CopyThere() const { return std::filesystem::exists(Copy()); }

  /// Two lines drawn in a project that was saved before, and the moment of the next copy come.
  void DrawAndWaitForTheCopy() {
    rig.ShowProject("Line");
    rig.Click(-40, 0);
    rig.Click(40, 0);
    rig.Click(40, 30, Qt::RightButton);
    LetTheTimerTick();
    ASSERT_TRUE(QTest::qWaitFor([&] { return CopyThere(); }));
  }
  void LetTheTimerTick() {
    auto* timer = rig.window->findChild<QTimer*>("recoveryTimer");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 120000);
    timer->start(0);
    QTest::qWait(20);
    timer->start(120000);
  }
  /// The program is gone without a close, and another one starts in its folder.
  void CrashAndStart(bool answer) {
    rig.window.reset();
    rig.session.project = EmptyProject(rig.session.settings);
    rig.dialogs.questions.clear();
    rig.dialogs.answers = {answer};
    rig.Show();
    ASSERT_EQ(rig.dialogs.questions.size(), 1U);
    EXPECT_NE(rig.dialogs.questions[0].find("\n\nTrial\n"), std::string::npos) << rig.dialogs.questions[0];
  }

  WindowRig rig;
};

TEST_F(RecoveryWindow, WhatACrashLeftIsOpenedAsTheChangedProjectThatItWas) {
  DrawAndWaitForTheCopy();
  CrashAndStart(true);
  const ProjectState& project = rig.session.project;
  EXPECT_EQ(project.Lines.size(), 1U);
  EXPECT_EQ(project.ProjectFile, PathText(rig.folder / "Trial.LSP"));
  EXPECT_TRUE(project.Dirty);
  EXPECT_EQ(rig.session.recent[0], PathText(rig.folder / "Trial.LSP")) << "the copy is no recent file";
  EXPECT_TRUE(CopyThere()) << "until the changes are saved they have no other home";
  rig.Action("mnuFSave").trigger();
  EXPECT_FALSE(CopyThere());
  EXPECT_EQ(ReadProject(ReadWholeFile(rig.folder / "Trial.LSP"), "").Lines.size(), 1U);
}

TEST_F(RecoveryWindow, ADeclinedCopyIsGone) {
  DrawAndWaitForTheCopy();
  CrashAndStart(false);
  EXPECT_FALSE(rig.session.project.ProjectOpen);
  EXPECT_FALSE(CopyThere());
}

TEST_F(RecoveryWindow, AnOrderlyEndTakesTheCopyAway) {
  DrawAndWaitForTheCopy();
  rig.dialogs.answers = {false, true};  // not yet; then without saving
  rig.window->close();
  EXPECT_TRUE(CopyThere());
  rig.window->close();
  EXPECT_FALSE(CopyThere());
}

TEST_F(RecoveryWindow, WhatHasNotChangedIsNotWrittenAgain) {
  DrawAndWaitForTheCopy();
  std::filesystem::remove(Copy());
  LetTheTimerTick();
  EXPECT_FALSE(CopyThere());
  rig.Action("mnuSLines").trigger();
  rig.dialogs.answers = {true};
  QTest::keyClick(rig.canvas, Qt::Key_Delete);
  ASSERT_TRUE(rig.session.project.Lines.empty());
  LetTheTimerTick();
  ASSERT_TRUE(QTest::qWaitFor([&] { return CopyThere(); }));
  EXPECT_TRUE(ReadProject(ReadWholeFile(Copy()), "").Lines.empty());
}

}  // namespace
}  // namespace landsmith
