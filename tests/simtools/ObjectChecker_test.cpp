#include "simtools/ObjectChecker.h"

#include "Faults.h"
#include "Sources.h"
#include "simtools/SourceBgl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace landsmith::simtools {

using test::ExpectFaults;
using test::FaultRow;
using test::TwoSurfaces;

namespace {

const FaultRow Rows[] = {
    // labels, which the two Areas share
    {"label twice", "Jump( : )\n:lcall", ":lcall\n:lcall", 9, "the label :lcall is used in line 8 already",
     2},
    {"no such label", ":return\nReturn", "Return", 10, "there is no label :return", 2},
    {"no label", "Jump( : )", "Jump( end )", 8, "end is no label", 2},
    // nesting
    {"Area in an Area", "EndA\n\n; Textured Poly # 2", "\n; Textured Poly # 2", 32, "the Area of line 6"},
    {"no EndA at the end", "( 0 0 1 2 )\nEndVersion\n:return\nReturn\nEndA",
     "( 0 0 1 2 )\nEndVersion\n:return\nReturn", 33, "Area has no EndA"},
    {"no EndVersion", "EndVersion\n", "", 27, "Return stands in front of EndVersion", 4},
    {"no Return", "Return\n", "", 28, "the Area is called, but has no Return", 2},
    {"no version", "BGLVersion( 0800 )\nTextureList", "TextureList", 11,
     "TextureList stands outside of a BGLVersion", 6},
    {"version", "0800", "0700", 11, "the version is 0700, it must be 800", 2},
    {"no RefPoint", "RefPoint( 2 :return 1 47.25000000 8.50000000 E= 430", "; ", 11,
     "in front of the RefPoint"},
    // places and bounds
    {"place outside", "8.50000000 50", "10.50000000 50", 6, "outside of the Header's bounds", 2},
    {"other bounds", "LatRange( 46", "LatRange( 45", 2, "other bounds than the Header"},
    {"word of the altitude", " E= ", " Z= ", 10, "E= is missing in front of Z=", 2},
    {"no visibility", "v1= 5000", "v1=", 10, "RefPoint takes 11 arguments, given are 10", 2},
    {"no layer", "LayerCall( :lcall 4 )", "LayerCall( :lcall )", 7, "LayerCall takes 2 arguments", 2},
    // lists
    {"bitmap with a blank", "roof.bmp", "my roof.bmp", 12, "a texture has 8 words, 17 follow"},
    {"no bitmap", "roof.bmp", "roof.dds", 13, "roof.dds is no bitmap"},
    {"colour key", " FF ", " XY ", 13, "XY is no hexadecimal byte", 2},
    {"material", " 1.00   0.00 )", " 1.00 )", 16, "a material has 13 words, 12 follow", 2},
    {"colour above 1", "0.502 0.502", "1.502 0.502", 16, "a colour of a material is 1.502", 2},
    {"vertex", "01.500 00.000 ;", "01.500 ;", 17, "a vertex has 8 words, 23 follow"},
    {"number of a vertex", "-0111.3300", "-0111,3300", 20, "-0111,3300, which is no number"},
    {"no such texture", "SetMaterial( 0 0 )", "SetMaterial( 0 2 )", 22, "there is no texture 2"},
    {"no such material", "SetMaterial( 0 -1 )", "SetMaterial( 1 -1 )", 41, "there is no material 1"},
    {"texture of the other Area", "SetMaterial( 0 -1 )", "SetMaterial( 0 0 )", 41, "there is no texture 0"},
    {"texture unused", "SetMaterial( 0 0 )", "SetMaterial( 0 -1 )", 26,
     "no SetMaterial uses the TextureList"},
    {"no material set", "SetMaterial( 0 -1 )", "", 42, "DrawTriList stands in front of SetMaterial"},
    {"corner beyond the vertices", "002 001 000", "003 001 000", 24, "a corner is 003, allowed is 0 to 2"},
    {"corner twice", "002 001 000", "002 002 000", 24, "a triangle has one corner twice"},
    {"half a triangle", "002 001 000", "002 001", 23, "a triangle has 3 words, 2 follow"},
    {"no triangle", "( 0 0 1 2 )", "( 0 )", 42, "is the least, there is 0"},
};

TEST(ObjectFaults, AreReportedWithLineAndReason) {
  ExpectFaults(TwoSurfaces, Rows);
}

TEST(ContentOf, NamesWhatIsWritten) {
  const struct {
    std::string source;
    const char* content;
  } rows[] = {
      {TwoSurfaces, "section for such a source; 2 textured polygons checked"},
      {test::OneRoad, "1 cell of vector terrain: 1 line, 0 polygons, 0 empty layers"},
      {test::OneAreaAndExclusions, "2 cells of vector terrain: 0 lines, 1 polygon, 2 empty layers"},
      {test::OneLake, "1 cell of masks, 0 of them filled whole: 1 fill, 1 polygon"},
      {test::OneSlope, "1 cell of masks, 1 of them filled whole: 0 fills, 1 polygon"},
  };
  for (const auto& row : rows)
    EXPECT_THAT(ContentOf(CheckScm(ParseScm(row.source))), testing::EndsWith(row.content));
  EXPECT_EQ(BglOf(CheckScm(ParseScm(TwoSurfaces))).size(), 128U) << "the header alone";
}

}  // namespace

}  // namespace landsmith::simtools
