#include "compile/VtpClip.h"

#include "core/Numbers.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <tuple>

namespace landsmith {
namespace {

// Here rows of Cells count northward from the equator and columns eastward from Greenwich: the Cells that are
// looked at follow from the latitudes and longitudes as they stand. All borders are exact in a double.
constexpr std::int32_t RowsNorthOfEquator = 256, ColumnsWestOfGreenwich = 384;

/// Consecutive vertices inside one Cell.
struct Visit {
  std::int32_t row = 0, column = 0;
  std::size_t first = 0, last = 0;
};

struct PlaceRange {
  std::int32_t least = 0, most = 0;
};

struct Places {
  std::array<std::int32_t, 2> at{};
  std::size_t count = 0;
};

/// The rows or columns of `range` that hold `value`, sides included: two on a border.
Places PlacesHolding(double value, double size, PlaceRange range) {
  Places places;
  const std::int32_t place = Floor(value / size);
  for (const std::int32_t candidate : {place - 1, place}) {
    const bool looked = candidate >= range.least && candidate <= range.most;
    if (looked && candidate * size <= value && value <= (candidate + 1) * size)
      places.at.at(places.count++) = candidate;
  }
  return places;
}

/// The visits in progress: as many as Cells can meet in one vertex.
class OpenVisits {
public:
  void Add(std::size_t visit) { m_places.at(m_count++) = visit; }
  std::size_t Find(const std::vector<Visit>& visits, std::int32_t row, std::int32_t column) const {
    for (std::size_t i = 0; i < m_count; ++i) {
      const std::size_t place = m_places.at(i);
      if (visits[place].row == row && visits[place].column == column) return place;
    }
    return visits.size();
  }

private:
  std::array<std::size_t, 4> m_places{};
  std::size_t m_count = 0;
};

GeoBox BoxOf(const std::vector<LinePoint>& points) {
  GeoBox box;
  for (const LinePoint& point : points)
    box.Add(point.Lat, point.Lon);
  return box;
}

/// One walk along the line. A visit is extended while the next vertex is in the same Cell.
std::vector<Visit> FindVisits(const std::vector<LinePoint>& points) {
  const GeoBox box = BoxOf(points);
  const PlaceRange rows{Floor(box.SLat / CellHeight), Floor(box.NLat / CellHeight)};
  const PlaceRange columns{Floor(box.WLon / CellWidth), Floor(box.ELon / CellWidth)};
  std::vector<Visit> visits;
  OpenVisits open;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Places inRows = PlacesHolding(points[i].Lat, CellHeight, rows);
    const Places inColumns = PlacesHolding(points[i].Lon, CellWidth, columns);
    OpenVisits next;
    for (std::size_t r = 0; r < inRows.count; ++r) {
      for (std::size_t c = 0; c < inColumns.count; ++c) {
        const std::size_t place = open.Find(visits, inRows.at.at(r), inColumns.at.at(c));
        if (place == visits.size()) visits.push_back({inRows.at.at(r), inColumns.at.at(c), i, i});
        visits[place].last = i;
        next.Add(place);
      }
    }
    open = next;
  }
  return visits;
}

LineRun MakeRun(const std::vector<LinePoint>& points, std::size_t first, std::size_t last, CellIndex cell) {
  LineRun run;
  run.CellX = cell.CellX;
  run.CellY = cell.CellY;
  run.Points.resize(last - first + 3);
  for (std::size_t i = first; i <= last; ++i) {
    const CellPoint at = CellPointOfPosition(points[i].Lat, points[i].Lon, cell);
    RunPoint& slot = run.Points[i - first + 1];
    slot.X = at.X;
    slot.Y = at.Y;
    slot.Wid = points[i].Wid;
  }
  return run;
}

}  // namespace

std::vector<LinePoint> SnapLinePoints(const std::vector<LinePoint>& points) {
  std::vector<LinePoint> snapped;
  snapped.reserve(points.size());
  for (const LinePoint& point : points) {
    const LatLon at = PointInCellToLatLon(GridPositionToCellPoint(point.Lat, point.Lon));
    const bool repeats = !snapped.empty() && snapped.back().Lat == at.lat && snapped.back().Lon == at.lon;
    if (!repeats) snapped.push_back({at.lon, at.lat, point.Wid, point.Selected});
  }
  return snapped;
}

std::vector<LineRun> ClipLineToCells(const std::vector<LinePoint>& points, std::string_view name,
                                     std::int32_t texId, std::int32_t layer) {
  std::vector<Visit> visits = FindVisits(points);
  std::sort(visits.begin(), visits.end(), [](const Visit& a, const Visit& b) {
    return std::tuple(-a.row, a.column, a.first) < std::tuple(-b.row, b.column, b.first);
  });
  const std::size_t count = points.size();
  std::vector<LineRun> runs;
  runs.reserve(visits.size());
  for (const Visit& visit : visits) {
    const std::size_t first = visit.first > 0 ? visit.first - 1 : 0;
    const std::size_t last = std::min(visit.last + 1, count - 1);
    if (count > 2 && first + 2 >= count) continue;
    const CellIndex cell{ColumnsWestOfGreenwich + visit.column, RowsNorthOfEquator - 1 - visit.row};
    LineRun& run = runs.emplace_back(MakeRun(points, first, last, cell));
    run.Name = name;
    run.TexId = texId;
    run.Layer = layer;
  }
  return runs;
}

}  // namespace landsmith
