// The order of the search, where it goes on, and what it says when nothing is found.
#include "EditorRig.h"
#include "editor/Find.h"
#include "editor/SelectKinds.h"

#include <gtest/gtest.h>

namespace landsmith::test {
namespace {

ProjectState Sample() {
  ProjectState project;
  for (const char* name : {"Coast road", "River", "COAST path", "Coast"})
    project.Lines.push_back(ALine().Named(name).Vtp("7", "pier").Through({{1, 1}, {2, 3}}));
  project.Lines.Edit(1).Type = "Objects//";
  PolyRec lake;
  lake.Name = "Pier lake";
  lake.Box = {4, 2, 10, 20};
  project.Polys = {lake, PolyRec{}};
  ObjectRec sign, sock;
  sign.Type = 8;
  sign.Description = "3|C|pier|Left";
  sock.Type = 64;
  sock.Description = "1|6|2|255|255|Mât";
  project.Objects = {sign, sock};
  return project;
}

/// "L13 P1 O2": the numbers of what is selected.
std::string SelectedItems(const ProjectState& project) {
  std::string text;
  const auto add = [&](const char* kind, const auto& records) {
    std::string numbers;
    for (std::size_t i = 0; i < records.size(); ++i)
      if (records[i].Selected) numbers += std::to_string(i + 1);
    if (!numbers.empty()) text += (text.empty() ? "" : " ") + (kind + numbers);
  };
  add("L", project.Lines);
  add("P", project.Polys);
  add("O", project.Objects);
  return text;
}

using F = FindRequest;

TEST(Find, LooksInTheTickedFieldsInTheirOrder) {
  struct Row {
    const char* text;
    std::vector<bool F::*> in;
    FindScope scope;
    const char* selected;
    const char* refusal = "";
  };
  const std::vector<bool F::*> all{&F::Lines,     &F::LineTypes, &F::Polys,
                                   &F::PolyTypes, &F::Objects,   &F::ObjectTypes};
  const Row rows[] = {
      {" coast ", {&F::Lines}, FindScope::All, "L134"},
      {"coast", {&F::Lines}, FindScope::Next, "L1"},
      {"path", {&F::Lines, &F::LineTypes}, FindScope::Next, "L3"},
      {"pier", {&F::Lines, &F::LineTypes}, FindScope::All, "L134"},
      {"pier", {&F::LineTypes, &F::Polys, &F::Objects}, FindScope::Next, "L1"},
      {"pier", {&F::Polys, &F::Objects}, FindScope::Next, "P1"},
      {"pier", {&F::LineTypes, &F::Polys, &F::Objects}, FindScope::All, "L134 P1 O1"},
      {"river", all, FindScope::All, "L2", "No Polygon found !"},
      {"", {&F::Polys}, FindScope::All, "P2"},
      {"", {&F::Lines}, FindScope::All, "", "No Line found !"},
      {"", {&F::ObjectTypes}, FindScope::Next, "", "Object not found !"},
      {"MÂT", {&F::Objects}, FindScope::Next, "O2"},
      {"6", {&F::ObjectTypes}, FindScope::All, "O2"},
      {"sign", {&F::ObjectTypes}, FindScope::All, "O1"},
      {"quay", {&F::Lines, &F::Polys}, FindScope::Next, "", "Line not found !"},
      {"quay", {&F::PolyTypes}, FindScope::Next, "", "Polygon not found !"},
      {"quay", {&F::Objects}, FindScope::All, "", "No Object found !"},
  };
  for (const Row& row : rows) {
    ProjectState project = Sample();
    FindRequest request;
    request.Text = row.text;
    for (const auto field : row.in)
      request.*field = true;
    std::size_t lastHit = 0;
    Selection selection;
    const FindOutcome outcome = FindItems(project, request, row.scope, lastHit, selection);
    const std::string selected = SelectedItems(project);
    EXPECT_EQ(selected, row.selected) << row.text;
    EXPECT_EQ(outcome.Refusal, row.refusal) << row.text;
    const auto items = std::count_if(selected.begin(), selected.end(), [](char c) { return isdigit(c); });
    EXPECT_EQ(selection.SelectedCount, items) << row.text << ": an item found twice counts once";
    EXPECT_EQ(outcome.Found, items > 0);
  }
}

TEST(Find, NextGoesOnBehindTheLastHitAndWrapsBeforeTheLastItem) {
  struct Row {
    std::size_t lines, hits;  ///< the last `hits` lines match
    std::vector<std::size_t> found;
  };
  const Row rows[] = {{1, 1, {1, 1, 1}},  // it equals the count at once
                      {2, 2, {1, 1}},       {3, 3, {1, 2, 1}},
                      {4, 4, {1, 2, 3, 1}}, {4, 1, {4, 4}},  // nothing else matches
                      {5, 2, {4, 4, 4}},    {3, 2, {2, 2}}};
  for (const Row& row : rows) {
    ProjectState project;
    for (std::size_t i = 0; i < row.lines; ++i)
      project.Lines.push_back(ALine().Named(i + row.hits < row.lines ? "river" : "road"));
    std::size_t lastHit = 0;
    for (const std::size_t expected : row.found) {
      Selection selection;
      FindItems(project, {"road", true}, FindScope::Next, lastHit, selection);
      EXPECT_EQ(lastHit, expected) << row.hits << " of " << row.lines;
    }
  }
}

struct FindCommand : testing::Test, EditorRig {};

TEST_F(FindCommand, SelectsAloneShowsTheKindAndGoesThere) {
  AddLine({{-10, 0}, {10, 0}});
  session.project.Lines.EditBack().Selected = true;
  RecountSelection(session.project, session.tool.Selected);
  PolyRec lake;
  lake.Name = "Lake";
  lake.Box = {4, 2, 10, 20};
  session.project.Polys = {lake};
  session.view.ShowFlag[static_cast<std::size_t>(LayerKind::Polys)] = false;
  std::size_t lastHit = 0;
  FindRequest request;
  request.Text = "lake";
  request.Polys = true;
  editor.Find(request, FindScope::Next, lastHit);
  EXPECT_EQ(SelectedItems(session.project), "P1");
  EXPECT_EQ(Selected(), 1);
  EXPECT_EQ(session.view.LatDispCenter, 3);
  EXPECT_EQ(session.view.LonDispCenter, 15);
  EXPECT_TRUE(session.view.Shows(LayerKind::Polys));
  EXPECT_EQ(dialogs.beeps, 1);
  EXPECT_FALSE(session.project.Dirty);
  EXPECT_FALSE(editor.CanUndo());

  request.Text = "mill";
  editor.Find(request, FindScope::All, lastHit);
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(dialogs.messages.back().text, "No Polygon found !");
  EXPECT_EQ(dialogs.beeps, 1);
}

}  // namespace
}  // namespace landsmith::test
