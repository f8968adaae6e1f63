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

}  // namespace
}  // namespace landsmith::test
