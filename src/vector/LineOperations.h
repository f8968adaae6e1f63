// What can be done to lines alone; PathOperations.h has what polygons share. Indexes are 0-based; every
// operation leaves the boxes right. None of them takes undo points or repaints: the Edit that the caller
// holds does.
#pragma once

#include "core/Project.h"
#include "vector/PathOperations.h"
#include "vector/Selection.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace landsmith {

inline constexpr float MaxLineWidth = 255;

/// The two ends are the remembered first point and the second click.
LineRec NewLine(LatLon first, LatLon second, float widthMetres, std::int32_t color);

/// Cuts the first unselected line with at least 5 vertices that has a selected vertex two steps from each
/// end; both parts keep that vertex, the new one comes last and is selected. False when there is none.
bool SplitLine(ProjectState& project, Selection& selection);

/// The first selected vertex's width times or divided by 1.5, held to 1..255. False when there is none.
bool GrowLinePoint(ProjectState& project);
bool ShrinkLinePoint(ProjectState& project);

/// Vertices in reverse order, widths with them.
void ReverseLine(LineRec& line);

/// One width for all vertices.
void SetLineWidth(LineRec& line, float widthMetres);
/// From `first` to `last` in equal steps, by repeated addition in 32-bit floats.
void SetLineWidths(LineRec& line, float first, float last);
/// Mean of all widths as a 32-bit float.
float MeanWidth(const LineRec& line);

/// The line's vertices as a polygon without name and type; a closed line's last vertex is left out. The
/// caller appends it.
PolyRec MakePolyFromLine(const LineRec& line);

}  // namespace landsmith
