#include "compile/CompileRig.h"
#include "core/Grid.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "wiring/CompileSteps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {
namespace {

// The small text form of masks that the cases' README tells.
struct GoldenMasks {
  ProjectState project;
  AppSettings settings;
  std::vector<std::string> steps;
};

FillRec ReadFill(std::istringstream& words) {
  std::string selected;
  int size = 0, type = 0, col = 0, row = 0;
  FillRec fill;
  words >> selected >> size >> type >> col >> row >> fill.Height >> fill.CellX >> fill.CellY;
  if (!words) throw std::runtime_error("a fill that cannot be read");
  fill.Selected = selected == "selected";
  fill.Size = static_cast<std::uint8_t>(size);
  fill.Type = static_cast<std::uint8_t>(type);
  fill.Col = static_cast<std::uint8_t>(col);
  fill.Row = static_cast<std::uint8_t>(row);
  fill.Box = FillBox(fill);
  return fill;
}

PolyPoint ReadVertex(std::istringstream& words) {
  GridPosition position;
  words >> position.CellX >> position.CellY >> position.AreaX >> position.AreaY;
  words >> position.PointX >> position.PointY;
  if (!words) throw std::runtime_error("a vertex that cannot be read");
  const LatLon at = PointInAreaToLatLon(position);
  PolyPoint point;
  point.Lat = at.lat;
  point.Lon = at.lon;
  words >> point.Alt;
  return point;
}

void ReadSetting(AppSettings& settings, std::istringstream& words) {
  std::string key;
  bool value = false;
  words >> key >> value;
  (key == "FillAsPoly" ? settings.FillAsPoly : settings.SingleLWMBGL) = value;
}

GoldenMasks ReadGoldenMasks(std::string_view text) {
  GoldenMasks result;
  auto& polys = result.project.Polys;
  for (const std::string_view line : SplitLines(text)) {
    std::istringstream words{std::string(line)};
    std::string first;
    words >> first;
    const std::string rest(line.substr(std::min(line.size(), first.size() + 1)));
    if (first.empty() || first.front() == '#') continue;
    if (first == "steps")
      for (std::string step; words >> step;)
        result.steps.push_back(step);
    else if (first == "set")
      ReadSetting(result.settings, words);
    else if (first == "fill")
      result.project.Fills.push_back(ReadFill(words));
    else if (first == "poly")
      polys.emplace_back().Selected = rest == "selected";
    else if (first == "name")
      polys.EditBack().Name = rest;
    else if (first == "type")
      polys.EditBack().Type = rest;
    else if (first == "at")
      polys.EditBack().Points.push_back(ReadVertex(words));
    else
      throw std::runtime_error("a statement that is none: " + first);
  }
  return result;
}

const std::filesystem::path CasesFolder = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden/lwm";

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(CasesFolder))
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::map<std::string, std::string> SourcesIn(const std::filesystem::path& folder) {
  std::map<std::string, std::string> sources;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".scm")
      sources[entry.path().filename().string()] = ReadWholeFile(entry.path());
  return sources;
}

class LwmGolden : public testing::TestWithParam<std::string> {};

TEST_P(LwmGolden, LeavesTheFilesWrittenByHand) {
  const auto folder = CasesFolder / GetParam();
  GoldenMasks input = ReadGoldenMasks(ReadWholeFile(folder / "input.txt"));
  CompileRig rig;
  rig.project = std::move(input.project);
  rig.project.Name = "My Masks";
  rig.settings = input.settings;
  rig.options.Mode = CompileMode::SourceOnly;
  RunSteps(CompileSteps(), {input.steps.begin(), input.steps.end()}, rig.Context());
  EXPECT_EQ(SourcesIn(rig.folders.Work()), SourcesIn(folder)) << ReadWholeFile(folder / "about.txt");
  EXPECT_TRUE(rig.dialogs.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Cases, LwmGolden, testing::ValuesIn(CaseNames()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace landsmith::test
