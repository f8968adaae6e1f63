#include "import/BlnFile.h"
#include "platform/Paths.h"
#include "support/Builders.h"
#include "support/Errors.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace landsmith {
namespace {

using test::Lons;
using test::Widths;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// Imports a file with this content.
ProjectState Imported(std::string_view content, const AppSettings& settings, ProjectState project = {}) {
  const test::TempFolder folder;
  WriteWholeFile(folder / "a.bln", content);
  ImportBLN(folder / "a.bln", project, settings);
  return project;
}

TEST(BlnHeader, GivesTheName) {
  const struct {
    const char* header;
    char separator;
    const char* name;
  } rows[] = {{"1", ',', ""},
              {"1,Main road", ',', "Main road"},
              {" 1 ,  Main road ", ',', "  Main road "},
              {"1,0,lake, west", ',', "lake, west"},
              {"1,1,", ',', ""},
              {"1,1", ',', "1"},
              {"1,2,lake", ',', "2,lake"},
              {"1\t1\tlake", '\t', "lake"},
              {"1,Caf\xE9", ',', "Caf\xC3\xA9"}};
  for (const auto& row : rows) {
    const std::string point = std::string("1") + row.separator + "2\r\n";
    const auto items = ParseBln(row.header + ("\r\n" + point), row.separator, "a.bln");
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].Name, row.name) << row.header;
  }
}

TEST(BlnText, TakesLooseLineEndsAndBlanks) {
  const auto items = ParseBln("2,a\n 1.5 , -2e1 , 7 \n3,4,,9\r\n1\r\n5,6,2.5\r\n\r\n  \n", ',', "a.bln");
  ASSERT_EQ(items.size(), 2U);
  const BlnPoint& first = items[0].Points[0];
  EXPECT_EQ(std::tuple(first.Lon, first.Lat, first.Wid), std::tuple(1.5, -20.0, 7.0F));
  EXPECT_EQ(items[0].Points[1].Wid, 0) << "an empty third field is none";
  EXPECT_EQ(items[1].Points[0].Wid, 2.5F);
}

TEST(BadBln, IsRefusedWithItsLineAndLeavesTheProject) {
  const struct {
    const char* text;
    const char* line;
  } rows[] = {{"1,a\n1,2\nroad\n", "line 3"},  {"2,a\n1,2\n1,north\n", "line 3"},
              {"1,a\n1,2,wide\n", "line 2"},   {"1,a\n1,2\n3,b\n1,2\n3,4\n", "line 3"},
              {"2000000000\n1,2\n", "line 1"}, {"1,a\n1,2\n\n1,b\n1,2\n", "line 3"}};
  const test::TempFolder folder;
  for (const auto& row : rows) {
    WriteWholeFile(folder / "bad.bln", row.text);
    ProjectState project;
    EXPECT_THAT(test::ErrorOf([&] { ImportBLN(folder / "bad.bln", project, AppSettings{}); }),
                AllOf(HasSubstr("bad.bln"), HasSubstr(row.line)))
        << row.text;
    EXPECT_TRUE(project.Lines.empty() && project.Polys.empty());
  }
}

TEST(BlnImport, ClosedItemsBecomePolygonsAndLines) {
  AppSettings settings;
  settings.BLNPolyType = "LWM//Water//0//0//1//1//";
  settings.BLNPolyColor = 11;
  settings.BLNLineType = "VTP//4//1//";
  settings.BLNLineColor = 22;
  settings.BLNStartWidth = 10;
  settings.BLNEndWidth = 40;
  const char* const text = "4,1,lake\n1,1,9\n2,1,9\n2,3,9\n1,1,9\n4\n5,5\n6,5\n6,6\n5,5\n";

  ProjectState project = Imported(text, settings);
  ASSERT_EQ(project.Polys.size(), 2U);
  const PolyRec& lake = project.Polys[0];
  EXPECT_EQ(lake.Name, "lake");
  EXPECT_EQ(lake.Type, settings.BLNPolyType);
  EXPECT_EQ(lake.Color, 11);
  EXPECT_THAT(Lons(lake), ElementsAre(1, 2, 2));
  EXPECT_EQ(lake.Points[0].Alt, 0);
  EXPECT_EQ(lake.Box, (GeoBox{3, 1, 1, 2}));
  EXPECT_EQ(project.Polys[1].Name, "3_Points_Poly");
  ASSERT_EQ(project.Lines.size(), 2U);
  const LineRec& shore = project.Lines[0];
  EXPECT_EQ(shore.Name, "lake");
  EXPECT_EQ(shore.Type, "VTP//4//1//");
  EXPECT_EQ(shore.Color, 22);
  EXPECT_THAT(Widths(shore), ElementsAre(10, 20, 30, 40)) << "never from the third field";
  EXPECT_EQ(project.Lines[1].Name, "4_Points_Line");

  settings.BLNAutoLine = false;
  project = Imported(text, settings);
  EXPECT_EQ(project.Polys.size(), 2U);
  EXPECT_TRUE(project.Lines.empty());
}

TEST(BlnImport, OpenItemsBecomeLines) {
  AppSettings settings;
  settings.BLNStartWidth = 10;
  settings.BLNEndWidth = 20;
  const char* const text = "3,road\n1,1,7\n2,1\n1,1.0000001,3\n1\n8,8\n0,nothing\n";

  ProjectState project = Imported(text, settings);
  ASSERT_EQ(project.Lines.size(), 2U);
  EXPECT_TRUE(project.Polys.empty());
  EXPECT_EQ(project.Lines[0].Name, "road");
  EXPECT_THAT(Widths(project.Lines[0]), ElementsAre(7, 0, 3));
  EXPECT_EQ(project.Lines[0].Box, (GeoBox{1.0000001, 1, 1, 2}));
  EXPECT_EQ(project.Lines[1].Name, "1_Points_Line");

  settings.BLNSeparator = ";";
  project = Imported("2;b\n1;1\n2;2\n2;c\n1;1\n2;2\n", settings, project);
  ASSERT_EQ(project.Lines.size(), 4U) << "behind what is there, in the order of the file";
  EXPECT_EQ(project.Lines[2].Name + project.Lines[3].Name, "bc");

  settings.BLNSeparator = ",";
  settings.BLNWidths = false;
  project = Imported("3,road\n1,1,tarmac\n2,1\n1,2\n1\n8,8\n", settings);
  EXPECT_THAT(Widths(project.Lines[0]), ElementsAre(10, 15, 20)) << "nobody looks at the third field";
  EXPECT_THAT(Widths(project.Lines[1]), ElementsAre(10)) << "a single point takes the start width";
}

TEST(BlnSeparator, MayBeAWord) {
  AppSettings settings;
  EXPECT_EQ(BlnSeparatorOf(settings), ',');
  settings.BLNSeparator = "tab";
  EXPECT_EQ(BlnSeparatorOf(settings), '\t');
  settings.BLNSeparator = "\xC2\xA7";
  EXPECT_EQ(BlnSeparatorOf(settings), '\xA7') << "one byte in the file";
}

}  // namespace
}  // namespace landsmith
