#include "core/Grid.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace landsmith {
namespace {

// Positions and grid numbers worked out in exact fractions from the grid's definition.
struct GridRow {
  double lat, lon;
  GridPosition at;
  std::int32_t lod5X, lod5Y, areaInLod5X, areaInLod5Y;
  const char* tile;
};

const GridRow GridRows[] = {
    {40.5, -9.25, {136, 153, 8, 25, 364, 140}, 45, 17, 136, 153, "012110330023002"},
    {-33.94, 151.18, {141, 75, 16, 17, 706, 352}, 88, 44, 80, 17, "121320001030002"},
    {47.26, 11.34, {37, 74, 6, 18, 408, 121}, 51, 15, 6, 50, "011223300220130"},
    {64.13, -21.94, {58, 190, 6, 18, 337, 73}, 42, 9, 38, 50, "010301200320130"},
};

TEST(Grid, PlacesPositions) {
  for (const GridRow& row : GridRows) {
    EXPECT_EQ(ComputeGridPosition(row.lat, row.lon), row.at) << row.lat << " " << row.lon;
    EXPECT_EQ(CellOfPosition(row.lat, row.lon), (CellIndex{row.at.CellX, row.at.CellY}));
    const GridPositionCell cell = GridPositionToCellPoint(row.lat, row.lon);
    EXPECT_EQ(cell, (GridPositionCell{row.at.PointX + (row.at.AreaX + 16) * 255,
                                      row.at.PointY + (row.at.AreaY + 16) * 255, row.at.AreaX, row.at.AreaY,
                                      row.at.CellX, row.at.CellY}));
    const Lod5Position lod5 = Lod5OfPosition(row.lat, row.lon);
    EXPECT_EQ(lod5.Lod5X, row.lod5X);
    EXPECT_EQ(lod5.Lod5Y, row.lod5Y);
    EXPECT_EQ(lod5.AreaInLod5X, row.areaInLod5X);
    EXPECT_EQ(lod5.AreaInLod5Y, row.areaInLod5Y);
    EXPECT_EQ(CustomTileName(row.lon, row.lat), row.tile);
  }
}

TEST(Grid, RoundsToTheNearestPointButNeverIntoTheNextArea) {
  const double west = -9.375;  // Cell 364, Area 0
  EXPECT_EQ(ComputeGridPosition(40, west).PointX, 0);
  EXPECT_EQ(ComputeGridPosition(40, west + 0.49 * StepLon).PointX, 0);
  EXPECT_EQ(ComputeGridPosition(40, west + 0.51 * StepLon).PointX, 1);
  const GridPosition last = ComputeGridPosition(40, west + AreaWidth - 0.1 * StepLon);
  EXPECT_EQ(last.PointX, 255);
  EXPECT_EQ(last.AreaX, 0);
}

TEST(Grid, KeepsTheLastPointOfAnAreaAtItsBorder) {
  const double west = -9.375;
  const CellIndex cell{364, 142};
  const auto x = [&](double steps) { return CellPointOfPosition(40, west + steps * StepLon, cell).X; };
  EXPECT_EQ(x(0), CellPointMin);
  EXPECT_EQ(x(0.4), CellPointMin);
  EXPECT_EQ(x(254.4), CellPointMin + 254);
  EXPECT_EQ(x(254.6), CellPointMin + 255);
  EXPECT_EQ(x(255.4), CellPointMin + 255);  // the next Area's Point 0 is the same value
}

TEST(Grid, TellsAnOverflowInsteadOfWrapping) {
  EXPECT_THROW(CellPointOfPosition(0, 3e7, {0, 0}), RuntimeError);
  EXPECT_THROW(ComputeGridPosition(0, std::numeric_limits<double>::quiet_NaN()), RuntimeError);
  EXPECT_THROW(ComputeGridPosition(1e300, 0), RuntimeError);
}

TEST(Grid, PointsComeBackToThemselves) {
  for (const std::int32_t pointX : {0, 1, 100, 254, 255})
    for (const std::int32_t pointY : {0, 1, 100, 254, 255}) {
      const GridPosition at{pointX, pointY, 31, 7, 408, 121};
      const LatLon place = PointInAreaToLatLon(at);
      EXPECT_EQ(ComputeGridPosition(place.lat, place.lon), at);
    }
  for (const std::int32_t x : {CellPointMin, CellPointMin + 255, 8000, CellPointMax}) {
    GridPositionCell at;
    at.PointX = at.PointY = x;
    at.CellX = 408;
    at.CellY = 121;
    const LatLon place = PointInCellToLatLon(at);
    EXPECT_EQ(CellPointOfPosition(place.lat, place.lon, {408, 121}), (CellPoint{x, x}));
    EXPECT_EQ(CellOfPosition(place.lat, place.lon), (CellIndex{408, 121}));
  }
}

TEST(Grid, NudgesAtAreaBordersOnlyInTheAreaForm) {
  const double border = 408 * CellWidth + AreaWidth - 180;  // between the Cell's first two Areas
  EXPECT_NEAR(PointInAreaToLatLon({255, 10, 0, 0, 408, 121}).lon, border - NudgeLon, 1e-12);
  EXPECT_NEAR(PointInAreaToLatLon({0, 10, 1, 0, 408, 121}).lon, border + NudgeLon, 1e-12);
  EXPECT_NEAR(PointInCellToLatLon({CellPointMin + 255, 5000, 0, 0, 408, 121}).lon, border, 1e-12);
  const double south = 90 - 122 * CellHeight;
  EXPECT_NEAR(PointInCellToLatLon({5000, CellPointMax, 0, 0, 408, 121}).lat, south + NudgeLat, 1e-12);
}

TEST(Grid, LaysTheClassWindowAroundTheCentresTile) {
  // 40 N 10 W lies in Lod5 tile 45, 17.
  const ClassWindow window = ClassWindowOf(40, -10);
  EXPECT_EQ(window.LandWest, 43 * 3.75 - 180 - 0.00732421875);
  EXPECT_EQ(window.LandNorth, 90 - 15 * 2.8125 + 0.0054931640625);
  EXPECT_EQ(std::lround((window.LandEast - window.LandWest) / AreaWidth), ClassGridSide);
  EXPECT_EQ(std::lround((window.LandNorth - window.LandSouth) / AreaHeight), ClassGridSide);
}

TEST(Grid, ScalesTheCanvas) {
  const ViewScale scale = UpdateScale(2, 60);
  EXPECT_DOUBLE_EQ(scale.PixelsPerDegLat, 16 / 0.010986328125);
  EXPECT_NEAR(scale.PixelsPerDegLon, scale.PixelsPerDegLat / 2, 1e-9);
  EXPECT_DOUBLE_EQ(scale.PixelsPerMeter * 111330, scale.PixelsPerDegLat);
  EXPECT_NEAR(MetersPerDegreeLon(60), 55665, 1e-6);
}

}  // namespace
}  // namespace landsmith
