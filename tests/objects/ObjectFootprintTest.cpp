#include "objects/ObjectFootprint.h"

#include <gtest/gtest.h>

namespace landsmith {
namespace {

/// 100 metres a degree northward and 50 eastward.
constexpr ViewScale Scale{100, 50, 1};

ObjectRec AnObject(std::int32_t type, float heading) {
  ObjectRec object;
  object.Type = type;
  object.Width = 20;
  object.Length = 40;
  object.Heading = heading;
  object.Lat = 10;
  object.Lon = 20;
  return object;
}

TEST(ObjectFootprint, TurnsClockwiseFromNorth) {
  ObjectRec object = AnObject(2, 0);
  ComputeObjectFootprint(object, Scale);
  EXPECT_FLOAT_EQ(object.X1, -10);  // north-west corner first, then clockwise
  EXPECT_FLOAT_EQ(object.Y1, 20);
  EXPECT_FLOAT_EQ(object.X3, 10);
  EXPECT_FLOAT_EQ(object.Y3, -20);
  EXPECT_FLOAT_EQ(object.NoseY, 20);

  object = AnObject(2, 90);  // the nose points east
  ComputeObjectFootprint(object, Scale);
  EXPECT_FLOAT_EQ(object.NoseX, 20);
  EXPECT_NEAR(object.NoseY, 0, 1e-4);
  EXPECT_FLOAT_EQ(object.X1, 20);
  EXPECT_FLOAT_EQ(object.Y1, 10);
  EXPECT_FLOAT_EQ(object.X2, 20);
  EXPECT_FLOAT_EQ(object.Y2, -10);
  EXPECT_FLOAT_EQ(object.X4, -20);
  EXPECT_FLOAT_EQ(object.Y4, 10);
}

TEST(ObjectFootprint, OfSymbolsHasAFixedSize) {
  const struct {
    std::int32_t type;
    float halfWidth, halfLength;
  } rows[] = {{1, 10, 20}, {5, 10, 20}, {8, 1.5F, 3}, {16, 3, 3}, {32, 3, 3}, {64, 3, 3}};
  for (const auto& row : rows) {
    ObjectRec object = AnObject(row.type, 0);
    ComputeObjectFootprint(object, Scale);
    EXPECT_FLOAT_EQ(object.X2, row.halfWidth) << row.type;
    EXPECT_FLOAT_EQ(object.Y2, row.halfLength) << row.type;
  }
}

}  // namespace
}  // namespace landsmith
