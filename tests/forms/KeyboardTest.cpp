// Keys and the keyboard's place: the window of shortcuts tells the truth, and what a dialog took comes back.
#include "WindowRig.h"
#include "forms/ShortcutTable.h"

#include <QDialog>
#include <QTextBrowser>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace landsmith {
namespace {

using test::WindowRig;

class Keyboard : public testing::Test {
protected:
  void DrawRoad() {
    rig.Click(-60, 0);
    rig.Click(60, 0);
    rig.Click(60, 60, Qt::RightButton);
  }
  std::size_t Lines() const { return rig.session.project.Lines.size(); }

  WindowRig rig;
};

TEST_F(Keyboard, UndoAndRedoAreInTheMenuOnTheToolbarAndOnTheirKeys) {
  rig.ShowProject("Line");
  for (const char* name : {"mnuEUndo", "mnuERedo"})
    EXPECT_FALSE(rig.Action(name).isEnabled()) << name;
  DrawRoad();
  EXPECT_TRUE(rig.Button("Undo").isEnabled());
  rig.Button("Undo").click();
  EXPECT_EQ(Lines(), 0U);
  EXPECT_FALSE(rig.Action("mnuEUndo").isEnabled());
  EXPECT_TRUE(rig.Action("mnuERedo").isEnabled());
  QTest::keyClick(rig.canvas, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Lines(), 1U);
  QTest::keyClick(rig.canvas, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Lines(), 0U);
  EXPECT_FALSE(rig.session.tool.ZoomKeyDown);
  QTest::keyClick(rig.canvas, Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Lines(), 1U);
}

TEST_F(Keyboard, EveryKeyThatIsToldOfWorksAndNoMenuTakesIt) {
  rig.ShowProject("Line");
  DrawRoad();
  ToolState& tool = rig.session.tool;
  const auto held = [&](int key, bool ToolState::*flag) {
    QTest::keyPress(rig.canvas, static_cast<Qt::Key>(key));
    const bool was = tool.*flag;
    QTest::keyRelease(rig.canvas, static_cast<Qt::Key>(key));
    return was && !(tool.*flag);
  };
  const auto onPad = [&](Qt::Key key, bool ToolState::*flag) {
    QTest::keyPress(rig.canvas, key, Qt::KeypadModifier);
    const bool was = tool.*flag;
    QTest::keyRelease(rig.canvas, key, Qt::KeypadModifier);
    return was && !(tool.*flag);
  };
  const auto afterRelease = [&](Qt::Key key, bool ToolState::*flag) {
    QTest::keyClick(rig.canvas, key);
    return std::exchange(tool.*flag, false);
  };
  const std::map<int, std::function<bool()>> works{
      {Qt::Key_P, [&] { return held(Qt::Key_P, &ToolState::PanKeyDown); }},
      {Qt::Key_Z, [&] { return held(Qt::Key_Z, &ToolState::ZoomKeyDown); }},
      {Qt::Key_I, [&] { return held(Qt::Key_I, &ToolState::InsertPoints); }},
      {Qt::Key_D, [&] { return held(Qt::Key_D, &ToolState::DeletePoints); }},
      {Qt::Key_B, [&] { return held(Qt::Key_B, &ToolState::BreakLine); }},
      {Qt::Key_Control, [&] { return held(Qt::Key_Control, &ToolState::CtrlKeyDown); }},
      {Qt::Key_Plus, [&] { return onPad(Qt::Key_Plus, &ToolState::WidthUp); }},
      {Qt::Key_Minus, [&] { return onPad(Qt::Key_Minus, &ToolState::WidthDown); }},
      {Qt::Key_R, [&] { return afterRelease(Qt::Key_R, &ToolState::NextClickIsRight); }},
      {Qt::Key_Insert, [&] { return afterRelease(Qt::Key_Insert, &ToolState::InsertPoints); }},
      {Qt::Key_M,
       [&] {
         QTest::keyClick(rig.canvas, Qt::Key_M);
         const bool on = tool.MeasureOn && rig.Action("mnuEMeasure").isChecked();
         QTest::keyClick(rig.canvas, Qt::Key_M);
         return on && !tool.MeasureOn;
       }},
      {Qt::Key_Delete,
       [&] {
         rig.Action("mnuSLines").trigger();
         rig.dialogs.answers = {true};
         QTest::keyClick(rig.canvas, Qt::Key_Delete);
         const bool gone = Lines() == 0;
         rig.Action("mnuEUndo").trigger();
         return gone && Lines() == 1;
       }},
      {Qt::Key_Space,
       [&] {
         for (const int x : {-60, 60}) {
           QTest::mouseMove(rig.canvas, rig.FromCentre(x, 80));
           QTest::keyClick(rig.canvas, Qt::Key_Space);
         }
         return Lines() == 2;
       }},
      {Qt::Key_Escape,
       [&] {
         QTest::keyClick(rig.canvas, Qt::Key_Escape);
         rig.Click(0, -80);  // begins another line, which is none yet
         QTest::keyClick(rig.canvas, Qt::Key_Escape);
         return Lines() == 2;
       }},
      {Qt::Key_Up,
       [&] {
         rig.window->TheEditor().StartWalk({"PtInLine", "", 0, 0, {}});
         QTest::keyClick(rig.canvas, Qt::Key_Up);
         return rig.session.project.Lines[0].Points[1].Selected;
       }},
      {Qt::Key_Right,
       [&] {
         QTest::keyClick(rig.canvas, Qt::Key_Right);
         return rig.session.project.Lines[1].Points[0].Selected;
       }},
  };
  for (const ShortcutGroup& group : ShortcutGroups()) {
    for (const ShortcutRow& row : group.rows) {
      if (row.key == 0) continue;
      const auto check = works.find(row.key);
      ASSERT_NE(check, works.end()) << "nothing here tries " << row.input;
      for (const QAction* action : rig.window->findChildren<QAction*>())
        EXPECT_FALSE(action->shortcuts().contains(QKeySequence(row.key))) << row.input;
    }
  }
  // In this order: the road that Space draws is ended by Esc.
  for (const int key : {Qt::Key_P, Qt::Key_Z, Qt::Key_I, Qt::Key_D, Qt::Key_B, Qt::Key_Control, Qt::Key_Plus,
                        Qt::Key_Minus, Qt::Key_R, Qt::Key_Insert, Qt::Key_M, Qt::Key_Delete, Qt::Key_Space,
                        Qt::Key_Escape, Qt::Key_Up, Qt::Key_Right})
    EXPECT_TRUE(works.at(key)()) << QKeySequence(key).toString().toStdString();
}

TEST_F(Keyboard, TheMenusHaveTheUsualKeysEachOnce) {
  rig.ShowProject();
  const std::map<std::string, const char*> keys{
      {"mnuFNew", "Ctrl+N"},  {"mnuFOpen", "Ctrl+O"}, {"mnuFSave", "Ctrl+S"},     {"mnuEUndo", "Ctrl+Z"},
      {"mnuERedo", "Ctrl+Y"}, {"mnuECut", "Ctrl+X"},  {"mnuECopy", "Ctrl+C"},     {"mnuEPaste", "Ctrl+V"},
      {"mnuEFind", "Ctrl+F"}, {"mnuFBGL", "Ctrl+B"},  {"mnuESelectAll", "Ctrl+A"}};
  for (const auto& [name, text] : keys)
    EXPECT_EQ(rig.Action(name).shortcut().toString().toStdString(), text) << name;
  std::map<QString, QString> owner;
  for (const QAction* action : rig.window->findChildren<QAction*>()) {
    for (const QKeySequence& key : action->shortcuts()) {
      const auto [other, isNew] = owner.emplace(key.toString(), action->objectName());
      EXPECT_TRUE(isNew) << key.toString().toStdString() << " of " << action->objectName().toStdString()
                         << " and " << other->second.toStdString();
    }
  }
}

/// Does `act` to the dialog that the next modal loop shows.
void InTheDialog(const std::function<void(QDialog&)>& act) {
  QTimer::singleShot(0, [act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
  });
}

TEST_F(Keyboard, ComesBackToTheCanvas) {
  rig.ShowProject("Line");
  const auto atTheCanvas = [&] {
    QTest::qWait(20);  // nobody opens the next window in the same moment
    return QTest::qWaitFor([&] { return rig.canvas->hasFocus(); }, 500);
  };
  ASSERT_TRUE(atTheCanvas());

  InTheDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  rig.Action("mnuFPreferences").trigger();
  EXPECT_TRUE(atTheCanvas()) << "after a dialog";

  QTest::mouseClick(&rig.Button("Pointer"), Qt::LeftButton);
  EXPECT_TRUE(atTheCanvas()) << "after the toolbar";

  rig.Action("mnuHShortcuts").trigger();
  auto* keys = rig.window->findChild<QDialog*>("frmShortcuts");
  auto* told = keys->findChild<QTextBrowser*>("txtShortcuts");
  ASSERT_TRUE(QTest::qWaitFor([&] { return told->hasFocus(); }));
  const QString text = told->toPlainText();
  for (const char* part : {"P held, drag", "Ctrl+Y, Ctrl+Shift+Z", "Edit, Undo", "Space"})
    EXPECT_TRUE(text.contains(QLatin1String(part))) << part;
  QTest::keyClick(keys, Qt::Key_Escape);
  EXPECT_TRUE(atTheCanvas()) << "after a window beside it";
}

}  // namespace
}  // namespace landsmith
