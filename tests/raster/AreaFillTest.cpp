// Blocks of the grid of Cells and Areas. Cell 384, 256 begins at 0 N 0 E; an Area is 0.0146484375 degrees
// wide and 0.010986328125 high, so the borders below are whole multiples of these.
#include "core/Project.h"
#include "raster/AreaFill.h"

#include <gtest/gtest.h>

#include <cmath>

namespace landsmith::test {
namespace {

struct PlaceRow {
  const char* name;
  LatLon at;
  int size;
  int cellX, cellY, col, row;
  double north, west;
};
class FillPlaces : public testing::TestWithParam<PlaceRow> {};
TEST_P(FillPlaces, AreTheBlockThatHoldsThePosition) {
  const PlaceRow& row = GetParam();
  const auto fill = MakeFill(row.at, static_cast<std::uint8_t>(row.size), FillType::Flatten, 12.5F);
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->Size, row.size);
  EXPECT_EQ(fill->CellX, row.cellX);
  EXPECT_EQ(fill->CellY, row.cellY);
  EXPECT_EQ(fill->Col, row.col);
  EXPECT_EQ(fill->Row, row.row);
  EXPECT_EQ(fill->Type, 2);
  EXPECT_EQ(fill->Height, 12.5F);
  EXPECT_FALSE(fill->Selected);
  EXPECT_EQ(fill->Box, (GeoBox{row.north, row.north - row.size * 0.010986328125, row.west,
                               row.west + row.size * 0.0146484375}));
}
constexpr double Hair = 1e-9;
/// In the Area of column 21 and row 13.
constexpr LatLon Inside{-0.1483154296875, 0.31494140625};
INSTANTIATE_TEST_SUITE_P(
    At, FillPlaces,
    testing::Values(PlaceRow{"corner_of_a_cell", {0, 0}, 1, 384, 256, 0, 0, 0, 0},
                    PlaceRow{"before_it", {Hair, -Hair}, 1, 383, 255, 31, 31, 0.010986328125, -0.0146484375},
                    PlaceRow{"before_it_4", {Hair, -Hair}, 4, 383, 255, 7, 7, 0.0439453125, -0.05859375},
                    PlaceRow{"before_it_32", {Hair, -Hair}, 32, 383, 255, 0, 0, 0.3515625, -0.46875},
                    PlaceRow{"inside_1", Inside, 1, 384, 256, 21, 13, -0.142822265625, 0.3076171875},
                    PlaceRow{"inside_2", Inside, 2, 384, 256, 10, 6, -0.1318359375, 0.29296875},
                    PlaceRow{"inside_8", Inside, 8, 384, 256, 2, 1, -0.087890625, 0.234375},
                    PlaceRow{"inside_16", Inside, 16, 384, 256, 1, 0, 0, 0.234375},
                    PlaceRow{"first_of_the_world", {90, -180}, 1, 0, 0, 0, 0, 90, -180},
                    PlaceRow{"last_of_the_world",
                             {-89.9999, 179.9999},
                             1,
                             767,
                             511,
                             31,
                             31,
                             -89.989013671875,
                             179.9853515625}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(AreaFill, StaysInTheWorldAndLandHasNoHeight) {
  for (const LatLon& outside : {LatLon{0, 180}, LatLon{0, std::nextafter(180.0, 0.0)}, LatLon{0, -180.001},
                                LatLon{-90, 0}, LatLon{90.001, 0}, LatLon{std::nan(""), 0}})
    EXPECT_FALSE(MakeFill(outside, 1, FillType::Water, 0)) << outside.lat << " " << outside.lon;
  EXPECT_EQ(MakeFill({0, 0}, 1, FillType::Land, 50)->Height, 0);
}

FillRec Block(int size, int col, int row, int cellX = 384) {
  FillRec fill;
  fill.Size = static_cast<std::uint8_t>(size);
  fill.Col = static_cast<std::uint8_t>(col);
  fill.Row = static_cast<std::uint8_t>(row);
  fill.CellX = cellX;
  fill.CellY = 256;
  fill.Box = FillBox(fill);
  return fill;
}

TEST(AreaFill, ANewOneTakesOutWhatItCoversAndLiesOnTop) {
  // Areas 8 to 15 east, 16 to 23 south of the Cell's corner.
  const FillRec covering = Block(8, 1, 2);
  RecordList<FillRec> fills;
  const std::vector<FillRec> kept{Block(1, 7, 16), Block(1, 16, 16), Block(1, 8, 15),     Block(1, 8, 24),
                                  Block(4, 1, 4),  Block(16, 0, 1),  Block(8, 1, 2, 385), Block(32, 0, 0)};
  const std::vector<FillRec> covered{Block(1, 8, 16), Block(1, 15, 23), Block(4, 3, 5), Block(8, 1, 2)};
  for (std::size_t i = 0; i < kept.size(); ++i) {
    fills.push_back(kept[i]);
    if (i < covered.size()) fills.push_back(covered[i]);
  }
  EXPECT_EQ(AddNewFill(fills, covering), covered.size());
  ASSERT_EQ(fills.size(), kept.size() + 1);
  for (std::size_t i = 0; i < kept.size(); ++i)
    EXPECT_EQ(fills[i], kept[i]) << i;
  EXPECT_EQ(fills.back(), covering);
}

/// Corners of blocks counted from 0 N 0 E, where a Cell begins: east, south.
struct WayRow {
  int fromX, fromY, toX, toY;
};
TEST(AreaFill, TheWayOfAStrokeHasNoGapsAndNoBlockTwice) {
  for (const int size : {1, 4, 32}) {
    const auto at = [size](double x, double y) {
      return LatLon{-(y + 0.25) * size * 0.010986328125, (x + 0.75) * size * 0.0146484375};
    };
    const auto block = [size](LatLon middle) {
      return std::pair{middle.lon / (size * 0.0146484375) - 0.5, -middle.lat / (size * 0.010986328125) - 0.5};
    };
    for (const WayRow& row : {WayRow{0, 0, 7, 3}, WayRow{3, 2, -4, -2}, WayRow{1, 5, 0, -6},
                              WayRow{-5, 5, 5, -5}, WayRow{2, 2, 2, 2}}) {
      const auto byte = static_cast<std::uint8_t>(size);
      const auto way = BlocksOnTheWay(at(row.fromX, row.fromY), at(row.toX, row.toY), byte);
      std::pair<double, double> before{row.fromX, row.fromY};
      for (const LatLon& middle : way) {
        const auto [x, y] = block(middle);
        EXPECT_EQ(x, std::floor(x));
        EXPECT_EQ(y, std::floor(y));
        EXPECT_EQ(std::max(std::abs(x - before.first), std::abs(y - before.second)), 1);
        before = {x, y};
      }
      EXPECT_EQ(before, (std::pair<double, double>{row.toX, row.toY}));
    }
  }
}

}  // namespace
}  // namespace landsmith::test
