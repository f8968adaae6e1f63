#include "compile/CompileRig.h"
#include "platform/Paths.h"
#include "support/Builders.h"
#include "wiring/CompileSteps.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace landsmith::test {
namespace {

std::vector<std::string> StepsWithData(const ProjectState& project) {
  std::vector<std::string> names;
  for (const StepInfo& step : CompileSteps())
    if (step.HasData != nullptr && step.HasData(project)) names.emplace_back(step.Name);
  return names;
}

TEST(CompileSteps, AreOfferedForSelectedItems) {
  const struct {
    const char* name;
    std::vector<std::string> steps;
    std::function<void(ProjectState&)> fill;
  } rows[] = {{"unselected",
               {},
               [](ProjectState& project) {
                 project.Lines = {ALine().Vtp("4", "1280")};
                 project.Fills.emplace_back();
                 project.Polys.emplace_back().Type = "LWM//";
                 project.Lands.Set(10, 10, 5);
               }},
              {"lands", {"land"}, [](ProjectState& project) { project.Lands.Set(10, 10, 133); }},
              {"an_empty_cell_of_128", {}, [](ProjectState& project) { project.Lands.Set(10, 10, 128); }},
              {"waters",
               {"water"},
               [](ProjectState& project) {
                 project.Waters.Set(10, 10, 133);
                 project.NoOfWaters = 1;
               }},
              {"waters_not_counted", {}, [](ProjectState& project) { project.Waters.Set(10, 10, 133); }},
              {"polygons_by_head",
               {"lwm", "tex", "vtp-polys", "exc-polys"},
               [](ProjectState& project) {
                 for (const char* type : {"Other//1//", "VTP//4//1280//", "TEX//a//", "LWM//Water//", ""}) {
                   PolyRec& poly = project.Polys.emplace_back();
                   poly.Type = type;
                   poly.Selected = true;
                 }
               }},
              {"the_rest_in_run_order",
               {"fills", "vtp-lines", "meshes", "objects", "excludes"},
               [](ProjectState& project) {
                 project.Excludes.emplace_back().Selected = true;
                 project.Objects.emplace_back().Selected = true;
                 project.Meshes.emplace_back().Selected = true;
                 project.Lines = {ALine().Vtp("4", "1280").Selected()};
                 project.Fills.emplace_back().Selected = true;
               }}};
  for (const auto& row : rows) {
    ProjectState project;
    row.fill(project);
    EXPECT_EQ(StepsWithData(project), row.steps) << row.name;
  }
}

TEST(CompileSteps, StandInTheirFixedOrder) {
  std::string order;
  for (const StepInfo& step : CompileSteps())
    order += std::string(step.Name) + " ";
  EXPECT_EQ(order,
            "land water photo bitmaps xphoto xbitmaps fills lwm tex vtp-polys exc-polys vtp-lines meshes "
            "objects excludes ");
}

/// A fill, a flat and, when asked for, a sloped polygon, all selected.
ProjectState Masks(bool withSlope) {
  ProjectState project;
  project.Name = "A B";
  project.Fills.emplace_back().Selected = true;
  const auto add = [&](const char* type) {
    PolyRec& poly = project.Polys.emplace_back();
    poly.Type = type;
    poly.Selected = true;
    poly.Points = {{8.1, 47.5, 2, false}, {8.101, 47.501, 1, false}, {8.102, 47.5, 1, false}};
  };
  add("LWM//Water//1//1//1//1//");
  if (withSlope) add("LWM//Flatten//2//1//1//2//");
  return project;
}

TEST(CompileSteps, PairFillsAndLwmPolygonsInOneFile) {
  const std::string fills = "FILLS_A_B_LWM2", flat = "A_B_LWM2", sloped = "A_B_LWM3";
  using Names = std::vector<std::string>;
  const struct {
    bool single, withSlope;
    std::vector<std::string_view> boxes;
    std::string failing;  // the tool refuses this file
    Names ran;
  } rows[] = {
      {true, false, {"fills", "lwm"}, "", {flat}},
      {true, true, {"fills", "lwm"}, "", {flat, sloped}},
      {true, true, {"fills", "lwm"}, flat, {flat, sloped}},
      {true, true, {"fills"}, "", {fills}},
      {true, true, {"lwm"}, "", {sloped, flat}},
      {true, true, {"lwm"}, sloped, {sloped}},
      {false, true, {"fills", "lwm"}, "", {fills, sloped, flat}},
      {false, true, {"fills", "lwm"}, fills, {fills, sloped, flat}},
  };
  for (const auto& row : rows) {
    CompileRig rig;
    rig.project = Masks(row.withSlope);
    rig.settings.SingleLWMBGL = row.single;
    Names expected;
    for (const std::string& name : row.ran)
      expected.push_back("scasm work\\" + name + ".scm -l");
    rig.tools.answer = [&](const std::string& command) {
      const std::string name = command.substr(11, command.find(".scm") - 11);
      if (name == row.failing) return 1;
      WriteWholeFile(rig.folders.Work() / (name + ".BGL"), "bgl");
      return 0;
    };
    RunSteps(CompileSteps(), row.boxes, rig.Context());
    EXPECT_EQ(rig.tools.ran, expected);
    EXPECT_EQ(rig.report.Failed, !row.failing.empty());
    EXPECT_TRUE(rig.dialogs.messages.empty());
  }
}

}  // namespace
}  // namespace landsmith::test
