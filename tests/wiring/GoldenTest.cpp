// The drawings under tests/golden and the source texts beside them, which were worked out by hand.
#include "compile/CompileRig.h"
#include "core/Grid.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "wiring/CompileSteps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith::test {
namespace {

/// The small text form that the folders' READMEs tell.
struct GoldenDrawing {
  ProjectState project;
  AppSettings settings;
  std::vector<std::string> steps;
};

std::vector<double> NumbersOf(std::istringstream& words) {
  std::vector<double> numbers;
  for (double number = 0; words >> number;)
    numbers.push_back(number);
  if (!words.eof()) throw std::runtime_error("a word where a number must be");
  return numbers;
}

struct GoldenVertex {
  LatLon at;
  std::optional<float> third;  ///< width or altitude
};

/// `at` CELLX CELLY X Y, `at` CELLX CELLY AREAX AREAY X Y, or LAT LON; a third number may follow.
GoldenVertex ReadVertex(const std::string& first, std::istringstream& words) {
  std::vector<double> numbers = NumbersOf(words);
  const bool onGrid = first == "at";
  if (!onGrid) numbers.insert(numbers.begin(), std::stod(first));
  const std::size_t count = !onGrid ? 2 : numbers.size() < 6 ? 4 : 6;
  if (numbers.size() < count || numbers.size() > count + 1)
    throw std::runtime_error("a vertex that cannot be read: " + words.str());
  const auto whole = [&](std::size_t k) { return static_cast<std::int32_t>(numbers[k]); };
  GoldenVertex vertex;
  if (!onGrid)
    vertex.at = {numbers[0], numbers[1]};
  else if (count == 4)
    vertex.at = PointInCellToLatLon({whole(2), whole(3), 0, 0, whole(0), whole(1)});
  else
    vertex.at = PointInAreaToLatLon({whole(4), whole(5), whole(2), whole(3), whole(0), whole(1)});
  if (numbers.size() > count) vertex.third = static_cast<float>(numbers.back());
  return vertex;
}

FillRec ReadFill(std::istringstream& words) {
  FillRec fill;
  std::string selected;
  words >> selected;
  const std::vector<double> numbers = NumbersOf(words);
  const auto byte = [&](std::size_t k) { return static_cast<std::uint8_t>(numbers.at(k)); };
  fill.Selected = selected == "selected";
  fill.Size = byte(0);
  fill.Type = byte(1);
  fill.Col = byte(2);
  fill.Row = byte(3);
  fill.Height = static_cast<float>(numbers.at(4));
  fill.CellX = static_cast<std::int32_t>(numbers.at(5));
  fill.CellY = static_cast<std::int32_t>(numbers.at(6));
  fill.Box = FillBox(fill);
  return fill;
}

void AddVertex(LineRec& line, const GoldenVertex& vertex) {
  line.Points.push_back({vertex.at.lon, vertex.at.lat, vertex.third.value(), false});
}
void AddVertex(PolyRec& poly, const GoldenVertex& vertex) {
  poly.Points.push_back({vertex.at.lon, vertex.at.lat, vertex.third.value_or(0), false});
}

/// One statement of the line or polygon at hand.
template <class Path>
void ReadStatement(Path& path, const std::string& first, const std::string& rest, std::istringstream& words) {
  if (first == "name")
    path.Name = rest;
  else if (first == "type")
    path.Type = rest;
  else
    AddVertex(path, ReadVertex(first, words));
}

GoldenDrawing ReadGoldenDrawing(std::string_view text) {
  GoldenDrawing result;
  auto& lines = result.project.Lines;
  auto& polys = result.project.Polys;
  bool isPoly = false;
  for (const std::string_view view : SplitLines(text)) {
    std::istringstream words{std::string(view)};
    std::string first, value;
    words >> first;
    const std::string rest(view.substr(std::min(view.size(), first.size() + 1)));
    if (first.empty() || first.front() == '#') continue;
    if (first == "steps") {
      while (words >> value)
        result.steps.push_back(value);
    } else if (first == "set" || first.starts_with("VTP")) {
      if (first == "set") words >> first;
      words >> value;
      SetByName(result.settings, first, value);
    } else if (first == "fill") {
      result.project.Fills.push_back(ReadFill(words));
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

/// A folder of cases: what the drawing is called in each, and what is run unless it says so itself.
struct GoldenSet {
  const char* folder;
  const char* input;
  std::vector<std::string> steps;
};
const GoldenSet Sets[] = {{"vtp", "lines.txt", {"vtp-lines"}},
                          {"vtp-polys", "polys.txt", {"vtp-polys"}},
                          {"exclude", "polys.txt", {"exc-polys"}},
                          {"lwm", "input.txt", {}}};

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

using Texts = std::map<std::string, std::string>;

Texts SourcesIn(const std::filesystem::path& folder) {
  Texts sources;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".scm")
      sources[entry.path().filename().string()] = ReadWholeFile(entry.path());
  return sources;
}

class Golden : public testing::TestWithParam<GoldenCase> {};

TEST_P(Golden, IsByteForByteWhatWasWorkedOut) {
  const GoldenSet& set = *GetParam().set;
  const auto folder = GoldenFolder / set.folder / GetParam().name;
  GoldenDrawing drawing = ReadGoldenDrawing(ReadWholeFile(folder / set.input));
  CompileRig rig;
  rig.project = std::move(drawing.project);
  rig.project.Name = "My Masks";
  rig.settings = drawing.settings;
  rig.options.Mode = CompileMode::SourceOnly;
  const std::vector<std::string>& steps = set.steps.empty() ? drawing.steps : set.steps;
  RunSteps(CompileSteps(), {steps.begin(), steps.end()}, rig.Context());
  EXPECT_TRUE(rig.dialogs.messages.empty());
  Texts written = SourcesIn(rig.folders.Work()), expected = SourcesIn(folder);
  if (expected.contains("expected.scm") && written.size() == 1) {  // a set whose files have one name
    expected = {{written.begin()->first, expected["expected.scm"]}};
  }
  EXPECT_EQ(written, expected) << ReadWholeFile(folder / "about.txt");
}

std::string CaseName(const testing::TestParamInfo<GoldenCase>& row) {
  return ReplaceAll(std::string(row.param.set->folder) + "_" + row.param.name, "-", "_");
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(GoldenCases()), CaseName);

}  // namespace
}  // namespace landsmith::test
