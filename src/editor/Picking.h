// What lies under a place of the canvas. These functions only look. Places are world pixels, reaches pixels;
// results are 0-based numbers, the first hit in array order unless told otherwise. Callers ask only while the
// kind is shown.
#pragma once

#include "core/Project.h"
#include "editor/GeometryIndex.h"
#include "editor/ViewState.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace landsmith {

/// A vertex of a line or polygon.
template <class Path>
std::optional<PathPoint> FindPointUnder(const RecordList<Path>& paths, const PathIndex<Path>& index,
                                        WorldPixel at, const ViewScale& scale) {
  return FindPointAt(paths, index.PiecesMeeting(CursorBox(at, scale)), at, scale);
}
/// A line or polygon by one of its segments.
template <class Path>
std::optional<PathPoint> FindSegmentUnder(const RecordList<Path>& paths, const PathIndex<Path>& index,
                                          WorldPixel at, const ViewScale& scale) {
  return FindSegmentAt(paths, index.PiecesMeeting(CursorBox(at, scale)), at, scale);
}

/// An object by its centre, which is enough for the menu of Object mode.
std::optional<std::size_t> FindObjectCenterAt(const RecordList<ObjectRec>& objects, WorldPixel at,
                                              const ViewScale& scale);
/// An object by its centre or by a side of its footprint; the inside between is no hit.
std::optional<std::size_t> FindObjectAt(const RecordList<ObjectRec>& objects, WorldPixel at,
                                        const ViewScale& scale);

/// Within 3 pixels of a side of the box, inside or outside; well inside is no hit, so that what lies on a
/// large map or exclude can be reached.
bool IsOnBorder(const GeoBox& box, WorldPixel at, const ViewScale& scale);
/// By its border.
std::optional<std::size_t> FindMapAt(const RecordList<MapRec>& maps, WorldPixel at, const ViewScale& scale);
/// By its border.
std::optional<std::size_t> FindExcludeAt(const RecordList<ExcludeRec>& excludes, WorldPixel at,
                                         const ViewScale& scale);

/// A record whose box holds the place.
template <class Record>
std::optional<std::size_t> FindBoxAt(const RecordList<Record>& records, LatLon at) {
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].Box.Holds(at)) return i;
  return {};
}
/// The fill that was placed last, and so lies on top.
std::optional<std::size_t> FindFillAt(const RecordList<FillRec>& fills, LatLon at);

/// A cell of a class grid, 0 to 1280 each, from the north-west.
struct ClassCell {
  std::int32_t Column = 0, Row = 0;
};
/// Nothing outside the class window.
std::optional<ClassCell> ClassCellAt(const ClassWindow& window, LatLon at);
/// The cell under the place, where it holds a class.
std::optional<ClassCell> FindClassAt(const ClassGrid& grid, const ClassWindow& window, LatLon at);

}  // namespace landsmith
