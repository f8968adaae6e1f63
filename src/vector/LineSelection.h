// Selecting lines, as a whole, by box, by what lies under the mouse. A line is either selected as a whole or
// has selected vertices, never both. Callers ask only while lines are shown.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "vector/Selection.h"

#include <cstddef>
#include <optional>

namespace landsmith {

/// Selects the line as a whole or not at all; the marks of its vertices go, and the count follows.
void MarkLine(LineRec& line, bool state, Selection& selection);

void SelectAllLines(ProjectState& project, bool state, Selection& selection);
/// Lines with selected vertices and no mark of their own are skipped.
void InvertLineSelection(ProjectState& project, Selection& selection);
/// Lines whose box lies strictly inside.
void SelectLinesInBox(ProjectState& project, const GeoBox& box, Selection& selection);

/// A mouse position in world pixels: X = PixelsPerDegLon * lon, Y = PixelsPerDegLat * lat (Y to the north).
struct WorldPixel {
  double X = 0;
  double Y = 0;
};

/// Within 5 pixels on both axes, sides included.
bool NearPoint(double lon, double lat, WorldPixel at, const ViewScale& scale);
/// Within 5 pixels across the segment's longer axis. A segment of no length is never near.
bool NearSegment(double lon1, double lat1, double lon2, double lat2, WorldPixel at, const ViewScale& scale);

struct PathPoint {
  std::size_t item = 0;
  std::size_t point = 0;
};

/// First in array order; only looks.
std::optional<PathPoint> FindLinePointAt(const ProjectState& project, WorldPixel at, const ViewScale& scale);
/// `point` is the segment's second vertex, 1 or above.
std::optional<PathPoint> FindLineAt(const ProjectState& project, WorldPixel at, const ViewScale& scale);

/// Looks and selects. The vertex hit is selected and its line's mark cleared; the count rises unless the line
/// was counted.
std::optional<PathPoint> HitLinePoint(ProjectState& project, WorldPixel at, const ViewScale& scale,
                                      Selection& selection);
/// The line hit is selected and the marks of its vertices are cleared, each lowering the count.
std::optional<std::size_t> HitLine(ProjectState& project, WorldPixel at, const ViewScale& scale,
                                   Selection& selection);

}  // namespace landsmith
