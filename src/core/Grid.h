// The one fixed grid of the world that all scenery is addressed on. All grids count from the north-west
// corner of the world: x = lon + 180 grows eastward from 0 to 360, y = 90 - lat southward from 0 to 180.
//
//   level            columns x rows   width (lon)          height (lat)
//   Lod5 tile        96 x 64          3.75                 2.8125           8 x 8 Cells
//   Cell             768 x 512        0.46875              0.3515625        32 x 32 Areas
//   Area             32 x 32 a Cell   0.0146484375         0.010986328125
//   Point in Area    0..255           Area / 255, both borders included
//   Point in Cell    4080..12240      the same steps; (Area + 16) * 255 + Point
//
// The offset of 16 Areas leaves room for vertices that stray past either border of their Cell. Nothing here
// clamps: longitude 180 is in Cell column 768.
#pragma once

#include "core/GeoTypes.h"

#include <cstdint>
#include <string>

namespace landsmith {

inline constexpr double Lod5Width = 3.75, Lod5Height = 2.8125;
inline constexpr double CellWidth = 0.46875, CellHeight = 0.3515625;
inline constexpr double AreaWidth = 0.0146484375, AreaHeight = 0.010986328125;
inline constexpr double StepLon = 5.744485294117647e-5, StepLat = 4.3083639705882356e-5;
/// Half a step, added before truncation so that a position goes to the nearest Point.
inline constexpr double HalfStepLon = 2.8722426470588235e-5, HalfStepLat = 2.1541819852941178e-5;
/// A thousandth of a step: keeps a border Point inside its own Area or Cell.
inline constexpr double NudgeLon = 5.744485294117647e-8, NudgeLat = 4.3083639705882356e-8;
inline constexpr double MetersPerDegreeLat = 111330.0;
inline constexpr std::int32_t CellPointMin = 4080, CellPointMax = 12240;

struct GridPosition {
  std::int32_t PointX = 0, PointY = 0;  ///< 0..255 in the Area
  std::int32_t AreaX = 0, AreaY = 0;
  std::int32_t CellX = 0, CellY = 0;
  bool operator==(const GridPosition&) const = default;
};

/// As GridPosition, but PointX and PointY count in the Cell, 4080..12240.
struct GridPositionCell {
  std::int32_t PointX = 0, PointY = 0;
  std::int32_t AreaX = 0, AreaY = 0;
  std::int32_t CellX = 0, CellY = 0;
  bool operator==(const GridPositionCell&) const = default;
};

struct CellIndex {
  std::int32_t CellX = 0, CellY = 0;
  bool operator==(const CellIndex&) const = default;
};

struct CellPoint {
  std::int32_t X = 0, Y = 0;
  bool operator==(const CellPoint&) const = default;
};

struct Lod5Position {
  std::int32_t Lod5X = 0, Lod5Y = 0;
  std::int32_t AreaInLod5X = 0, AreaInLod5Y = 0;  ///< 0..255
};

/// A position within half a step of the east or south border of an Area gets Point 255 of that Area, never
/// Point 0 of the next one.
GridPosition ComputeGridPosition(double lat, double lon);
GridPositionCell GridPositionToCellPoint(double lat, double lon);

/// The Point in Cell value relative to `reference`, rounded to nearest with halves to even; a position of
/// a neighbouring Cell lies outside 4080..12240. The compilers place vertices with this.
CellPoint CellPointOfPosition(double lat, double lon, CellIndex reference);

/// A Point on an Area's border comes back a nudge inside that Area.
LatLon PointInAreaToLatLon(const GridPosition& position);
/// The nudge is applied at the Cell's borders alone, not at inner Area borders.
LatLon PointInCellToLatLon(const GridPositionCell& position);

CellIndex CellOfPosition(double lat, double lon);
Lod5Position Lod5OfPosition(double lat, double lon);
/// The Area or Cell that holds the position.
GeoBox AreaBox(double lat, double lon);
GeoBox CellBox(double lat, double lon);

/// Quadtree name of the Area that holds the position: 15 digits.
std::string CustomTileName(double lon, double lat);

/// cos(lat) * 111330.
double MetersPerDegreeLon(double lat);

/// The scale of the canvas. At zoom 1 an Area is 8 pixels high; one cosine, that of the display centre,
/// serves the whole canvas.
struct ViewScale {
  double PixelsPerDegLat = 0;
  double PixelsPerDegLon = 0;
  double PixelsPerMeter = 0;
};
ViewScale UpdateScale(double zoom, double latDispCenter);

/// The square of 5 x 5 Lod5 tiles around a centre, half an Area larger on each side, which the land and
/// water class grids cover.
struct ClassWindow {
  double LandNorth = 0, LandSouth = 0, LandWest = 0, LandEast = 0;
};
ClassWindow ClassWindowOf(double latLandCenter, double lonLandCenter);

inline constexpr std::int32_t ClassGridSide = 1281;

}  // namespace landsmith
