#include "CompileRig.h"
#include "compile/ExcludePolys.h"
#include "compile/VtpPolys.h"
#include "platform/Paths.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace landsmith::test {
namespace {

const std::vector<PolyPoint> Wood{{8.1, 47.5}, {8.2, 47.5}, {8.1, 47.4}};
const std::vector<PolyPoint> Sliver{{8.1, 47.5}, {8.2, 47.5}, {8.1000001, 47.5}};

ProjectState Holding(const std::string& type, const std::vector<PolyPoint>& points) {
  ProjectState project;
  project.Polys.emplace_back();
  PolyRec& poly = project.Polys.emplace_back();
  poly.Name = "Old wood";
  poly.Type = type;
  poly.Points = points;
  poly.Selected = true;
  return project;
}

std::string FailureOf(const ProjectState& project) {
  return ErrorOf([&] {
    VtpPolySource(project, {});
    ExcludePolySource(project);
  });
}

TEST(VtpPolys, NameThePolygonThatCannotBeWritten) {
  const std::vector<PolyPoint> offTheGrid{{8.1, 47.5}, {1e300, 47.5}, {8.1, 47.4}};
  const struct {
    std::string type;
    std::vector<PolyPoint> points;
    std::string found;
  } rows[] = {{"VTP//", Wood, "the layer \"\""},
              {"VTP//four//1280//", Wood, "the layer \"four\""},
              {"VTP//40000//1280//", Sliver, "the layer \"40000\""},
              {"VTP//4//1280//", offTheGrid, ""},
              {"Other//1//2//3//", Wood, "\"Other//1//2//3//\""},
              {"Other//1//2//3//all//", Sliver, "\"Other//1//2//3//all//\""},
              {"Other//1//2//3//4//", offTheGrid, ""}};
  for (const auto& row : rows) {
    const std::string text = FailureOf(Holding(row.type, row.points));
    EXPECT_NE(text.find("polygon 2 \"Old wood\""), std::string::npos) << row.type << ": " << text;
    EXPECT_NE(text.find(row.found), std::string::npos) << row.type << ": " << text;
  }
}

TEST(CompileVTPPolys, SaysWhenThereIsNothingToWrite) {
  for (const auto& [type, points] : {std::pair{"VTP//4//1280//", Sliver}, {"VTPX//4//1280//", Wood}}) {
    CompileRig rig;
    rig.project.Polys = Holding(type, points).Polys;
    CompileVTPPolys(rig.Context());
    ASSERT_EQ(rig.dialogs.messages.size(), 1U);
    EXPECT_EQ(rig.dialogs.messages[0].kind, MessageKind::Info);
    EXPECT_NE(rig.dialogs.messages[0].text.find("nothing was compiled"), std::string::npos);
    EXPECT_TRUE(rig.tools.ran.empty());
    EXPECT_FALSE(std::filesystem::exists(rig.folders.Work()));
    EXPECT_FALSE(rig.report.Failed);
  }
}

TEST(CompileVTPPolys, NamesItsFileAfterTheProject) {
  CompileRig rig;
  rig.project.Polys = Holding("VTP//4//1280//", Wood).Polys;
  CompileVTPPolys(rig.Context());
  EXPECT_EQ(rig.tools.ran, std::vector<std::string>{"scasm work\\My_Project_VTPP.scm -s -l"});
}

// An earlier exclusion of the project must go, so the file is there even when no polygon is left.
TEST(CompileExcludePolys, WritesAFileWithoutCells) {
  CompileRig rig;
  rig.project.Polys = Holding("Other//1//0//0//0//", Sliver).Polys;
  CompileExcludePolys(rig.Context());
  EXPECT_EQ(rig.tools.ran, std::vector<std::string>{"scasm work\\0_My_Project_VTPX.scm -s -l"});
  const std::string source = ReadWholeFile(rig.folders.Work() / "0_My_Project_VTPX.scm");
  EXPECT_TRUE(source.starts_with(
      "Header( 1 -89 90 -179 180 )\r\n\r\nVTPFileHeader( 0x100 )\r\n\r\nVTPIndexList( 0\r\n"))
      << source;
}

}  // namespace
}  // namespace landsmith::test
