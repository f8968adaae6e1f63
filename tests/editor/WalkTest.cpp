// The walk along vertices by the arrow keys, and the vertex that a form watches.
#include "EditorRig.h"
#include "editor/SelectKinds.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

constexpr int Left = 37, Up = 38, Right = 39, Down = 40, Del = 46, Esc = 27, Space = 32;

PopupTarget Vertex(const char* kind, std::size_t item, std::size_t point) {
  PopupTarget target;
  target.Kind = kind;
  target.Item = item;
  target.Point = point;
  return target;
}

struct WalkRig : EditorRig {
  WalkRig() {
    AddLine({{-50, 0}, {0, 0}, {50, 0}});
    session.project.Lines.push_back({});  // a line without points is passed over
    AddLine({{-50, 60}, {50, 60}});
    PolyRec ring;
    for (const auto& [x, y] : {std::pair{0, 0}, {40, 0}, {40, 40}, {0, 40}})
      ring.Points.push_back({x / 1000.0, y / 1000.0, 5, false});
    SetPathBounds(ring);
    session.project.Polys = {ring, ring};
  }
  /// "L1.2": the vertices selected, 1-based.
  std::string Marked() const {
    std::string text;
    const auto add = [&](char kind, const auto& paths) {
      for (std::size_t i = 0; i < paths.size(); ++i)
        for (std::size_t k = 0; k < paths[i].Points.size(); ++k)
          if (paths[i].Points[k].Selected) text += kind + std::to_string(i + 1) + "." + std::to_string(k + 1);
    };
    add('L', session.project.Lines);
    add('P', session.project.Polys);
    return text;
  }
};

struct WalkTest : testing::Test, WalkRig {};

TEST_F(WalkTest, ArrowsStepAndWrapSelectingAndCentringEachVertex) {
  struct Row {
    const char* kind;
    std::vector<int> keys;
    const char* at;
  };
  const Row rows[] = {{"PtInLine", {Up}, "L1.2"},           {"PtInLine", {Up, Up, Up}, "L1.1"},
                      {"PtInLine", {Down}, "L1.3"},         {"PtInLine", {Up, Right}, "L3.1"},
                      {"PtInLine", {Right, Right}, "L1.1"}, {"PtInLine", {Left, Down}, "L3.2"},
                      {"PtInPoly", {Down}, "P1.4"},         {"PtInPoly", {Left, Up}, "P2.2"}};
  for (const Row& row : rows) {
    editor.StartWalk(Vertex(row.kind, 0, 0));
    for (const int key : row.keys)
      Key(key);
    EXPECT_EQ(Marked(), row.at);
    EXPECT_EQ(Selected(), 1);
    const auto here = ReadPoint(session.project, *session.tool.Walk);
    EXPECT_EQ(here->At, (LatLon{session.view.LatDispCenter, session.view.LonDispCenter})) << row.at;
  }
  EXPECT_FALSE(session.project.Dirty);
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(WalkTest, EndsByAPressOfTheToolEscAnotherToolOrTheLossOfItsVertex) {
  const std::pair<const char*, void (*)(WalkRig&)> ends[] = {
      {"press",
       [](WalkRig& t) {
         t.Click({0, 200});
       }},
      {"esc", [](WalkRig& t) { t.Key(Esc); }},
      {"tool", [](WalkRig& t) { t.editor.ChooseMode(ModeId::Line); }},
      {"gone", [](WalkRig& t) { t.session.project.Lines.clear(); }},
      {"new", [](WalkRig& t) { t.editor.NewProject(); }}};
  for (const auto& [name, end] : ends) {
    WalkRig other;
    other.editor.StartWalk(Vertex("PtInLine", 0, 1));
    end(other);
    const std::string marked = other.Marked();
    const LatLon centre{other.session.view.LatDispCenter, other.session.view.LonDispCenter};
    other.Key(Up).Key(Right);
    EXPECT_EQ(other.Marked(), marked) << name;
    EXPECT_EQ(centre, (LatLon{other.session.view.LatDispCenter, other.session.view.LonDispCenter})) << name;
  }
}

TEST_F(WalkTest, OutlastsAChangeOfTheView) {
  editor.StartWalk(Vertex("PtInLine", 0, 0));
  Click({0, 200}, MouseButton::Middle);
  Key(Up);
  EXPECT_EQ(Marked(), "L1.2");
}

TEST_F(WalkTest, DeleteTakesVerticesUntilThePathHasNoneToSpare) {
  editor.StartWalk(Vertex("PtInLine", 0, 2));
  Key(Del);
  EXPECT_EQ(Lines()[0].Points.size(), 2U);
  EXPECT_EQ(Marked(), "L1.2") << "the last one left";
  EXPECT_TRUE(dialogs.questions.empty());
  EXPECT_EQ(session.undo.UndoCount(), 1U);
  Key(Del).Key(Up);
  EXPECT_EQ(Lines()[0].Points.size(), 2U);
  EXPECT_EQ(Marked(), "") << "the walk is over";
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(session.undo.UndoCount(), 1U);
  editor.Undo();
  EXPECT_EQ(Lines()[0].Points.size(), 3U);

  editor.StartWalk(Vertex("PtInPoly", 1, 0));
  Key(Del).Key(Del);
  EXPECT_EQ(session.project.Polys[1].Points.size(), 3U);
  EXPECT_FALSE(session.tool.Walk);
}

TEST_F(WalkTest, DeleteAsksForWhatIsSelectedBesides) {
  editor.StartWalk(Vertex("PtInPoly", 0, 1));
  SelectAllPaths(session.project.Lines, true, session.tool.Selected);
  session.settings.AskDelete = true;
  Key(Del);
  EXPECT_EQ(session.project.Polys[0].Points.size(), 3U);
  EXPECT_EQ(dialogs.questions, std::vector<std::string>{"Delete 3 item(s) ?"});
  EXPECT_EQ(Lines().size(), 3U);
}

TEST_F(WalkTest, SpaceDrawsNothingDuringAWalk) {
  editor.ChooseMode(ModeId::Line);
  editor.StartWalk(Vertex("PtInLine", 0, 0));
  MoveTo({100, 100}).Key(Space).MoveTo({150, 100}).Key(Space);
  EXPECT_EQ(Lines().size(), 3U);
}

TEST_F(WalkTest, AStoredPointMovesTheBoxAndCanBeUndone) {
  const VertexRef vertex{PathKind::Line, 0, 1};
  const PointValues before = *ReadPoint(session.project, vertex);
  editor.ChangePoint(vertex, before);
  EXPECT_FALSE(editor.CanUndo()) << "nothing has changed";
  editor.ChangePoint(vertex, {{7, before.At.lon}, 33});
  EXPECT_EQ(Lines()[0].Box.NLat, 7);
  EXPECT_EQ(Lines()[0].Points[1].Wid, 33);
  editor.Undo();
  EXPECT_EQ(*ReadPoint(session.project, vertex), before);
}

TEST_F(WalkTest, AWatchedPointIsTheSameOnlyWhileItsNumbersMeanIt) {
  const std::tuple<const char*, bool, void (*)(ProjectState&)> changes[] = {
      {"moved", true, [](ProjectState& p) { p.Lines.Edit(2).Points[1].Lat = 1; }},
      {"another line drawn", true,
       [](ProjectState& p) {
         p.Lines.push_back(ALine().Through({{0, 0}, {1, 1}}));
       }},
      {"a line before it gone", false, [](ProjectState& p) { p.Lines.Erase(0); }},
      {"its line gone", false, [](ProjectState& p) { p.Lines.Erase(2); }},
      {"a point before it gone", false,
       [](ProjectState& p) { p.Lines.Edit(2).Points.erase(p.Lines.Edit(2).Points.begin()); }},
      {"a point before it new", false,
       [](ProjectState& p) {
         auto& points = p.Lines.Edit(2).Points;
         points.insert(points.begin(), LinePoint{});
       }},
  };
  for (const auto& [name, there, change] : changes) {
    ProjectState project = session.project;
    const WatchedPoint point(project, {PathKind::Line, 2, 1});
    change(project);
    EXPECT_EQ(point.IsThere(project), there) << name;
  }
}

}  // namespace
}  // namespace landsmith::test
