#include "compile/ExcludePolys.h"
#include "compile/VtpLines.h"
#include "compile/VtpPolys.h"
#include "core/Grid.h"
#include "core/Text.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace landsmith::test {
namespace {

// The small text form of lines and polygons that the cases and the reference of the lines share.
struct GoldenDrawing {
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

/// `at CELLX CELLY X Y` or `LAT LON`.
LatLon ReadPlace(const std::string& first, std::istringstream& rest) {
  LatLon at;
  if (first == "at") {
    GridPositionCell position;
    rest >> position.CellX >> position.CellY >> position.PointX >> position.PointY;
    at = PointInCellToLatLon(position);
  } else {
    at.lat = std::stod(first);
    rest >> at.lon;
  }
  if (!rest) throw std::runtime_error("a vertex that cannot be read: " + first);
  return at;
}

/// Lines alone have a width behind the place.
void AddVertex(LineRec& line, LatLon at, std::istringstream& rest) {
  LinePoint point{at.lon, at.lat, 0, false};
  if (!(rest >> point.Wid)) throw std::runtime_error("a vertex without a width");
  line.Points.push_back(point);
}
void AddVertex(PolyRec& poly, LatLon at, std::istringstream&) {
  poly.Points.push_back({at.lon, at.lat, 0, false});
}

/// One statement of the record at hand.
template <class Path>
void ReadStatement(Path& path, const std::string& first, const std::string& rest, std::istringstream& words) {
  if (first == "name")
    path.Name = rest;
  else if (first == "type")
    path.Type = rest;
  else
    AddVertex(path, ReadPlace(first, words), words);
}

GoldenDrawing ReadGoldenDrawing(std::string_view text) {
  GoldenDrawing result;
  auto& lines = result.project.Lines;
  auto& polys = result.project.Polys;
  bool isPoly = false;
  for (const std::string_view view : SplitLines(text)) {
    std::istringstream words{std::string(view)};
    std::string first;
    words >> first;
    const std::string rest(view.substr(std::min(view.size(), first.size() + 1)));
    if (first.empty() || first.front() == '#') continue;
    if (first.starts_with("VTP")) {
      ReadSetting(result.settings, first, words);
    } else if (first == "line" || first == "poly") {
      isPoly = first == "poly";
      (isPoly ? polys.emplace_back().Selected : lines.emplace_back().Selected) = rest == "selected";
    } else if (isPoly) {
      ReadStatement(polys.EditBack(), first, rest, words);
    } else {
      ReadStatement(lines.EditBack(), first, rest, words);
    }
  }
  return result;
}

/// A folder of cases, each with its input, `expected.scm` and `about.txt`.
struct GoldenSet {
  const char* folder;
  const char* input;
  std::string (*source)(const GoldenDrawing&);
};

const GoldenSet Sets[] = {
    {"vtp", "lines.txt",
     [](const GoldenDrawing& of) { return VtpLineSource(of.project, of.settings).value(); }},
    {"vtp-polys", "polys.txt",
     [](const GoldenDrawing& of) { return VtpPolySource(of.project, of.settings).value(); }},
    {"exclude", "polys.txt", [](const GoldenDrawing& of) { return ExcludePolySource(of.project); }},
};

const std::filesystem::path GoldenFolder = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden";

struct GoldenCase {
  const GoldenSet* set;
  std::string name;
};
void PrintTo(const GoldenCase& of, std::ostream* out) {
  *out << of.set->folder << "/" << of.name;
}

std::vector<GoldenCase> GoldenCases() {
  std::vector<GoldenCase> cases;
  for (const GoldenSet& set : Sets)
    for (const auto& entry : std::filesystem::directory_iterator(GoldenFolder / set.folder))
      if (entry.is_directory()) cases.push_back({&set, entry.path().filename().string()});
  std::sort(cases.begin(), cases.end(), [](const GoldenCase& a, const GoldenCase& b) {
    return std::tie(a.set, a.name) < std::tie(b.set, b.name);
  });
  return cases;
}

class VtpGolden : public testing::TestWithParam<GoldenCase> {};

TEST_P(VtpGolden, IsByteForByteWhatWasWorkedOut) {
  const GoldenSet& set = *GetParam().set;
  const auto folder = GoldenFolder / set.folder / GetParam().name;
  const std::string source = set.source(ReadGoldenDrawing(ReadWholeFile(folder / set.input)));
  EXPECT_EQ(ToWindows1252(source), ReadWholeFile(folder / "expected.scm"))
      << ReadWholeFile(folder / "about.txt");
}

std::string CaseName(const testing::TestParamInfo<GoldenCase>& row) {
  std::string name = std::string(row.param.set->folder) + "_" + row.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Cases, VtpGolden, testing::ValuesIn(GoldenCases()), CaseName);

}  // namespace
}  // namespace landsmith::test
