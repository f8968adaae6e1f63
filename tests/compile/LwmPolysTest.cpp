#include "CompileRig.h"
#include "compile/LwmPolys.h"
#include "compile/LwmText.h"
#include "core/Grid.h"
#include "support/Errors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

namespace landsmith::test {
namespace {

using testing::HasSubstr;

/// A selected polygon in degrees.
PolyRec AMask(const std::string& type, std::initializer_list<LatLon> places) {
  PolyRec poly;
  poly.Name = "Old harbour";
  poly.Type = type;
  poly.Selected = true;
  for (const LatLon& at : places)
    poly.Points.push_back({at.lon, at.lat, 0, false});
  return poly;
}

const std::initializer_list<LatLon> SomeTriangle{{47.5, 8.1}, {47.501, 8.101}, {47.5, 8.102}};

TEST(LwmPolySources, NameThePolygonTheyCannotWrite) {
  const struct {
    const char* type;
    const char* found;
  } rows[] = {{"LWM//Sea//1//1//1//1//", "LWM//Sea//"},
              {"LWM//", "LWM//"},
              {"LWM//Land//", "highest altitude \"\""},
              {"LWM//Water//high//1//1//1//", "highest altitude \"high\""},
              {"LWM//Water//1//1e39//1//1//", "lowest altitude \"1e39\""},
              {"LWM//Flatten//2//1//0//3//", "vertex of the highest altitude is \"0\""},
              {"LWM//Flatten//2//1//1//4//", "vertex of the lowest altitude is \"4\""},
              {"LWM//Flatten//2//1//first//2//", "\"first\""},
              {"LWM//Flatten//2//1//2//2//", "vertices 2 and 2 lie at one place"}};
  for (const auto& row : rows) {
    ProjectState project;
    project.Polys = {AMask("VTP//4//1280//", SomeTriangle), AMask(row.type, SomeTriangle)};
    const auto failure = [&](LwmPolyChoice choice) {
      return ErrorOf([&] { LwmPolySources(project, choice); });
    };
    const std::string text = failure(LwmPolyChoice::FlatAndSloped);
    EXPECT_THAT(text, HasSubstr("polygon 2 \"Old harbour\""));
    EXPECT_THAT(text, HasSubstr(row.found));
    EXPECT_EQ(failure(LwmPolyChoice::SlopedAlone), text);
    EXPECT_EQ(ErrorOf([&] { LwmFillAndPolySource(project, {}); }), text);
  }
}

TEST(LwmPolySources, NameAPolygonThatIsNowhereOnTheGrid) {
  ProjectState project;
  project.Polys = {AMask("LWM//Land//1//1//1//1//", {{47.5, 8.1}, {1e300, 8.1}, {47.5, 8.2}})};
  EXPECT_THAT(ErrorOf([&] { LwmPolySources(project, LwmPolyChoice::FlatAndSloped); }),
              HasSubstr("polygon 1 \"Old harbour\""));
}

TEST(LwmPolySources, AreWithoutWhatFallsOnOneLineOfPoints) {
  ProjectState project;
  const double far = 1e-6;  // less than a Point
  project.Polys = {AMask("LWM//Land//1//1//1//1//", {{60, 8.1}, {60 + far, 8.1}, {60, 8.1 + far}}),
                   AMask("LWM//Land//1//1//1//1//", SomeTriangle)};
  const std::string source = LwmPolySources(project, LwmPolyChoice::FlatAndSloped).Flat.value();
  EXPECT_THAT(source, HasSubstr("Header( 1 48 47 9 8 )")) << "a dropped polygon widens no bounds";
  EXPECT_THAT(source, HasSubstr("LWMIndexList( 1\r\n"));
}

TEST(LwmText, TellsAltitudesAsBytesBetweenLowestAndHighest) {
  const struct {
    double lowest, highest;
    float altitude;
    int byte;
  } rows[] = {{10, 20, 10, 0},   {10, 20, 20, 255},     {10, 20, 15, 127},      {10, 20, 9, 0},
              {10, 20, 21, 255}, {10, 20, 10.0391F, 0}, {10, 20, 10.0393F, 1},  {-5, 250, 100, 105},
              {20, 10, 20, 0},   {1, 1.00000001, 1, 0}, {1, 1.00000001, 2, 255}};
  for (const auto& row : rows) {
    LwmCutPoly poly{LwmPieceKind::Land, row.highest, row.lowest, {}};
    poly.Cut.Points = {{7, 8, row.altitude}};
    const std::vector<LwmCell> cells{{400, 100, {{&poly, 1, 2, poly.Cut.Points}}, {}}};
    EXPECT_THAT(LwmText(cells, {LwmFileKind::Sloped, {}, false}),
                HasSubstr("   7 8 " + std::to_string(row.byte) + "\r\n"))
        << row.altitude << " of " << row.lowest << " to " << row.highest;
  }
}

TEST(CompileLWMPolys, CoversEveryAreaOfACell) {
  ProjectState project;
  const double step = 0.002;
  const GeoBox cell = CellBox(47.4, 8.1);
  project.Polys = {AMask("LWM//Water//5//5//1//1//", {{cell.NLat + step, cell.WLon - step},
                                                      {cell.NLat + step, cell.ELon + step},
                                                      {cell.SLat - step, cell.ELon + step},
                                                      {cell.SLat - step, cell.WLon - step}})};
  const CellIndex place = CellOfPosition(47.4, 8.1);
  std::string covered;
  for (int row = 31; row >= 0; --row)
    for (int col = 0; col < 32; ++col)
      covered += "LWMAreaDrawPoly( 1 3 " + std::to_string(col) + " " + std::to_string(row) +
                 " )\r\n\r\nLWMPoly( 4 0 5 \r\n   0 0\r\n   255 0\r\n   255 255\r\n   0 255\r\n     )\r\n";
  const std::string source = LwmPolySources(project, LwmPolyChoice::FlatAndSloped).Flat.value();
  EXPECT_THAT(source, HasSubstr(":cell04\r\n\r\n" + covered + "\r\n:cell05"));
  EXPECT_THAT(source, HasSubstr("LWMIndexList( 9\r\n        " + std::to_string(place.CellX - 1) + " " +
                                std::to_string(place.CellY - 1) + " 3 0 0\r\n"));
}

TEST(CompileLWMPolys, SaysWhenThereIsNothingToWrite) {
  CompileRig rig;
  rig.project.Polys = {AMask("LWM//Land//1//1//1//1//", {{47.5, 8.1}, {47.5, 8.1}, {47.5, 8.1}})};
  CompileLWMPolys(rig.Context(), LwmPolyChoice::FlatAndSloped);
  CompileLWMFillsAndPolys(rig.Context());
  ASSERT_EQ(rig.dialogs.messages.size(), 2U);
  for (const auto& message : rig.dialogs.messages) {
    EXPECT_EQ(message.kind, MessageKind::Info);
    EXPECT_THAT(message.text, HasSubstr("nothing was compiled"));
  }
  EXPECT_TRUE(rig.tools.ran.empty());
  EXPECT_FALSE(std::filesystem::exists(rig.folders.Work()));
  EXPECT_FALSE(rig.report.Failed);
}

}  // namespace
}  // namespace landsmith::test
