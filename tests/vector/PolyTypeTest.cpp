#include "vector/PolyType.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

constexpr std::int32_t NoLayers = -2147483647 - 1;

TEST(PolyTypeText, IsReadAndWritten) {
  const struct {
    const char* packed;
    PolyType type;
    const char* writtenAs;
  } rows[] = {
      {"", PlainPoly{}, ""},
      {"LWM//Land//120.5//-3//2//4//", LwmPolyType{LwmKind::Land, "120.5", "-3", "2", "4"},
       "LWM//Land//120.5//-3//2//4//"},
      {"LWM//Flatten//7//7//1//1//", LwmPolyType{LwmKind::Flatten, "7", "7", "1", "1"},
       "LWM//Flatten//7//7//1//1//"},
      {"LWM//Water//9", LwmPolyType{LwmKind::Water, "9", "", "1", "1"}, "LWM//Water//9////1//1//"},
      {"LWM//Flat//7//7//1//1//", LwmPolyType{LwmKind::Flatten, "7", "7", "1", "1"},
       "LWM//Flatten//7//7//1//1//"},
      {"LWM//Kind//1//1//1//1//", UnknownPolyType{"LWM//Kind//1//1//1//1//"}, "LWM//Kind//1//1//1//1//"},
      {"VTP//9//1042//", VtpPolyType{"9", "1042"}, "VTP//9//1042//"},
      {"VTP////grass//", VtpPolyType{"", "grass"}, "VTP//4//grass//"},
      {"Other//-2147483648//-2147483647//-2147483648//-2130706432//",
       ExclusionPolyType{{NoLayers, NoLayers + 1, NoLayers, -2130706432}},
       "Other//-2147483648//-2147483647//-2147483648//-2130706432//"},
      {"Other//1//2//3//", UnknownPolyType{"Other//1//2//3//"}, "Other//1//2//3//"},
      {"TEX//roof.bmp//4//1//2//5000//0//", TexPolyType{"roof.bmp", "4", "1", "2", "5000", "0", ""},
       "TEX//roof.bmp//4//1//2//5000//0//"},
      {"TEX//roof.bmp//4//1//2//5000//1//0,0//256,0//0,9//",
       TexPolyType{"roof.bmp", "4", "1", "2", "5000", "1", "0,0//256,0//0,9//"},
       "TEX//roof.bmp//4//1//2//5000//1//0,0//256,0//0,9//"},
      {"lwm//Land//1//1//1//1//", UnknownPolyType{"lwm//Land//1//1//1//1//"}, "lwm//Land//1//1//1//1//"},
  };
  for (const auto& row : rows) {
    EXPECT_TRUE(DecodePolyType(row.packed) == row.type) << row.packed;
    EXPECT_EQ(EncodePolyType(row.type), row.writtenAs);
  }
}

TEST(ExclusionMasks, HoldTwentyFiveLayersEach) {
  const struct {
    std::set<int> layers;
    std::array<std::int32_t, 4> masks;
  } rows[] = {
      {{}, {NoLayers, NoLayers, NoLayers, NoLayers}},
      {{1, 2, 25}, {NoLayers + 1 + 2 + 16777216, NoLayers, NoLayers, NoLayers}},
      {{26, 75, 100}, {NoLayers, NoLayers + 1, NoLayers + 16777216, NoLayers + 16777216}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(MasksOfLayers(row.layers), row.masks);
    EXPECT_EQ(LayersOfMasks(row.masks), row.layers);
  }
}

}  // namespace
}  // namespace landsmith
