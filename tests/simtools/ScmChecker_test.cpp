#include "simtools/ScmChecker.h"

#include "Sources.h"
#include "core/Text.h"
#include "platform/Paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace landsmith::simtools {

using test::OneRoad;
using testing::HasSubstr;

namespace {

struct FaultRow {
  const char* name;
  const char* from;  ///< what the fault replaces in OneRoad
  const char* to;
  std::size_t line;
  const char* reason;
  std::size_t errors = 1;  ///< more where one fault hides what later statements refer to
};

constexpr const char* EndOfIndex = "        401 120 0\n";

const FaultRow FaultRows[] = {
    // words
    {"unknown statement", "VTPEnd", "VTPEnd\nVTPFoo( 1 )", 31, "VTPFoo is not known"},
    {"missing bracket", "VTPTexID( 0 0 )", "VTPTexID( 0 0 ", 11, "VTPTexID is not closed"},
    {"closing bracket too many", "VTPCPoint( -1 0 )", "VTPCPoint( -1 0 ) )", 19, "closing bracket"},
    {"bracket without a name", ":cell00", ":cell00 (", 7, "opening bracket"},
    {"open quote", "153 0 0 0 4", "153 0 0 0 4 \"a.bmp", 27, "quoted text is not closed"},
    {"fraction", "( 12 -7", "( 12.0 -7", 17, "12.0, which is no whole number"},
    {"too few arguments", "( 12 -7 )", "( 12 )", 17, "VTPCPoint takes 2 to 3 arguments, given are 1"},
    {"label twice", "VTPEnd\n", "VTPEnd\n:CELL00\n", 31, "is used in line 7 already"},
    // ranges
    {"place beyond 32 bits", "5000 6000", "5000 2147483648", 16, "y is 2147483648, allowed is"},
    {"step too far", "1022 -1022", "1022 -1023", 18, "the step in y is -1023"},
    {"width of 0", "-1022 13", "-1022 0", 18, "the width is 0"},
    {"area beyond 31", "1 1 17 24", "1 1 17 32", 9, "y is 32", 2},
    {"layer beyond 6 bits", "( 13 1 1 0", "( 64 1 1 0", 10, "the layer is 64"},
    {"replace flag", "( 13 1 1 0", "( 13 2 1 0", 10, "the replace flag is 2"},
    {"kind of poly", "( 2 4 1 )", "( 2 4 2 )", 15, "the kind is 2, allowed is 0 to 1"},
    {"texture that is not listed", "VTPTexID( 0 0", "VTPTexID( 1 0", 11, "there is no texture 1"},
    {"latitude beyond the pole", "1 48 47", "1 92 47", 3, "the northern bound is 92"},
    {"bounds the wrong way", "1 48 47 9 8", "1 48 47 8 9", 3, "not east of"},
    {"bounds missing", "1 48 47 9 8", "0x201", 5, "wants a Header with bounds"},
    {"column beyond the world", "401 120", "785 120", 23, "the cell's column is 785"},
    {"buffer without a size", "BUF 8192", "BUF 0", 1, "the buffer is 0"},
    // counts
    {"layers", "VTPArea( 1", "VTPArea( 2", 9, "announces 2 layers, 1 found"},
    {"textures", "( 13 1 1 0", "( 13 1 0 0", 10, "announces 0 textures, 1 found"},
    {"polys", "VTPPolyCount( 1", "VTPPolyCount( 3", 12, "announces 3 polys, 1 found"},
    {"points", "( 2 4 1 )", "( 2 5 1 )", 15, "announces 5 points, 4 found"},
    {"steps behind a place", "6000 3 12", "6000 4 12", 16, "announces 4 steps, 3 found"},
    {"cells", EndOfIndex, "401 120 0 402 120 0", 22, "announces 1 cells of 3 numbers, 6 numbers"},
    {"cells and labels", "( 1\n        401 120 0", "( 0", 22, "holds 0 cells, the file has 1"},
    {"listed textures", "153 0 0 0 4", "153 0 0 0 4 154 0 0 0 4", 27, "but goes on with 154"},
    {"textures too few", "VTPTextureList( 1", "VTPTextureList( 2", 26, "announces 2 textures, 1 found"},
    {"cell in another place", "401 120", "402 120", 23, "wants a VTPArea at 18 24"},
    // order
    {"no header", "Header( 1 48 47 9 8 )", "", 5, "VTPFileHeader stands in front of the Header"},
    {"buffer behind the header", "VTPFileHeader", "Set( BUF 1 )\nVTPFileHeader", 5, "Set stands behind"},
    {"no file header", "VTPFileHeader", "", 9, "VTPArea stands in front of VTPFileHeader", 3},
    {"no label", ":cell00", "", 9, "VTPArea stands outside of a label", 2},
    {"label without an area", ":cell00", ":cell00\n:cell01", 7, ":cell00 is followed by no VTPArea", 2},
    {"no poly count", "VTPPolyCount( 1 )", "", 11, "not followed by a VTPPolyCount"},
    {"poly count twice", "VTPPolyCount( 1 )", "VTPPolyCount( 1 ) VTPPolyCount( 1 )", 12,
     "right behind a VTPTexID"},
    {"no end", "VTPEnd", "", 26, "there is no VTPEnd"},
    {"index twice", "VTPTextureList( 1\n", "VTPIndexList( 0 )\nVTPTextureList( 1\n", 26,
     "a second VTPIndexList"},
    {"area behind the index", "VTPEnd", "VTPArea( 0 1 1 1 )\nVTPEnd", 30,
     "VTPArea stands behind VTPIndexList"},
    // textures
    {"numbers missing", "153 0 0 0 4", "153 0 0 4", 27, "153 wants four numbers"},
    {"effect without controller", "153 0 0", "\"a.bmp\" 0 1", 27, "has no controller"},
    {"effect on a number", "153 0 0 0 4", "153 0 1 0 4 wave", 27, "is no bitmap and has an effect"},
    {"type beyond 4 bits", "153 0 0", "153 16 0", 27, "the texture type is 16"}};

TEST(ScmFaults, AreReportedWithLineAndReason) {
  for (const FaultRow& row : FaultRows) {
    SCOPED_TRACE(row.name);
    const std::string source = ReplaceAll(OneRoad, row.from, row.to);
    ASSERT_NE(source, OneRoad) << "the row changes nothing";
    const CheckedSource checked = CheckScm(ParseScm(source));
    ASSERT_FALSE(checked.Errors.empty());
    EXPECT_EQ(checked.Errors.front().Line, row.line);
    EXPECT_THAT(checked.Errors.front().Reason, HasSubstr(row.reason));
    EXPECT_EQ(checked.Errors.size(), row.errors)
        << "then: " << checked.Errors.back().Line << " " << checked.Errors.back().Reason;
  }
}

TEST(ScmChecker, HoldsPlacesToWhatTheFileCanHold) {
  const struct {
    const char* place;
    std::int32_t x, y;
    const char* told;  ///< nothing for a place that fits
  } rows[] = {
      {"0 16383", 0, 16383, ""},
      {"-1 16384", 0, 16383, "-1 16384 is held to 0 16383"},
      {"2147483647 -2147483648", 16383, 0, "2147483647 -2147483648 is held to 16383 0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.place);
    const CheckedSource checked = CheckScm(ParseScm(ReplaceAll(OneRoad, "5000 6000", row.place)));
    EXPECT_TRUE(checked.Errors.empty());
    ASSERT_TRUE(checked.Vtp.has_value());
    const auto& points = checked.Vtp->Cells[0].Areas[0].Layers[0].Textures[0].Features[0].Points;
    EXPECT_EQ(points[0], (VtpPoint{row.x, row.y, false, 3, 12}));
    EXPECT_EQ(points[1], (VtpPoint{12, -7, true, 0, 0})) << "the strip's end keeps its shape";
    ASSERT_EQ(checked.HeldPoints.size(), *row.told == '\0' ? 0U : 1U);
    if (checked.HeldPoints.empty()) continue;
    EXPECT_EQ(checked.HeldPoints[0].Line, 16U);
    EXPECT_THAT(checked.HeldPoints[0].Reason, HasSubstr(row.told));
  }
}

TEST(ScmChecker, TakesABitmapAloneOnItsLineAsATextureEntry) {
  const std::string source =
      ReplaceAll(OneRoad, "VTPTextureList( 1\n        153 0 0 0 4\n",
                 "VTPTextureList( 4\n  road1.bmp\n  12345\n  153 0 0 0 4\n  \"a b.bmp\"\n");
  const CheckedSource checked = CheckScm(ParseScm(source));
  ASSERT_TRUE(checked.Errors.empty()) << checked.Errors[0].Reason;
  const std::vector<VtpTextureEntry> expected{{"road1.bmp", true, 0, 0, 4, ""},
                                              {"12345", true, 0, 0, 4, ""},
                                              {"153", false, 0, 0, 4, ""},
                                              {"a b.bmp", true, 0, 0, 4, ""}};
  EXPECT_EQ(checked.Vtp->Textures, expected);
}

TEST(ScmChecker, AcceptsEveryGoldenSource) {
  const std::filesystem::path cases = std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/golden/vtp";
  std::size_t seen = 0;
  for (const auto& entry : std::filesystem::directory_iterator(cases)) {
    if (!entry.is_directory()) continue;
    ++seen;
    const CheckedSource checked = CheckScm(ParseScm(ReadWholeFile(entry.path() / "expected.scm")));
    for (const ScmError& error : checked.Errors)
      ADD_FAILURE() << entry.path() << " line " << error.Line << ": " << error.Reason;
    EXPECT_TRUE(checked.Vtp.has_value()) << entry.path();
  }
  EXPECT_GT(seen, 5U);
}

TEST(ScmChecker, ListsEveryFaultInTheOrderOfTheLines) {
  std::string source = ReplaceAll(OneRoad, "401 120 0", "400 120 1");
  source = ReplaceAll(source, "VTPArea( 1", "VTPArea( 2");
  source = ReplaceAll(source, "VTPEnd", "Foo");
  const CheckedSource checked = CheckScm(ParseScm(source));
  std::vector<std::size_t> lines;
  for (const ScmError& error : checked.Errors)
    lines.push_back(error.Line);
  EXPECT_EQ(lines, (std::vector<std::size_t>{9, 23, 23, 30, 30}));
}

TEST(ScmChecker, TakesASourceWithoutTerrainForItsHeader) {
  const CheckedSource checked = CheckScm(ParseScm("; nothing else\nHeader( 1 10 -9 -20 -22 )\n"));
  EXPECT_TRUE(checked.Errors.empty());
  EXPECT_FALSE(checked.Vtp.has_value());
  EXPECT_EQ(checked.Header, (BglHeader{1, 10, -9, -20, -22}));
  EXPECT_EQ(CheckScm(ParseScm("")).Errors.size(), 1U);
}

}  // namespace

}  // namespace landsmith::simtools
