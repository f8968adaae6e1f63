#include "vector/LineType.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

struct TypeRow {
  const char* name;
  const char* packed;
  LineType type;
  const char* head;
  const char* writtenAs;
};

class LineTypeText : public testing::TestWithParam<TypeRow> {};

TEST_P(LineTypeText, IsReadAndWritten) {
  const TypeRow& row = GetParam();
  EXPECT_EQ(DecodeLineType(row.packed), row.type);
  EXPECT_EQ(EncodeLineType(row.type), row.writtenAs);
  EXPECT_EQ(TypeHead(row.packed), row.head);
}

INSTANTIATE_TEST_SUITE_P(
    All, LineTypeText,
    testing::Values(
        TypeRow{"none", "", PlainLine{}, "", ""},
        TypeRow{"objects", "Objects//", ObjectsLine{}, "Objects", "Objects//"},
        TypeRow{"points", "Points//", PointsLine{}, "Points", "Points//"},
        TypeRow{"numbered", "VTP//5//1042//", VtpLine{"5", "1042"}, "VTP", "VTP//5//1042//"},
        TypeRow{"namedTextureWithBlanks", "VTP//8//\"a.bmp;b.bmp\" 1 0 0 4 //",
                VtpLine{"8", "\"a.bmp;b.bmp\" 1 0 0 4 "}, "VTP", "VTP//8//\"a.bmp;b.bmp\" 1 0 0 4 //"},
        TypeRow{"emptyLayerGetsSeven", "VTP////road//", VtpLine{"", "road"}, "VTP", "VTP//7//road//"},
        TypeRow{"headAlone", "VTP", VtpLine{"", ""}, "VTP", "VTP//7////"},
        TypeRow{"layerWithoutEnd", "VTP//4", VtpLine{"4", ""}, "VTP", "VTP//4////"},
        TypeRow{"textureWithoutEnd", "VTP//4//12", VtpLine{"4", "12"}, "VTP", "VTP//4//12//"},
        TypeRow{"otherHead", "Other//-1//x", UnknownLine{"Other//-1//x"}, "Other", "Other//-1//x"},
        TypeRow{"headIsCaseSensitive", "vtp//4//1//", UnknownLine{"vtp//4//1//"}, "vtp", "vtp//4//1//"},
        TypeRow{"singleSlash", "VTP/4", UnknownLine{"VTP/4"}, "VTP/4", "VTP/4"}),
    [](const auto& row) { return row.param.name; });

TEST(TextureText, OfFewerThanFiveCharactersIsANumber) {
  EXPECT_TRUE(IsNumericTexture(""));
  EXPECT_TRUE(IsNumericTexture("1042"));
  EXPECT_FALSE(IsNumericTexture("10421"));
  EXPECT_TRUE(IsNumericTexture("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F"));  // four letters, eight bytes
}

}  // namespace
}  // namespace landsmith
