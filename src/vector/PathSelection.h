// Selecting lines and polygons: as a whole, by box, by what lies under the mouse. A path is either selected
// as a whole or has selected vertices, never both. Callers ask only while the kind is shown.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "vector/PathOperations.h"
#include "vector/Selection.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace landsmith {

/// A piece of a line or ring: its vertices `first` to `last`, both included. Neighbouring pieces share a
/// vertex; in a ring `last` may be the number of vertices and stands for the first one again. A path of one
/// point is one piece.
struct PathPiece {
  std::uint32_t item = 0;
  std::uint32_t first = 0, last = 0;
};

/// Every path as one piece, for callers without an index.
template <class Path>
std::vector<PathPiece> WholePieces(const RecordList<Path>& paths) {
  std::vector<PathPiece> pieces;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const std::size_t count = paths[i].Points.size();
    if (count == 0) continue;
    pieces.push_back({static_cast<std::uint32_t>(i), 0,
                      static_cast<std::uint32_t>(PathTraits<Path>::IsRing ? count : count - 1)});
  }
  return pieces;
}

/// A mouse position in world pixels: X = PixelsPerDegLon * lon, Y = PixelsPerDegLat * lat (Y to the north).
struct WorldPixel {
  double X = 0;
  double Y = 0;
};

inline constexpr double HitReach = 5;  ///< pixels

/// What a record's box must meet before its points are looked at.
GeoBox CursorBox(WorldPixel at, const ViewScale& scale);
/// Within 5 pixels on both axes, sides included.
bool NearPoint(double lon, double lat, WorldPixel at, const ViewScale& scale);
/// Within 5 pixels across the segment's longer axis. A segment of no length is never near.
bool NearSegment(double lon1, double lat1, double lon2, double lat2, WorldPixel at, const ViewScale& scale);
/// The same arithmetic on world pixels: objects test the sides of their footprint with it.
bool NearEdge(WorldPixel end1, WorldPixel end2, WorldPixel at);
bool IsStrictlyInside(const GeoBox& box, const GeoBox& outer);

struct PathPoint {
  std::size_t item = 0;
  std::size_t point = 0;
};

/// Selects the path as a whole or not at all; the marks of its vertices go, and the count follows. A record
/// that is so already is not touched.
template <class Path>
void MarkPath(RecordList<Path>& paths, std::size_t item, bool state, Selection& selection) {
  if (paths[item].Selected == state && !HasSelectedPoint(paths[item])) return;
  Path& path = paths.Edit(item);
  for (auto& point : path.Points) {
    if (!point.Selected) continue;
    point.Selected = false;
    selection.Remove();
  }
  if (path.Selected == state) return;
  path.Selected = state;
  if (state)
    selection.Add();
  else
    selection.Remove();
}

template <class Path>
void SelectAllPaths(RecordList<Path>& paths, bool state, Selection& selection) {
  for (std::size_t i = 0; i < paths.size(); ++i)
    MarkPath(paths, i, state, selection);
}

/// Paths with selected vertices and no mark of their own are skipped.
template <class Path>
void InvertPathSelection(RecordList<Path>& paths, Selection& selection) {
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!paths[i].Selected && HasSelectedPoint(paths[i])) continue;
    MarkPath(paths, i, !paths[i].Selected, selection);
  }
}

/// Adds, of the items with these numbers, those whose box lies strictly inside.
template <class Path>
void SelectPathsInBox(RecordList<Path>& paths, std::span<const std::uint32_t> items, const GeoBox& box,
                      Selection& selection) {
  for (const std::uint32_t item : items) {
    if (!paths[item].Points.empty() && IsStrictlyInside(paths[item].Box, box))
      MarkPath(paths, item, true, selection);
  }
}

/// The first vertex near `at`, of the pieces in their order, which is that of the list. Only looks.
template <class Path>
std::optional<PathPoint> FindPointAt(const RecordList<Path>& paths, std::span<const PathPiece> pieces,
                                     WorldPixel at, const ViewScale& scale) {
  const GeoBox cursor = CursorBox(at, scale);
  for (const PathPiece& piece : pieces) {
    const Path& path = paths[piece.item];
    if (!path.Box.Meets(cursor)) continue;
    const std::size_t end = std::min<std::size_t>(piece.last + std::size_t{1}, path.Points.size());
    for (std::size_t k = piece.first; k < end; ++k)
      if (NearPoint(path.Points[k].Lon, path.Points[k].Lat, at, scale)) return PathPoint{piece.item, k};
  }
  return {};
}

/// The first segment near `at`. `point` is its second vertex, 1 or above; for the closing edge of a ring,
/// which is tried before the ring's others, the number of vertices.
template <class Path>
std::optional<PathPoint> FindSegmentAt(const RecordList<Path>& paths, std::span<const PathPiece> pieces,
                                       WorldPixel at, const ViewScale& scale) {
  const GeoBox cursor = CursorBox(at, scale);
  const auto near = [&](const Path& path, std::size_t k) {
    const auto& from = path.Points[k - 1];
    const auto& to = path.Points[k % path.Points.size()];
    return NearSegment(from.Lon, from.Lat, to.Lon, to.Lat, at, scale);
  };
  std::optional<PathPoint> found;
  for (const PathPiece& piece : pieces) {
    if (found && found->item != piece.item) break;
    const Path& path = paths[piece.item];
    if (!path.Box.Meets(cursor)) continue;
    const std::size_t count = path.Points.size();
    if (piece.last == count && count > 1 && near(path, count)) return PathPoint{piece.item, count};
    for (std::size_t k = piece.first + std::size_t{1}; !found && k <= piece.last && k < count; ++k)
      if (near(path, k)) found = PathPoint{piece.item, k};
    if (found && !PathTraits<Path>::IsRing) break;
  }
  return found;
}

/// Looks and selects. The vertex hit is selected and its path's mark cleared; the count rises unless the path
/// or the vertex was counted.
template <class Path>
std::optional<PathPoint> HitPoint(RecordList<Path>& paths, std::span<const PathPiece> pieces, WorldPixel at,
                                  const ViewScale& scale, Selection& selection) {
  const std::optional<PathPoint> hit = FindPointAt(paths, pieces, at, scale);
  if (!hit) return {};
  Path& path = paths.Edit(hit->item);
  auto& point = path.Points[hit->point];
  if (!path.Selected && !point.Selected) selection.Add();
  path.Selected = false;
  point.Selected = true;
  return hit;
}

/// The path hit is selected and the marks of its vertices are cleared, each lowering the count.
template <class Path>
std::optional<std::size_t> HitPath(RecordList<Path>& paths, std::span<const PathPiece> pieces, WorldPixel at,
                                   const ViewScale& scale, Selection& selection) {
  const std::optional<PathPoint> hit = FindSegmentAt(paths, pieces, at, scale);
  if (!hit) return {};
  MarkPath(paths, hit->item, true, selection);
  return hit->item;
}

}  // namespace landsmith
