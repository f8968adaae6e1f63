#include "editor/Picking.h"

#include <array>
#include <cmath>

namespace landsmith {

namespace {

constexpr double BorderReach = 3;
constexpr std::uint8_t ClassBits = 0x7F;

bool IsOnFootprint(const ObjectRec& object, WorldPixel at, const ViewScale& scale) {
  const double x = object.Lon * scale.PixelsPerDegLon, y = object.Lat * scale.PixelsPerDegLat;
  const auto corner = [&](float east, float north) {
    return WorldPixel{x + east * scale.PixelsPerMeter, y + north * scale.PixelsPerMeter};
  };
  const std::array<WorldPixel, 4> corners{corner(object.X1, object.Y1), corner(object.X2, object.Y2),
                                          corner(object.X3, object.Y3), corner(object.X4, object.Y4)};
  for (std::size_t i = 0; i < corners.size(); ++i)
    if (NearEdge(corners[i], corners[(i + 1) % corners.size()], at)) return true;
  return false;
}

template <class Record, class Predicate>
std::optional<std::size_t> FindFirst(const RecordList<Record>& records, Predicate hit) {
  for (std::size_t i = 0; i < records.size(); ++i)
    if (hit(records[i])) return i;
  return {};
}

}  // namespace

std::optional<std::size_t> FindObjectCenterAt(const RecordList<ObjectRec>& objects, WorldPixel at,
                                              const ViewScale& scale) {
  return FindFirst(objects,
                   [&](const ObjectRec& object) { return NearPoint(object.Lon, object.Lat, at, scale); });
}

std::optional<std::size_t> FindObjectAt(const RecordList<ObjectRec>& objects, WorldPixel at,
                                        const ViewScale& scale) {
  const GeoBox cursor = CursorBox(at, scale);
  return FindFirst(objects, [&](const ObjectRec& object) {
    return object.Box.Meets(cursor) &&
           (NearPoint(object.Lon, object.Lat, at, scale) || IsOnFootprint(object, at, scale));
  });
}

bool IsOnBorder(const GeoBox& box, WorldPixel at, const ViewScale& scale) {
  const double west = box.WLon * scale.PixelsPerDegLon, east = box.ELon * scale.PixelsPerDegLon;
  const double south = box.SLat * scale.PixelsPerDegLat, north = box.NLat * scale.PixelsPerDegLat;
  const auto within = [&](double grown) {
    return at.X >= west - grown && at.X <= east + grown && at.Y >= south - grown && at.Y <= north + grown;
  };
  const bool wellInside = at.X > west + BorderReach && at.X < east - BorderReach &&
                          at.Y > south + BorderReach && at.Y < north - BorderReach;
  return within(BorderReach) && !wellInside;
}

std::optional<std::size_t> FindMapAt(const RecordList<MapRec>& maps, WorldPixel at, const ViewScale& scale) {
  return FindFirst(maps, [&](const MapRec& map) {
    const MapLevel& shown = map.Level[0];
    return IsOnBorder({shown.NLat, shown.SLat, shown.WLon, shown.ELon}, at, scale);
  });
}

std::optional<std::size_t> FindExcludeAt(const RecordList<ExcludeRec>& excludes, WorldPixel at,
                                         const ViewScale& scale) {
  return FindFirst(excludes, [&](const ExcludeRec& exclude) { return IsOnBorder(exclude.Box, at, scale); });
}

std::optional<std::size_t> FindFillAt(const RecordList<FillRec>& fills, LatLon at) {
  for (std::size_t i = fills.size(); i-- > 0;)
    if (fills[i].Box.Holds(at)) return i;
  return {};
}

std::optional<ClassCell> ClassCellAt(const ClassWindow& window, LatLon at) {
  const double column = std::floor((at.lon - window.LandWest) / AreaWidth);
  const double row = std::floor((window.LandNorth - at.lat) / AreaHeight);
  if (!(column >= 0 && column < ClassGridSide && row >= 0 && row < ClassGridSide)) return {};
  return ClassCell{static_cast<std::int32_t>(column), static_cast<std::int32_t>(row)};
}

std::optional<ClassCell> FindClassAt(const ClassGrid& grid, const ClassWindow& window, LatLon at) {
  const auto cell = ClassCellAt(window, at);
  if (!cell || (grid.At(cell->Column, cell->Row) & ClassBits) == 0) return {};
  return cell;
}

}  // namespace landsmith
