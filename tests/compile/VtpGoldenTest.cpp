#include "compile/VtpLines.h"
#include "core/Grid.h"
#include "core/Text.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {
namespace {

// The small text form of lines that the cases and their reference share.
struct GoldenLines {
  ProjectState project;
  AppSettings settings;
};

void ReadSetting(AppSettings& settings, const std::string& key, std::istringstream& rest) {
  if (key == "VTPShiftNS")
    rest >> settings.VTPShiftNS;
  else if (key == "VTPShiftWE")
    rest >> settings.VTPShiftWE;
  else
    rest >> settings.VTPReplace;
}

/// `at CELLX CELLY X Y WIDTH` or `LAT LON WIDTH`.
LinePoint ReadVertex(const std::string& first, std::istringstream& rest) {
  LinePoint point;
  if (first == "at") {
    GridPositionCell position;
    rest >> position.CellX >> position.CellY >> position.PointX >> position.PointY >> point.Wid;
    const LatLon at = PointInCellToLatLon(position);
    point.Lat = at.lat;
    point.Lon = at.lon;
  } else {
    point.Lat = std::stod(first);
    rest >> point.Lon >> point.Wid;
  }
  if (!rest) throw std::runtime_error("a vertex that cannot be read: " + first);
  return point;
}

GoldenLines ReadGoldenLines(std::string_view text) {
  GoldenLines result;
  auto& lines = result.project.Lines;
  for (const std::string_view view : SplitLines(text)) {
    std::istringstream words{std::string(view)};
    std::string first;
    words >> first;
    const std::string rest(view.substr(std::min(view.size(), first.size() + 1)));
    if (first.empty() || first.front() == '#') continue;
    if (first.starts_with("VTP")) {
      ReadSetting(result.settings, first, words);
    } else if (first == "line") {
      lines.emplace_back().Selected = rest == "selected";
    } else if (first == "name") {
      lines.EditBack().Name = rest;
    } else if (first == "type") {
      lines.EditBack().Type = rest;
    } else {
      lines.EditBack().Points.push_back(ReadVertex(first, words));
    }
  }
  return result;
}

const std::filesystem::path CasesFolder = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden/vtp";

std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(CasesFolder))
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

class VtpGolden : public testing::TestWithParam<std::string> {};

TEST_P(VtpGolden, IsByteForByteWhatTheReferenceWrote) {
  const auto folder = CasesFolder / GetParam();
  const GoldenLines input = ReadGoldenLines(ReadWholeFile(folder / "lines.txt"));
  const auto source = VtpLineSource(input.project, input.settings);
  ASSERT_TRUE(source.has_value());
  EXPECT_EQ(ToWindows1252(*source), ReadWholeFile(folder / "expected.scm"))
      << ReadWholeFile(folder / "about.txt");
}

INSTANTIATE_TEST_SUITE_P(Cases, VtpGolden, testing::ValuesIn(CaseNames()),
                         [](const auto& row) { return row.param; });

}  // namespace
}  // namespace landsmith::test
