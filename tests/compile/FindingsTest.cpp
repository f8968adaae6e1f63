// What the check before compiling says of lines and polygons, and of their harmless neighbours.
#include "compile/Findings.h"
#include "core/Grid.h"
#include "support/Builders.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace landsmith::test {
namespace {

/// "error The layer": how a finding begins.
using Expected = std::vector<std::string>;

std::string Said(const Finding& finding) {
  return (finding.Severity == FindingSeverity::Error ? "error " : "warning ") + finding.Text;
}

void ExpectFindings(const std::vector<Finding>& findings, const Expected& expected, const std::string& row) {
  std::ostringstream all;
  for (const Finding& finding : findings)
    all << "\n  " << Said(finding);
  ASSERT_EQ(findings.size(), expected.size()) << row << all.str();
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_TRUE(Said(findings[i]).starts_with(expected[i])) << row << all.str();
}

std::vector<Finding> Check(const LineRec& line, const AppSettings& settings = {}) {
  ProjectState project;
  project.Lines.push_back(line);
  project.Lines.EditBack().Selected = true;
  return CheckSelectedItems(project, settings);
}

std::vector<Finding> Check(const PolyRec& poly) {
  ProjectState project;
  project.Polys.push_back(poly);
  project.Polys.EditBack().Selected = true;
  return CheckSelectedItems(project, {});
}

struct InCell {
  double x = 0, y = 0;  ///< in Cells, eastward and northward of 0, 0
};

LineRec RoadInCells(const std::vector<InCell>& places) {
  LineRec line = ALine().Vtp("8", "1004");
  for (const InCell& place : places)
    line.Points.push_back({place.x * CellWidth, place.y * CellHeight, 10, false});
  return line;
}

TEST(FindingsOfLines, GapsAreCellsCrossedWithoutAVertex) {
  const struct {
    const char* name;
    std::vector<InCell> places;
    std::size_t gaps;
    InCell first;
  } rows[] = {
      {"a vertex in each Cell", {{0.5, 0.5}, {1.5, 0.5}, {2.5, 0.5}}, 0, {}},
      {"one Cell between two vertices", {{0.5, 0.5}, {2.5, 0.5}}, 1, {1.5, 0.5}},
      {"three of them, from east to west", {{4.5, 0.5}, {0.5, 0.5}, {0.4, 0.5}}, 3, {3.5, 0.5}},
      {"a corner is cut", {{0.5, 0.5}, {1.5, 1.25}}, 1, {13.0 / 12, 0.9375}},
      {"a corner is cut by a few Points", {{0.5, 0.5}, {1.5, 1.499}}, 1, {1.00025, 0.99975}},
      {"through the corner itself", {{0.5, 0.5}, {1.5, 1.5}}, 0, {}},
      {"a vertex on the corner", {{0.5, 1.5}, {1, 1}, {1.5, 0.5}}, 0, {}},
      {"along a border", {{1, 0.5}, {1, 1.5}}, 0, {}},
      {"another part of the line has a vertex there", {{1.5, 0.2}, {0.5, 0.2}, {2.5, 0.8}}, 1, {1.5, 0.5}},
      {"two stretches", {{0.5, 0.5}, {2.5, 0.5}, {2.5, 2.5}}, 2, {1.5, 0.5}},
  };
  for (const auto& row : rows) {
    const auto findings = Check(RoadInCells(row.places));
    if (row.gaps == 0) {
      ExpectFindings(findings, {}, row.name);
      continue;
    }
    const std::string number = row.gaps == 1 ? "a Cell" : std::to_string(row.gaps) + " Cells";
    ExpectFindings(findings, {"warning The line has gaps, since it crosses " + number}, row.name);
    if (findings.empty()) continue;
    EXPECT_NEAR(findings[0].At.lon, row.first.x * CellWidth, StepLon) << row.name;
    EXPECT_NEAR(findings[0].At.lat, row.first.y * CellHeight, StepLat) << row.name;
  }
}

TEST(FindingsOfLines, TheShiftOfTheSettingsCounts) {
  const LineRec road = RoadInCells({{0.5, 0.5}, {1.001, 0.5}, {2.5, 0.5}});
  AppSettings settings;
  ExpectFindings(Check(road, settings), {}, "not shifted");
  settings.VTPShiftWE = -20;  // of 8192 to the Cell: 0.0024 Cells
  ExpectFindings(Check(road, settings), {"warning The line has gaps, since it crosses a Cell"},
                 "shifted into the first Cell");
}

TEST(FindingsOfLines, FieldsWidthsAndPlaces) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  const struct {
    const char* name;
    const char* type;
    float width;
    double lat;
    Expected expected;
  } rows[] = {
      {"fine", "VTP//8//1004//", 255, 0.2, {}},
      {"the layers' ends", "VTP//63//1004//", 0, 0.2, {}},
      {"a layer in words", "VTP//top//1004//", 10, 0.2, {"error The layer \"top\""}},
      {"no such layer", "VTP//64//1004//", 10, 0.2, {"error The layer 64"}},
      {"neither layer nor texture", "VTP", 10, 0.2, {"error The layer \"\"", "error No texture"}},
      {"a texture in words", "VTP//8//road//", 10, 0.2, {"warning The texture \"road\""}},
      {"a bitmap of two words", "VTP//8//my road.bmp//", 10, 0.2, {"error The texture \"my road.bmp\""}},
      {"too wide", "VTP//8//1004//", 256, 0.2, {"error 2 vertices have widths"}},
      {"too wide by what rounding takes away", "VTP//8//1004//", 255.4F, 0.2, {"warning 2 vertices"}},
      {"narrower than nothing", "VTP//8//1004//", -1, 0.2, {"error 2 vertices"}},
      {"no width", "VTP//8//1004//", nan, 0.2, {"error 2 vertices"}},
      {"beyond the pole", "VTP//8//1004//", 10, 90.5, {"error 2 vertices lie outside"}},
      {"nowhere", "VTP//8//1004//", 10, std::numeric_limits<double>::quiet_NaN(), {"error 2 vertices lie"}},
      {"nothing compiles it", "Objects//", 300, 95, {}},
  };
  for (const auto& row : rows) {
    LineRec line = ALine().Through({{row.lat, 0.1}, {row.lat, 0.2}}, row.width);
    line.Type = row.type;
    const auto findings = Check(line);
    ExpectFindings(findings, row.expected, row.name);
    for (const Finding& finding : findings)
      EXPECT_LE(std::abs(finding.At.lat), 90) << row.name;  // not so for what is no number
  }
}

TEST(FindingsOfLines, OnePlaceOnTheGridIsNoLine) {
  const Expected nothing{"warning The line has no two different vertices"};
  ExpectFindings(Check(ALine().Vtp("8", "1004").Through({{0.1, 0.1}})), nothing, "one vertex");
  ExpectFindings(Check(ALine().Vtp("8", "1004").Through({{0.1, 0.1}, {0.1, 0.1 + StepLon / 100}})), nothing,
                 "two on one Point");
}

struct InSteps {
  double x = 0, y = 0;  ///< in steps of the lattice, eastward and northward of 0, 0
  float altitude = 10;
};

PolyRec PolyInSteps(const char* type, const std::vector<InSteps>& places) {
  PolyRec poly;
  poly.Type = type;
  for (const InSteps& place : places)
    poly.Points.push_back({place.x * StepLon, place.y * StepLat, place.altitude, false});
  return poly;
}

const std::vector<InSteps> Square{{10, 10}, {30, 10}, {30, 30}, {10, 30}};
const std::vector<InSteps> BowTie{{10, 10}, {30, 30}, {30, 10}, {10, 30}};
const std::vector<InSteps> Speck{{10, 10}, {10.3, 10}, {10.3, 10.3}, {10, 10.3}};
/// One vertex lies a little beyond the first edge, and comes to lie on it.
const std::vector<InSteps> Dip{{10, 10}, {30, 10}, {30, 30}, {20, 9.8}, {10, 30}};
const std::vector<InSteps> Ramp{{10, 10, 10}, {30, 10, 20}, {30, 30, 20}, {10, 30, 10}};

TEST(FindingsOfPolys, ShapesFieldsAndAltitudes) {
  const Expected crosses{"warning The polygon crosses itself"};
  const Expected vanishes{"warning The polygon has no area"};
  const struct {
    const char* name;
    const char* type;
    std::vector<InSteps> places;
    Expected expected;
  } rows[] = {
      {"a lake", "LWM//Water//10//10//1//1//", Square, {}},
      {"crossed", "LWM//Water//10//10//1//1//", BowTie, crosses},
      {"within a Point", "LWM//Water//10//10//1//1//", Speck, vanishes},
      {"along a line", "LWM//Land//10//10//1//1//", {{10, 10}, {20, 20}, {30, 30}}, vanishes},
      {"touching on the grid", "LWM//Land//10//10//1//1//", Dip, {}},
      {"no such kind", "LWM//Sea//10//10//1//1//", Square, {"error The polygon is to be land"}},
      {"a word for an altitude", "LWM//Land//10//low//1//1//", Square, {"error The altitude \"low\""}},
      {"level with a vertex that is not",
       "LWM//Land//10//10//1//1//",
       Ramp,
       {"warning The polygon is compiled level at 10 m"}},
      {"level, at another altitude", "LWM//Flatten//99.5//99.50//1//1//", Square, {}},
      {"a slope", "LWM//Land//20//10//2//1//", Ramp, {}},
      {"a slope of level vertices",
       "LWM//Land//20//10//2//1//",
       Square,
       {"warning The slope from 20 m to 10 m has all"}},
      {"a slope along a level edge",
       "LWM//Land//20//10//3//2//",
       Ramp,
       {"warning The slope from 20 m to 10 m begins and ends at vertices of 20 m"}},
      {"a slope at no vertex",
       "LWM//Land//20//10//5//1//",
       Ramp,
       {"error The slope from 20 m to 10 m is given"}},
      {"a step",
       "LWM//Land//20//10//2//2//",
       Ramp,
       {"error The slope from 20 m to 10 m begins and ends at one place"}},
      {"above the sky", "LWM//Land//40000//40000//1//1//", Square, {"error The altitude 40000 m is farther"}},
      {"round the world",
       "LWM//Water//10//10//1//1//",
       {{-3e6, 4e4}, {3e6, 4e4}, {3e6, -4e4}, {-3e6, -4e4}},
       {"error The polygon is too large"}},
      {"a quarry", "VTP//4//12//", Square, {}},
      {"a crossed quarry without texture", "VTP//4////", BowTie, {"error No texture", crosses[0]}},
      {"layers left out", "Other//-2147483640//-2147483648//-2147483648//-2147483648//", Square, {}},
      {"no layer left out",
       "Other//-2147483648//-2147483648//-2147483648//-2147483648//",
       Square,
       {"warning The polygon excludes no layer"}},
      {"three masks", "Other//1//2//3//", Speck, {"error The layers", vanishes[0]}},
      {"a roof of a metre", "TEX//roof.bmp//4//1//1//5000//0//0,0//256,0//256,256//0,256//", Speck, {}},
      {"a roof that crosses by half a metre", "TEX//roof.bmp//4//1//1//5000//0//", Dip, crosses},
      {"fields in words",
       "TEX//roof.bmp//top//1//two//far//dark//",
       Square,
       {"error The bitmap is repeated \"1\" by \"two\"", "error The priority \"top\"",
        "error The visibility \"far\"", "error The mark for a night"}},
      {"too few pairs are made anew", "TEX//roof.bmp//4//1//1//5000//0//a,0//", Square, {}},
      {"a pair of words",
       "TEX//roof.bmp//4//1//1//5000//0//0,0//256,0//east,256//0,256//",
       Square,
       {"error The place of vertex 3"}},
      {"a bitmap without a name", "TEX//.bmp//4//1//1//5000//0//", Square, {"error The bitmap's name"}},
      {"numbers that the tool does not take",
       "TEX//roof.bmp//4.5//1//1//-5//0//",
       Square,
       {"error The priority \"4.5\"", "error The visibility \"-5\""}},
      {"the highest priority", "TEX//roof.bmp//255//1.4//1//0//1//", Square, {}},
      {"a bitmap's name that is two statements",
       "TEX//a\nEnd.bmp//4//1//1//5000//0//",
       Square,
       {"error The bitmap's name"}},
      {"a roof in space",
       "TEX//roof.bmp//4//1//1//5000//0//",
       {{10, 10}, {30, 10, 1e30F}, {30, 30}},
       {"error A vertex has an altitude"}},
      {"no vertices", "TEX//roof.bmp//4//1//1//5000//0//", {}, vanishes},
      {"beyond the date line",
       "LWM//Land//1//1//1//1//",
       {{10, 10}, {30, 10}, {4e6, 30}},
       {"error A vertex lies outside the world"}},
      {"nothing compiles it", "", BowTie, {}},
  };
  for (const auto& row : rows) {
    ExpectFindings(Check(PolyInSteps(row.type, row.places)), row.expected, row.name);
  }
}

/// A comb in one Area: a tooth has four vertices, its back two.
std::vector<InSteps> Comb(int teeth) {
  std::vector<InSteps> ring;
  for (int x = 10; x < 10 + 2 * teeth; x += 2)
    for (const InSteps& at : {InSteps{0, 60}, InSteps{0, 200}, InSteps{1, 200}, InSteps{1, 60}})
      ring.push_back({x + at.x, at.y});
  ring.push_back({10.0 + 2 * teeth, 20});
  ring.push_back({10, 20});
  return ring;
}

TEST(FindingsOfPolys, PiecesOfAMaskThatTheToolTakes) {
  const Expected tooLarge{"error The polygon has 322 points in one Area"};
  ExpectFindings(Check(PolyInSteps("LWM//Land//10//10//1//1//", Comb(79))), {}, "318 points");
  ExpectFindings(Check(PolyInSteps("LWM//Land//10//10//1//1//", Comb(80))), tooLarge, "322 points");
  ExpectFindings(Check(PolyInSteps("VTP//4//12//", Comb(80))), {}, "no mask");
}

FillRec AFillOf(std::uint8_t size, std::uint8_t type, std::uint8_t col, float height) {
  FillRec fill;
  fill.Selected = true;
  fill.Size = size;
  fill.Type = type;
  fill.Col = col;
  fill.Height = height;
  return fill;
}

TEST(FindingsOfPolys, TheKnotIsWhereToLook) {
  const auto findings = Check(PolyInSteps("VTP//4//12//", BowTie));
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_NEAR(findings[0].At.lon, 20 * StepLon, 1e-9);
  EXPECT_NEAR(findings[0].At.lat, 20 * StepLat, 1e-9);
}

TEST(FindingsOfFills, WhatTheToolRefuses) {
  const struct {
    const char* name;
    FillRec fill;
    Expected expected;
  } rows[] = {
      {"the last block", AFillOf(2, 0, 15, 5), {}},
      {"one block farther", AFillOf(2, 0, 16, 5), {"error The fill's block 16, 0"}},
      {"no such size", AFillOf(3, 0, 0, 5), {"error The fill cannot be written: a side of 3"}},
      {"no such type", AFillOf(1, 3, 0, 5), {"error The fill cannot be written: the type 3"}},
      {"land has no height", AFillOf(1, 1, 0, 1e30F), {}},
      {"water in space", AFillOf(1, 0, 0, 1e30F), {"error The altitude 1E+30 m"}},
  };
  for (const auto& row : rows) {
    ProjectState project;
    project.Fills.push_back(row.fill);
    ExpectFindings(CheckSelectedItems(project, {}), row.expected, row.name);
  }
}

TEST(Findings, SelectedItemsInTheirOrderLinesFirst) {
  ProjectState project;
  for (const bool selected : {true, false, true}) {
    project.Lines.push_back(RoadInCells({{0.5, 0.5}, {2.5, 0.5}}));
    project.Lines.EditBack().Selected = selected;
    project.Polys.push_back(PolyInSteps("VTP//4//12//", BowTie));
    project.Polys.EditBack().Selected = selected;
  }
  std::ostringstream order;
  for (const Finding& finding : CheckSelectedItems(project, {}))
    order << finding.Kind << finding.Item << ' ';
  EXPECT_EQ(order.str(), "Line0 Line2 Poly0 Poly2 ");
}

}  // namespace
}  // namespace landsmith::test
