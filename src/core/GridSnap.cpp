#include "core/GridSnap.h"

#include "core/Grid.h"

#include <utility>
#include <vector>

namespace landsmith {

namespace {

LatLon SnappedInCell(double lat, double lon) {
  return PointInCellToLatLon(GridPositionToCellPoint(lat, lon));
}

LatLon SnappedInArea(double lat, double lon) {
  return PointInAreaToLatLon(ComputeGridPosition(lat, lon));
}

template <class Point>
bool SamePlace(const Point& a, const Point& b) {
  return a.Lat == b.Lat && a.Lon == b.Lon;
}

struct PathSnap {
  std::int32_t Eliminated = 0;
  bool Gone = false;  ///< too few points are left
};

/// Moves each point and drops those that meet the one before. The path goes as soon as its last `least`
/// points would become fewer; all of these then count as eliminated.
template <class Point, class Snap>
PathSnap SnapPoints(std::vector<Point>& points, std::int32_t least, Snap snapped) {
  const auto left = [&](std::int32_t removed) { return static_cast<std::int32_t>(points.size()) - removed; };
  std::int32_t removed = 0;
  std::size_t kept = 0;
  for (Point point : points) {
    const LatLon at = snapped(point.Lat, point.Lon);
    point.Lat = at.lat;
    point.Lon = at.lon;
    if (kept > 0 && SamePlace(point, points[kept - 1])) {
      if (left(removed) == least) return {removed + least, true};
      ++removed;
    } else {
      points[kept++] = point;
    }
  }
  points.resize(kept);
  return {removed, false};
}

PathSnap SnapLine(LineRec& line) {
  PathSnap result = SnapPoints(line.Points, 2, SnappedInCell);
  if (line.Points.size() == 1) result.Gone = true;
  return result;
}

PathSnap SnapPoly(PolyRec& poly) {
  PathSnap result = SnapPoints(poly.Points, 3, SnappedInArea);
  if (result.Gone) return result;
  if (poly.Points.size() >= 3 && SamePlace(poly.Points.front(), poly.Points.back())) {
    if (poly.Points.size() == 3) return {result.Eliminated + 3, true};
    poly.Points.pop_back();
    ++result.Eliminated;
  }
  result.Gone = poly.Points.size() < 3;
  return result;
}

template <class Path, class Snap>
void SnapSelected(RecordList<Path>& paths, SnapResult& total, Snap snap) {
  std::vector<bool> gone(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!paths[i].Selected) continue;
    Path& path = paths.Edit(i);
    total.Verified += static_cast<std::int32_t>(path.Points.size());
    const PathSnap result = snap(path);
    total.Eliminated += result.Eliminated;
    gone[i] = result.Gone;
    if (!result.Gone) SetPathBounds(path);
  }
  std::size_t next = 0;
  paths.EraseIf([&](const Path&) { return gone[next++]; });
}

}  // namespace

SnapResult SnapSelectedToLod21(ProjectState& project) {
  SnapResult total;
  SnapSelected(project.Lines, total, SnapLine);
  SnapSelected(project.Polys, total, SnapPoly);
  return total;
}

}  // namespace landsmith
