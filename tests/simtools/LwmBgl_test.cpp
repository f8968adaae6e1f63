#include "simtools/LwmBgl.h"

#include "Faults.h"
#include "Sources.h"
#include "simtools/SourceBgl.h"
#include "support/BglReaders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace landsmith::simtools {

using landsmith::test::LwmFileRead;
using landsmith::test::LwmFillRead;
using landsmith::test::LwmKindRead;
using landsmith::test::LwmPieceRead;
using landsmith::test::LwmPointRead;
using test::FaultRow;

namespace {

std::string Compile(const std::string& source) {
  const CheckedSource checked = CheckScm(ParseScm(source));
  for (const ScmError& error : checked.Errors)
    ADD_FAILURE() << "line " << error.Line << ": " << error.Reason;
  return BglOf(checked);
}

LwmFileRead CompileCell(const std::string& statements) {
  return landsmith::test::ReadLwmFile(Compile("Header( 1 48 47 9 8 )\nLWMFileHeader\n:cell00\n" + statements +
                                              "LWMIndexList( 1 401 120 3 0 0 )\nLWMEnd\n"));
}

std::string Bytes(const std::vector<int>& values) {
  std::string bytes;
  for (const int value : values)
    bytes += static_cast<char>(value);
  return bytes;
}

constexpr std::size_t BlockPlace = 128 + 100;

/// Worked out by hand from the layout.
TEST(LwmBgl, HasTheBytesOfTheLayout) {
  const std::string lake = Compile(test::OneLake);
  EXPECT_EQ(lake.substr(54, 4), Bytes({128, 0, 0, 0}));
  EXPECT_EQ(lake.substr(128, 4), Bytes({100, 0, 0, 0}));
  EXPECT_EQ(lake.substr(128 + 56, 8), Bytes({100, 0, 0, 0, 0, 0, 0, 0})) << "masks, and no vector terrain";
  EXPECT_EQ(lake.substr(BlockPlace),
            Bytes({
                20,   0,    0,    0,    0,    0,  0, 0,  20,  0,  0,   0,   44, 0, 0, 0, 0, 0, 0, 0,  // block
                12,   0,    0,    0,    1,    0,  0, 0,  12,  0,  0,   0,                             // table
                0x00, 0x1C, 0x19, 0x1E, 0,    0,  0, 0,  17,  0,  0,   0,                             // cell
                0x80, 0x43, 12,   0,    64,                                                           // fill
                0x59, 0xC4, 3,    0xFC, 0xFF, 64, 0, 10, 255, 20, 128, 255,                           // piece
            }));
  const std::string slope = Compile(test::OneSlope);
  EXPECT_EQ(slope.substr(BlockPlace + 4, 4), Bytes({0, 3, 0, 0}));
  EXPECT_EQ(slope.substr(BlockPlace + 32),
            Bytes({
                0x00, 0xF8, 0xEF, 0x7F, 0,    0,   0,   0,   18,  0, 0, 0,  // cell
                0x11, 0xF8, 3,    0xFF, 0xFF, 96,  100, 0,   0,             // piece
                0,    0,    0,    255,  0,    128, 255, 255, 255,           // points
            }));
}

TEST(LwmBgl, GivesBackFillsOfEverySize) {
  const LwmFileRead file = CompileCell(
      "LWMAreaFill( 16 2 1 0 -1.25 ) LWMAreaFill( 8 0 3 2 8 ) LWMAreaFill( 4 1 7 7 )\n"
      "LWMAreaFill( 2 0 15 14 1 ) LWMAreaFill( 1 2 31 30 0.5 ) LWMAreaFill( 32 1 0 0 )\n");
  const std::vector<LwmFillRead> expected{{16, 2, 1, 0, -1.25}, {8, 0, 3, 2, 8},     {4, 1, 7, 7, 0},
                                          {2, 0, 15, 14, 1},    {1, 2, 31, 30, 0.5}, {16, 1, 0, 0, 0},
                                          {16, 1, 1, 0, 0},     {16, 1, 0, 1, 0},    {16, 1, 1, 1, 0}};
  ASSERT_EQ(file.Cells.size(), 1U);
  EXPECT_EQ(file.Cells[0].Fills, expected);
}

TEST(LwmBgl, WritesAFillAsPolygonsOfItsAreas) {
  const struct {
    const char* type;
    LwmKindRead kind;
  } rows[] = {{"0", LwmKindRead::Water}, {"1", LwmKindRead::Land}, {"2", LwmKindRead::Flatten}};
  for (const auto& row : rows) {
    const LwmFileRead file =
        CompileCell(std::string("macro( Area02X02Poly.scm ") + row.type + " 3 15 2.5 )\n");
    EXPECT_TRUE(file.Cells[0].Fills.empty());
    ASSERT_EQ(file.Cells[0].Pieces.size(), 4U);
    const LwmPieceRead& last = file.Cells[0].Pieces[3];
    EXPECT_EQ(last.Kind, row.kind);
    EXPECT_EQ(last.AltMax, 2.5);
    EXPECT_EQ(last.AreaX, 7);
    EXPECT_EQ(last.AreaY, 31);
    EXPECT_EQ(last.Points.size(), 4U);
    EXPECT_EQ(last.Points[2], (LwmPointRead{255, 255, 0, 2.5F}));
  }
}

TEST(LwmBgl, RoundsAltitudesToTheNearestPart) {
  const struct {
    const char* text;
    double metres;
  } rows[] = {{"-32768", -32768},
              {"32767.9921875", 32767 + 127.0 / 128},
              {"-0.0078125", -1.0 / 128},
              {"3.998", 4},
              {"-3.998", -4},
              {"1.464844E-02", 0.015625},
              {"0.00390625", 0}};
  for (const auto& row : rows) {
    const LwmFileRead file = CompileCell(std::string("LWMAreaFill( 1 2 0 0 ") + row.text + " )\n");
    EXPECT_EQ(file.Cells[0].Fills[0].Height, row.metres) << row.text;
  }
}

TEST(LwmBgl, CountsOverflowIntoOneMoreByteAtTheRightNumber) {
  for (const int polys : {1, 6, 7, 8, 262})
    for (const int points : {3, 62, 63, 64, 318}) {
      SCOPED_TRACE(std::to_string(polys) + " of " + std::to_string(points));
      std::string source = "LWMAreaDrawPoly( " + std::to_string(polys) + " 3 31 0 )\n";
      for (int poly = 0; poly < polys; ++poly) {
        source += "LWMPoly( " + std::to_string(points) + " 1 " + std::to_string(poly);
        for (int point = 0; point < points; ++point)
          source += " " + std::to_string(point % 256) + " " + std::to_string(point / 256);
        source += " )\n";
      }
      const LwmFileRead file = CompileCell(source);
      ASSERT_EQ(file.Cells[0].Pieces.size(), static_cast<std::size_t>(polys));
      const LwmPieceRead& last = file.Cells[0].Pieces.back();
      EXPECT_EQ(last.Kind, LwmKindRead::Land);
      EXPECT_EQ(last.AltMin, polys - 1);
      ASSERT_EQ(last.Points.size(), static_cast<std::size_t>(points));
      EXPECT_EQ(last.Points.back().X, (points - 1) % 256);
      EXPECT_EQ(last.Points.back().Y, (points - 1) / 256);
    }
}

const FaultRow LakeRows[] = {
    // counts and ranges
    {"points", "LWMPoly( 3", "LWMPoly( 4", 12, "announces 4 points of 2 numbers, 6 numbers follow"},
    {"two points", "LWMPoly( 3", "LWMPoly( 2", 12, "the number of points is 2, allowed is 3 to 318"},
    {"two places", "   128 255", "   0 10", 12, "fewer than three different points"},
    {"point beyond a byte", "255 20", "256 20", 14, "x is 256"},
    {"polygons", "LWMAreaDrawPoly( 1", "LWMAreaDrawPoly( 2", 10, "announces 2 polygons, 1 found"},
    {"Area beyond 31", "17 24", "17 32", 10, "y is 32"},
    {"kind and type", "LWMPoly( 3 0", "LWMPoly( 3 2", 12, "the kind 2 wants an LWMAreaDrawPoly of type 2"},
    {"kind", "LWMPoly( 3 0", "LWMPoly( 3 3", 12, "the kind is 3"},
    {"altitude too low", "-3.5", "-32768.5", 12,
     "the altitude is -32768.5, allowed is -32768 to 32767.9921875"},
    {"altitude", "-3.5", "high", 12, "the altitude is high, which is no number"},
    {"size", "LWMAreaFill( 4", "LWMAreaFill( 3", 9, "the size is 3, allowed are 1, 2, 4"},
    {"fill beyond the Cell", "0 3 2 12", "0 8 2 12", 9, "the column is 8, allowed is 0 to 7"},
    {"height of land", "LWMAreaFill( 4 0", "LWMAreaFill( 4 1", 9, "land has no height"},
    {"no height", " 12.5", "", 9, "the height is missing"},
    {"unknown macro", "LWMAreaFill( 4 0", "macro( Area03X03Poly.scm 0", 9, "Area03X03Poly.scm is not known"},
    // order
    {"polygon without an Area", "LWMAreaDrawPoly( 1 3 17 24 )", "", 12,
     "stands outside of a LWMAreaDrawPoly"},
    {"no label", ":cell00", "", 9, "in front of the first label", 3},
    {"no file header", "LWMFileHeader", "", 9, "stands in front of LWMFileHeader", 4},
    {"format", "LWMFileHeader", "LWMFileHeader( 0x100 )", 5, "the format is 0x100, it must be 768"},
    {"sloped format", "LWMFileHeader", "LWMFileHeader( 0x300 )", 12, "whose polygons are LWMPoly3"},
    {"fill behind the index", "LWMEnd", "LWMAreaFill( 1 1 0 0 )\nLWMEnd", 22, "stands behind LWMIndexList"},
    {"no end", "LWMEnd", "", 18, "there is no LWMEnd"},
    // cells
    {"cells and labels", ":cell00", ":cell00\n:cell01", 19, "holds 1 cells, the file has 2"},
    {"whole cell with fills", "120 3 0", "120 2 0", 7, "has fills, and LWMIndexList says"},
    {"cell type", "120 3 0", "120 4 0", 19, "the cell's type is 4"},
    {"bounds missing", "1 48 47 9 8", "0x201", 5, "LWMFileHeader wants a Header with bounds"},
};

const FaultRow SlopeRows[] = {
    {"polygon of one altitude", "LWMPoly3( 3 2 -0.25 100", "LWMPoly( 3 2 1", 5, "whose polygons are LWMPoly3",
     2},
    {"flat format", "( 0x300 )", "", 5, "LWMPoly3 wants LWMFileHeader( 0x300 )"},
    {"altitude of a point", "255 0 128", "255 0 256", 7, "the altitude of a point is 256"},
    {"cell without anything", "LWMIndexList( 1 767 511 2 0 0",
     ":cell01\nLWMIndexList( 2 767 511 2 0 0 1 1 3 0 0", 10, ":cell01 is followed by no fill and no polygon"},
    {"macro", "LWMIndexList( 1 767 511 2 0 0",
     ":cell01\nmacro( Area01X01Poly.scm 0 0 0 1 )\nLWMIndexList( 2 767 511 2 0 0 1 1 3 0 0", 11,
     "those of this file have two"},
    {"place twice", "LWMIndexList( 1 767 511 2 0 0", ":cell01\nLWMIndexList( 2 767 511 2 0 0 767 511 1 0 0",
     11, "the cell 767 511 stands twice"},
};

TEST(LwmFaults, AreReportedWithLineAndReason) {
  ExpectFaults(test::OneLake, LakeRows);
  ExpectFaults(test::OneSlope, SlopeRows);
}

TEST(LwmChecker, TakesTheBoundsOfALoneFillWithAWarning) {
  const CheckedSource checked = CheckScm(ParseScm(
      "Header( 1 -89 90 -179 180 )\nLWMFileHeader\n:cell00\nLWMIndexList( 1 401 120 1 0 0 )\nLWMEnd\n"));
  EXPECT_TRUE(checked.Errors.empty());
  ASSERT_EQ(checked.Warnings.size(), 2U);
  EXPECT_THAT(checked.Warnings[0].Reason, testing::HasSubstr("not north of"));
  EXPECT_EQ(landsmith::test::ReadLwmFile(BglOf(checked)).Cells.at(0).FillType, 1);
}

}  // namespace

}  // namespace landsmith::simtools
