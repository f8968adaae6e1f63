#include "core/Grid.h"

#include "core/Numbers.h"

#include <cmath>

namespace landsmith {

namespace {

constexpr std::int32_t AreasPerCell = 32;
constexpr std::int32_t StepsPerArea = 255;
constexpr std::int32_t AreaOffset = 16;

double EastOfOrigin(double lon) {
  return lon + 180;
}

double SouthOfOrigin(double lat) {
  return 90 - lat;
}

/// Point in Cell value along one axis; `distance` from the grid's origin.
std::int32_t CellPointAlong(double distance, double cellSize, double areaSize, double step,
                            std::int32_t reference) {
  const std::int32_t area = Floor(distance / areaSize);
  const double steps = (distance - area * areaSize) / step;
  std::int32_t point = Mod(RoundHalfEven(steps), StepsPerArea);
  if (point == 0 && steps > 1) point = StepsPerArea;
  // In doubles, where every whole number in question is exact: a position far off its reference Cell is an
  // overflow that is told, not a wrapped value.
  const double cells = static_cast<double>(Floor(distance / cellSize)) - reference;
  return RoundHalfEven((cells * AreasPerCell + Mod(area, AreasPerCell) + AreaOffset) * StepsPerArea + point);
}

/// Keeps a border Point inside its own Area or Cell.
double Nudged(double value, std::int32_t point, std::int32_t first, std::int32_t last, double nudge) {
  if (point == first) return value + nudge;
  return point == last ? value - nudge : value;
}

GeoBox SquareAround(double lat, double lon, double height, double width) {
  GeoBox box;
  box.WLon = Floor(EastOfOrigin(lon) / width) * width - 180;
  box.ELon = box.WLon + width;
  box.NLat = 90 - Floor(SouthOfOrigin(lat) / height) * height;
  box.SLat = box.NLat - height;
  return box;
}

}  // namespace

GridPosition ComputeGridPosition(double lat, double lon) {
  const double x = EastOfOrigin(lon);
  const double y = SouthOfOrigin(lat);
  const std::int32_t a = Floor(x / AreaWidth);
  const std::int32_t b = Floor(y / AreaHeight);
  GridPosition at;
  at.CellX = Floor(x / CellWidth);
  at.CellY = Floor(y / CellHeight);
  at.AreaX = Mod(a, AreasPerCell);
  at.AreaY = Mod(b, AreasPerCell);
  at.PointX = Floor((x - a * AreaWidth + HalfStepLon) / StepLon);
  at.PointY = Floor((y - b * AreaHeight + HalfStepLat) / StepLat);
  return at;
}

GridPositionCell GridPositionToCellPoint(double lat, double lon) {
  const GridPosition at = ComputeGridPosition(lat, lon);
  return {at.PointX + (at.AreaX + AreaOffset) * StepsPerArea,
          at.PointY + (at.AreaY + AreaOffset) * StepsPerArea,
          at.AreaX,
          at.AreaY,
          at.CellX,
          at.CellY};
}

CellPoint CellPointOfPosition(double lat, double lon, CellIndex reference) {
  return {CellPointAlong(EastOfOrigin(lon), CellWidth, AreaWidth, StepLon, reference.CellX),
          CellPointAlong(SouthOfOrigin(lat), CellHeight, AreaHeight, StepLat, reference.CellY)};
}

LatLon PointInAreaToLatLon(const GridPosition& position) {
  const double u = position.CellX * CellWidth + position.AreaX * AreaWidth + position.PointX * StepLon;
  const double v = position.CellY * CellHeight + position.AreaY * AreaHeight + position.PointY * StepLat;
  return {90 - Nudged(v, position.PointY, 0, StepsPerArea, NudgeLat),
          Nudged(u, position.PointX, 0, StepsPerArea, NudgeLon) - 180};
}

LatLon PointInCellToLatLon(const GridPositionCell& position) {
  const double stepsX = static_cast<double>(position.PointX) - CellPointMin;
  const double stepsY = static_cast<double>(position.PointY) - CellPointMin;
  const double u = position.CellX * CellWidth + stepsX * StepLon;
  const double v = position.CellY * CellHeight + stepsY * StepLat;
  return {90 - Nudged(v, position.PointY, CellPointMin, CellPointMax, NudgeLat),
          Nudged(u, position.PointX, CellPointMin, CellPointMax, NudgeLon) - 180};
}

CellIndex CellOfPosition(double lat, double lon) {
  return {Floor(EastOfOrigin(lon) / CellWidth), Floor(SouthOfOrigin(lat) / CellHeight)};
}

Lod5Position Lod5OfPosition(double lat, double lon) {
  const double p = EastOfOrigin(lon) / Lod5Width;
  const double q = SouthOfOrigin(lat) / Lod5Height;
  Lod5Position at;
  at.Lod5X = Floor(p);
  at.Lod5Y = Floor(q);
  at.AreaInLod5X = Floor((p - at.Lod5X) * Lod5Width / AreaWidth);
  at.AreaInLod5Y = Floor((q - at.Lod5Y) * Lod5Height / AreaHeight);
  return at;
}

GeoBox AreaBox(double lat, double lon) {
  return SquareAround(lat, lon, AreaHeight, AreaWidth);
}

GeoBox CellBox(double lat, double lon) {
  return SquareAround(lat, lon, CellHeight, CellWidth);
}

std::string CustomTileName(double lon, double lat) {
  double x = EastOfOrigin(lon);
  double y = SouthOfOrigin(lat);
  // Two digits for the 3 x 2 blocks of the world, then one digit a halving.
  std::string name = "0";
  char block = '0';
  if (x >= 240) {
    name = "1";
    x -= 240;
  } else if (x >= 120) {
    block = '1';
    x -= 120;
  }
  if (y >= 90) {
    block = static_cast<char>(block + 2);
    y -= 90;
  }
  name += block;
  double width = 60;
  double height = 45;
  for (int level = 0; level < 13; ++level) {
    char digit = '0';
    if (x >= width) {
      digit = static_cast<char>(digit + 1);
      x -= width;
    }
    if (y >= height) {
      digit = static_cast<char>(digit + 2);
      y -= height;
    }
    name += digit;
    width /= 2;
    height /= 2;
  }
  return name;
}

double MetersPerDegreeLon(double lat) {
  return std::cos(lat * Pi / 180) * MetersPerDegreeLat;
}

ViewScale UpdateScale(double zoom, double latDispCenter) {
  ViewScale scale;
  scale.PixelsPerDegLat = zoom * 8 / AreaHeight;
  scale.PixelsPerDegLon = std::cos(latDispCenter * Pi / 180) * scale.PixelsPerDegLat;
  scale.PixelsPerMeter = scale.PixelsPerDegLat / MetersPerDegreeLat;
  return scale;
}

ClassWindow ClassWindowOf(double latLandCenter, double lonLandCenter) {
  const Lod5Position tile = Lod5OfPosition(latLandCenter - AreaHeight / 2, lonLandCenter + AreaWidth / 2);
  ClassWindow window;
  window.LandWest = (tile.Lod5X - 2) * Lod5Width - 180 - AreaWidth / 2;
  window.LandEast = window.LandWest + 18.75 + AreaWidth;
  window.LandNorth = 90 - (tile.Lod5Y - 2) * Lod5Height + AreaHeight / 2;
  window.LandSouth = window.LandNorth - 14.0625 - AreaHeight;
  return window;
}

}  // namespace landsmith
