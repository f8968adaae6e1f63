#include "vector/GridSnap.h"

#include "core/Grid.h"
#include "vector/PathOperations.h"
#include "vector/PolyOperations.h"

#include <algorithm>
#include <vector>

namespace landsmith {

namespace {

struct PathSnap {
  std::int32_t Eliminated = 0;
  bool Gone = false;  ///< too few points are left
};

/// Moves each point to its Point of the Cell and drops those that meet the one before. The line goes as soon
/// as its last two points would become one; both then count as eliminated.
PathSnap SnapLine(LineRec& line) {
  constexpr std::int32_t least = 2;
  const auto count = static_cast<std::int32_t>(line.Points.size());
  std::int32_t removed = 0;
  std::size_t kept = 0;
  for (LinePoint point : line.Points) {
    const LatLon at = PointInCellToLatLon(GridPositionToCellPoint(point.Lat, point.Lon));
    point.Lat = at.lat;
    point.Lon = at.lon;
    if (kept == 0 || !SamePlace(point, line.Points[kept - 1])) {
      line.Points[kept++] = point;
      continue;
    }
    if (count - removed == least) return {removed + least, true};
    ++removed;
  }
  line.Points.resize(kept);
  SetPathBounds(line);
  return {removed, kept == 1};
}

PathSnap SnapPoly(PolyRec& poly) {
  const auto count = static_cast<std::int32_t>(poly.Points.size());
  const int dropped = SnapPolyToGrid(poly);
  if (dropped < 0) return {std::min(-dropped, count), true};
  return {dropped, false};
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
  }
  std::size_t next = 0;
  paths.EraseIf([&](const Path&) { return gone[next++]; });
}

}  // namespace

std::string SnapReport(const SnapResult& result) {
  return std::to_string(result.Verified) + " points verified !\n" + std::to_string(result.Eliminated) +
         " points eliminated !";
}

SnapResult SnapSelectedToLod21(ProjectState& project) {
  SnapResult total;
  SnapSelected(project.Lines, total, SnapLine);
  SnapSelected(project.Polys, total, SnapPoly);
  return total;
}

}  // namespace landsmith
