#include "CompileRig.h"
#include "compile/TexPolys.h"
#include "core/Color.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace landsmith::test {
namespace {

PolyRec Surface(const std::string& type, std::vector<PolyPoint> points, std::int32_t color = 0) {
  PolyRec poly;
  poly.Name = "Ramp";
  poly.Type = type;
  poly.Points = std::move(points);
  poly.Color = color;
  poly.Selected = true;
  SetPathBounds(poly);
  return poly;
}
const std::vector<PolyPoint> Corner{{10, 59.999, 10}, {10.001, 60.002, 13}, {10.002, 59.999, 10}};

TEST(TexPolys, TheFileIsTheOneWorkedOutByHand) {
  CompileRig rig;
  rig.project.Name = "Bay Area";
  rig.options.Mode = CompileMode::SourceOnly;
  const std::string dart = "TEX////8//1//3//3000//1//1,2//120,64//250,-8//128,256//";
  PolyRec unselected = Surface("TEX//a.bmp//4//1//1//5000//0//", {{100, 80, 0}, {101, 81, 0}, {101, 80, 0}});
  unselected.Selected = false;
  rig.project.Polys = {
      unselected, Surface("LWM//Land//0//0//1//1//", {{-100, 80, 0}, {-99, 81, 0}, {-99, 80, 0}}),
      Surface("TEX//Zürich.bmp//4//4//1//5000//1//", Corner, Rgb(255, 128, 0)),
      Surface(dart,
              {{-30.002, -0.003, -1.5F}, {-30, -0.001, 0.25F}, {-29.998, -0.003, 0}, {-30, 0.007, 1.25F}},
              Rgb(0, 0, 51))};
  CompileTexPolys(rig.Context());
  const std::filesystem::path golden =
      std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden/tex/two_surfaces/Bay_Area_TEXP.scm";
  EXPECT_EQ(ReadWholeFile(rig.folders.Work() / "Bay_Area_TEXP.scm"), ReadWholeFile(golden));
  EXPECT_TRUE(rig.dialogs.messages.empty());
}

TEST(TexPolys, AFieldThatIsNoNumberIsNamedWithItsPolygon) {
  struct Row {
    const char *type, *found;
  };
  const Row rows[] = {
      {"TEX//a.bmp//4//wide//1//5000//0//", "TileX \"wide\""},
      {"TEX//a.bmp//4//1//1e10//5000//0//", "TileY \"1e10\""},
      {"TEX//a.bmp//4//1//1//5000////", "Night \"\""},
      {"TEX//a.bmp//4//1//1//5000//0//1,1//2//3,3//", "vertex 2"},
      {"TEX//a.bmp//4//1//1//5000//0//1,1//2,2//3,y//", "vertex 3"},
      {"TEX//.bmp//4//1//1//5000//0//", "\".bmp\""},
  };
  for (const Row& row : rows) {
    ProjectState project;
    project.Polys = {Surface("", Corner), Surface(row.type, Corner)};
    try {
      TexPolySource(project);
      ADD_FAILURE() << row.type;
    } catch (const RuntimeError& failure) {
      const std::string text = failure.what();
      EXPECT_NE(text.find("polygon 2 \"Ramp\""), std::string::npos) << text;
      EXPECT_NE(text.find(row.found), std::string::npos) << text;
    }
  }
}

TEST(TexPolys, ARingThatCrossesItselfIsToldAndWrittenAllTheSame) {
  CompileRig rig;
  rig.dialogs.answers = {false};
  rig.tools.answer = [](const std::string&) { return 1; };
  rig.project.Polys = {
      Surface("TEX//a.bmp", {{0, 0, 0}, {2, 2, 0}, {0, 2, 0}, {2, 0, 0}, {1, -3, 0}, {1, 3, 0}}),
      Surface("TEX//a.bmp", {{0, 0, 0}, {2, 2, 0}})};
  CompileTexPolys(rig.Context());
  ASSERT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(rig.dialogs.messages[0].text, "Error on the triangulation!");
  ASSERT_EQ(rig.tools.ran.size(), 1U);
  EXPECT_EQ(rig.tools.ran[0], "scasm work\\My_Project_TEXP.scm -s -l");
  EXPECT_EQ(rig.dialogs.questions.at(0),
            "There was a compilation error in the textured polygons!\nDo you want to read a SCASM report?");

  rig.project.Polys = {rig.project.Polys[1]};
  rig.dialogs.messages.clear();
  CompileTexPolys(rig.Context());
  EXPECT_EQ(rig.tools.ran.size(), 1U);
  ASSERT_EQ(rig.dialogs.messages.size(), 1U);
  EXPECT_EQ(rig.dialogs.messages[0].kind, MessageKind::Info);
}

}  // namespace
}  // namespace landsmith::test
