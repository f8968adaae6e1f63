#include "vector/LineType.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

TEST(LineTypeText, IsReadAndWritten) {
  const struct {
    const char* packed;
    LineType type;
    const char* head;
    const char* writtenAs;
  } rows[] = {
      {"", PlainLine{}, "", ""},
      {"Objects//", ObjectsLine{}, "Objects", "Objects//"},
      {"Points//", PointsLine{}, "Points", "Points//"},
      {"VTP//8//\"a.bmp;b.bmp\" 1 0 0 4 //", VtpLine{"8", "\"a.bmp;b.bmp\" 1 0 0 4 "}, "VTP",
       "VTP//8//\"a.bmp;b.bmp\" 1 0 0 4 //"},
      {"VTP////road//", VtpLine{"", "road"}, "VTP", "VTP//7//road//"},
      {"VTP", VtpLine{"", ""}, "VTP", "VTP//7////"},
      {"VTP//4", VtpLine{"4", ""}, "VTP", "VTP//4////"},
      {"VTP//4//12", VtpLine{"4", "12"}, "VTP", "VTP//4//12//"},
      {"Other//-1//x", UnknownLine{"Other//-1//x"}, "Other", "Other//-1//x"},
      {"vtp//4//1//", UnknownLine{"vtp//4//1//"}, "vtp", "vtp//4//1//"},  // the case of the head counts
      {"VTP/4", UnknownLine{"VTP/4"}, "VTP/4", "VTP/4"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(DecodeLineType(row.packed), row.type) << row.packed;
    EXPECT_EQ(EncodeLineType(row.type), row.writtenAs);
    EXPECT_EQ(TypeHead(row.packed), row.head);
  }
}

TEST(TextureText, OfFewerThanFiveCharactersIsANumber) {
  EXPECT_TRUE(IsNumericTexture(""));
  EXPECT_TRUE(IsNumericTexture("1042"));
  EXPECT_FALSE(IsNumericTexture("10421"));
  EXPECT_TRUE(IsNumericTexture("\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F"));  // four letters, eight bytes
}

}  // namespace
}  // namespace landsmith
