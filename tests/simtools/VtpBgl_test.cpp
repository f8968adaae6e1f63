#include "simtools/VtpBgl.h"

#include "Sources.h"
#include "core/Text.h"
#include "simtools/SourceBgl.h"
#include "support/BglReaders.h"

#include <gtest/gtest.h>

#include <tuple>

namespace landsmith::simtools {

using landsmith::test::VtpFeatureRead;
using landsmith::test::VtpFileRead;
using landsmith::test::VtpPointRead;
using test::OneRoad;

namespace {

VtpFileRead CompileAndRead(const std::string& source) {
  const CheckedSource checked = CheckScm(ParseScm(source));
  for (const ScmError& error : checked.Errors)
    ADD_FAILURE() << "line " << error.Line << ": " << error.Reason;
  if (!checked.Vtp) throw std::runtime_error("no vector terrain");
  return landsmith::test::ReadVtpFile(BglOf(checked));
}

TEST(VtpBgl, GivesBackCellsLayersTexturesAndPoints) {
  const VtpFileRead file = CompileAndRead(
      "Header( 1 48 47 9 8 )\n"
      "VTPFileHeader\n"
      ":cell00\n"
      "VTPArea( 2 1 17 24 )\n"
      "VTPLayer( 13 1 1 0 )\n"
      "VTPTexID( 0 0 )\n"
      "VTPPolyCount( 2 )\n"
      "VTPPoly( 2 4 1 )\n"
      "VTPWPoint( 5000 6000 3 12 ) VTPCPoint( 12 -7 ) VTPCPoint( 1022 -1022 13 ) VTPCPoint( -1 0 )\n"
      "VTPPoly( 2 3 1 )\n"
      "VTPWPoint( 0 16383 0 ) VTPWPoint( 16383 0 0 ) VTPWPoint( 4080 12240 0 255 )\n"
      "VTPLayer( 63 0 2 0 )\n"
      "VTPTexID( 2 0 ) VTPPolyCount( 1 ) VTPPoly( 2 1 1 ) VTPWPoint( 1 2 0 3 )\n"
      "VTPTexID( 1 0 ) VTPPolyCount( 1 ) VTPPoly( 2 1 1 ) VTPWPoint( 4 5 0 6 )\n"
      ":cell01\n"
      "VTPArea( 1 1 31 31 )\n"
      "VTPLayer( 0 1 1 0 )\n"
      "VTPTexID( 3 0 ) VTPPolyCount( 1 ) VTPPoly( 2 2 1 ) VTPWPoint( 9 9 1 7 ) VTPCPoint( -1022 1022 1 )\n"
      "VTPIndexList( 2 401 120 0 767 511 0 )\n"
      "VTPTextureList( 5\n"
      "  153 0 0 0 4\n"
      "  \"wi.bmp;hw.bmp;sp.bmp;su.bmp;fa.bmp;lm.bmp\" 2 1 0 4 wavecontroller\n"
      "  \"road 1.bmp\" 15 0 0 255\n"
      "  \"a\" 1 0 0 4\n"
      "  Road.bmp 3 0 0 4 )\n"
      "VTPEnd\n");
  EXPECT_EQ(file.TexNames, (std::vector<std::string>{
                               "153",
                               "\"wi.bmp;hw.bmp;sp.bmp;su.bmp;fa.bmp;lm.bmp\" 2 1 0 4 \"wavecontroller\"",
                               "\"road 1.bmp\" 15 0 0 255",
                               "\"a\" 1 0 0 4",
                               "\"Road.bmp\" 3 0 0 4",
                           }));
  const struct {
    int cellCol, cellRow, group;
    const char* texture;
    std::vector<VtpPointRead> points;
  } expected[] = {
      {401, 120, 13, "153", {{5000, 6000, 12}, {5012, 5993, 12}, {6034, 4971, 13}, {6033, 4971, 13}}},
      {401, 120, 13, "153", {{0, 16383, 0}, {16383, 0, 0}, {4080, 12240, 255}}},
      {401, 120, 63, "\"road 1.bmp\" 15 0 0 255", {{1, 2, 3}}},
      {401, 120, 63, file.TexNames[1].c_str(), {{4, 5, 6}}},
      {767, 511, 0, "\"a\" 1 0 0 4", {{9, 9, 7}, {-1013, 1031, 1}}},
  };
  ASSERT_EQ(file.Features.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    SCOPED_TRACE(i);
    const VtpFeatureRead& feature = file.Features[i];
    EXPECT_EQ(std::tuple(feature.Kind, feature.CellCol, feature.CellRow, feature.Group),
              std::tuple(1, expected[i].cellCol, expected[i].cellRow, expected[i].group));
    EXPECT_EQ(feature.TexText, expected[i].texture);
    EXPECT_EQ(feature.Points, expected[i].points);
  }
}

/// A file with `polys` lines of `points` places in the last of `textures` textures.
std::string SourceOfSize(int textures, int polys, int points) {
  std::string source =
      "Header( 1 48 47 9 8 ) VTPFileHeader :cell00 VTPArea( 1 1 17 24 ) VTPLayer( 1 1 1 0 )\n";
  source +=
      "VTPTexID( " + std::to_string(textures - 1) + " 0 ) VTPPolyCount( " + std::to_string(polys) + " )\n";
  for (int poly = 0; poly < polys; ++poly) {
    source += "VTPPoly( 2 " + std::to_string(points) + " 1 )\n";
    for (int point = 0; point < points; ++point)
      source += "VTPWPoint( " + std::to_string(point) + " " + std::to_string(poly) + " 0 )\n";
  }
  source += "VTPIndexList( 1 401 120 0 )\nVTPTextureList( " + std::to_string(textures) + "\n";
  for (int texture = 0; texture < textures; ++texture)
    source += std::to_string(texture) + " 0 0 0 4\n";
  return source + ") VTPEnd\n";
}

TEST(VtpBgl, CountsOverflowIntoMoreBytesAtTheRightNumber) {
  const struct {
    int textures, polys, points;
  } rows[] = {{1, 1, 30}, {1, 1, 31}, {1, 1, 32}, {128, 127, 1}, {129, 128, 1}, {300, 257, 40}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.textures) + " " + std::to_string(row.polys));
    const VtpFileRead file = CompileAndRead(SourceOfSize(row.textures, row.polys, row.points));
    ASSERT_EQ(file.Features.size(), static_cast<std::size_t>(row.polys));
    const VtpFeatureRead& last = file.Features.back();
    EXPECT_EQ(last.TexText, std::to_string(row.textures - 1));
    ASSERT_EQ(last.Points.size(), static_cast<std::size_t>(row.points));
    EXPECT_EQ(last.Points.back(), (VtpPointRead{row.points - 1, row.polys - 1, 0}));
  }
}

TEST(VtpBgl, BoundsGiveTheCentreOfTheFile) {
  const struct {
    const char* bounds;
    double lat, lon;
  } rows[] = {{"48 47 9 8", 47.5, 8.5}, {"-33 -35 -70 -73", -34, -71.5}, {"91 89 180 179", 90, 179.5}};
  for (const auto& row : rows) {
    const VtpFileRead file = CompileAndRead(ReplaceAll(OneRoad, "48 47 9 8", row.bounds));
    EXPECT_NEAR(file.LatCenter, row.lat, 1e-9) << row.bounds;
    EXPECT_NEAR(file.LonCenter, row.lon, 1e-6) << row.bounds;
  }
}

}  // namespace

}  // namespace landsmith::simtools
