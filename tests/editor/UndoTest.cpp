#include "EditorRig.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

/// The project and what is selected in it.
struct Moment {
  ProjectState Project;
  Selection Selected;
};

/// An edit as an author makes it: getting ready changes the selection at most.
struct EditStep {
  const char* Name;
  void (*GetReady)(EditorRig&);
  void (*Change)(EditorRig&);
};
const std::vector<EditStep> Steps{
    {"draw a line",
     [](EditorRig& rig) {
       rig.editor.ChooseMode(ModeId::Line);
       rig.Click({-100, 0});
     },
     [](EditorRig& rig) {
       rig.Click({0, 0}).Click({100, 0}).Key(27);
     }},
    {"drag it",
     [](EditorRig& rig) {
       rig.Press({50, 0});
     },
     [](EditorRig& rig) {
       rig.MoveTo({50, 30}).MoveTo({50, 40}).Release();
     }},
    {"insert a vertex", [](EditorRig& rig) { rig.editor.ChooseMode(ModeId::Line); },
     [](EditorRig& rig) {
       rig.Key('I').Click({-50, 40}).KeyUp('I');
     }},
    {"cut it",
     [](EditorRig& rig) {
       rig.Click({60, 40});
     },
     [](EditorRig& rig) { rig.editor.Cut(); }},
    {"paste it", [](EditorRig& rig) { rig.editor.Paste(); },
     [](EditorRig& rig) {
       rig.Click({-80, -70});
     }},
    {"draw a polygon",
     [](EditorRig& rig) {
       rig.editor.ChooseMode(ModeId::Poly);
       rig.Click({-100, 100});
     },
     [](EditorRig& rig) {
       rig.Click({0, 100}).Click({0, 200}).Click({0, 0}, MouseButton::Right);
     }},
    {"delete it",
     [](EditorRig& rig) {
       rig.editor.ChooseMode(ModeId::Pointer);
       rig.Click({-50, 100});
     },
     [](EditorRig& rig) {
       rig.dialogs.answers = {true};
       rig.Key(46);
     }},
};

class UndoTest : public testing::Test, public EditorRig {
protected:
  Moment Now() const {
    Moment now{session.project, session.tool.Selected};
    now.Project.Dirty = false;
    return now;
  }
  /// The moments before each of the first `count` edits, and after the last.
  std::vector<Moment> Do(std::size_t count) {
    std::vector<Moment> moments;
    for (std::size_t i = 0; i < count; ++i) {
      Steps[i].GetReady(*this);
      moments.push_back(Now());
      Steps[i].Change(*this);
      EXPECT_FALSE(Now().Project == moments.back().Project) << Steps[i].Name;
    }
    moments.push_back(Now());
    return moments;
  }
  void ExpectAt(const Moment& moment, const std::string& what) const {
    EXPECT_TRUE(session.project.Lines == moment.Project.Lines) << what;
    EXPECT_TRUE(Now().Project == moment.Project) << what;
    EXPECT_EQ(session.tool.Selected, moment.Selected) << what;
  }
  /// As often as it can.
  std::size_t UndoAll() {
    std::size_t undone = 0;
    for (; editor.CanUndo(); ++undone)
      editor.Undo();
    return undone;
  }
};

TEST_F(UndoTest, FiveEditsGoAndComeBackOneByOne) {
  const auto moments = Do(5);
  for (std::size_t i = 5; i-- > 0;) {
    editor.Undo();
    ExpectAt(moments[i], std::string("undo: ") + Steps[i].Name);
  }
  EXPECT_FALSE(editor.CanUndo());
  for (std::size_t i = 0; i < 5; ++i) {
    editor.Redo();
    ExpectAt(moments[i + 1], std::string("redo: ") + Steps[i].Name);
  }
  EXPECT_FALSE(editor.CanRedo());
  EXPECT_TRUE(session.project.Dirty);
}

TEST_F(UndoTest, OnlyTheLastFiveOrAsManyAsSetAreKept) {
  const auto moments = Do(7);
  EXPECT_EQ(UndoAll(), 5U);
  ExpectAt(moments[2], "two are out of reach");
  session.undo.Reset();
  session.settings.UndoDepth = 2;
  editor.ChooseMode(ModeId::Line);
  for (const float y : {-200.F, -180.F, -160.F})
    Click({-150, y}).Click({150, y}).Key(27);
  EXPECT_EQ(UndoAll(), 2U);
}

TEST_F(UndoTest, AnEditAfterUndoForgetsWhatCouldBeRedone) {
  const auto moments = Do(4);
  editor.Undo();
  editor.Undo();
  editor.ChooseMode(ModeId::Poly);
  Click({-100, 100}).Click({0, 100}).Click({0, 200}).Click({0, 0}, MouseButton::Right);
  EXPECT_FALSE(editor.CanRedo());
  editor.Undo();
  EXPECT_TRUE(Now().Project == moments[2].Project);
  EXPECT_EQ(UndoAll(), 2U);
}

TEST_F(UndoTest, SwitchedOffItKeepsNothing) {
  session.settings.BackUpON = false;
  Do(3);
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(UndoTest, PastingGoesOnUntilTheRightButton) {
  AddLine({{-100, 0}, {0, 0}, {0, 50}});
  editor.ChooseMode(ModeId::Line);
  EXPECT_FALSE(editor.MayCut());
  EXPECT_FALSE(editor.MayPaste());
  Click({-50, 0});
  editor.Copy();
  editor.Paste();
  EXPECT_EQ(host.cursor, CursorShape::Paste);
  Click({100, 100}).Click({150, -100}).Click({0, -150}, MouseButton::Right);
  ASSERT_EQ(Lines().size(), 3U);
  EXPECT_TRUE(host.menus.empty()) << "the right button only ends the pasting";
  EXPECT_NEAR(Place(2, 0).x, 150, 1e-3);
  EXPECT_NEAR(Place(2, 2).y, -50, 1e-3);
  EXPECT_EQ(Lines()[2].Box.SLat, Lines()[2].Points[2].Lat);
  EXPECT_TRUE(Lines()[2].Selected);
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(session.undo.UndoCount(), 2U);
  Click({0, -200}).Click({20, -200}).Key(27);
  EXPECT_EQ(Lines().size(), 4U) << "and the next click draws again";
}

TEST_F(UndoTest, CutAndDeleteTakeTheFirstOfSeveral) {
  for (const float y : {0.F, 50.F, 100.F}) {
    AddLine({{-100, y}, {100, y}});
    AddPoly({{-100, y}, {100, y}, {0, y + 20}});
    AddObject({0, y}, 4);
  }
  struct Row {
    ModeId mode;
    const char* question;
  };
  for (const Row& row : {Row{ModeId::Line, "Delete this Line ?"}, Row{ModeId::Poly, "Delete this Poly ?"},
                         Row{ModeId::Object, "Delete this object ?"}}) {
    SCOPED_TRACE(row.question);
    editor.ChooseMode(row.mode);
    ctrl = true;
    Press({-150, -50}).MoveTo({150, 150}).Release();
    ctrl = false;
    ASSERT_EQ(Selected(), 3);
    editor.Cut();
    EXPECT_EQ(Selected(), 2);
    editor.DeleteOne();
    EXPECT_EQ(Selected(), 2) << "No is the default";
    dialogs.answers = {true};
    editor.DeleteOne();
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(dialogs.questions.back(), row.question);
    EXPECT_TRUE(editor.MayPaste());
  }
  EXPECT_EQ(session.project.Polys.size(), 1U);
  EXPECT_EQ(session.project.Objects.size(), 1U);
}

}  // namespace
}  // namespace landsmith::test
