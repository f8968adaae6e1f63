// What can be done to lines. Indexes are 0-based; every operation leaves the boxes right. None of them takes
// undo points or repaints: the Edit that the caller holds does.
#pragma once

#include "core/Project.h"
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
void AppendLinePoint(LineRec& line, LatLon at, float widthMetres);

void DeleteLine(ProjectState& project, std::size_t line);
void DeleteSelectedLines(ProjectState& project, Selection& selection);
/// A line with fewer than 3 vertices goes as a whole: then true.
bool DeleteLinePoint(ProjectState& project, std::size_t line, std::size_t point);
void DeleteSelectedPoints(ProjectState& project, Selection& selection);

/// A new vertex at place `point` (1 to the last), its width the mean of its neighbours', selected. Refused,
/// with false, when a vertex of the line lies closer than 2.1457672119140625e-05 degrees of latitude and
/// 2.86102294921875e-05 of longitude.
bool InsertLinePoint(ProjectState& project, LatLon at, std::size_t line, std::size_t point,
                     Selection& selection);

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

/// Name and vertices of the line; a closed line's last vertex is left out. The caller appends it.
PolyRec MakePolyFromLine(const LineRec& line);

/// Degrees. Selected lines as a whole, and selected vertices of others; only lines that are drawn on screen:
/// `drawn` has a nonzero byte for each such line, and an empty span means all.
void MoveSelectedLines(ProjectState& project, double dLon, double dLat,
                       std::span<const std::uint8_t> drawn = {});

enum class DrawingOrder { Top, Bottom, Up, Down };
/// Where the line stands afterwards; at the end of the array nothing happens.
std::size_t ChangeLineOrder(ProjectState& project, std::size_t line, DrawingOrder order);

}  // namespace landsmith
