// Cutting lines along the Cells: the runs of one line, Cell by Cell, in points of the Cell.
//
// A line appears only in Cells that hold one of its vertices; a run starts one vertex before it enters and
// ends one vertex after it leaves, so that the pieces of neighbouring Cells overlap by a whole segment and
// the road has no gap. Points are relative to the run's own Cell and may lie outside 4080..12240.
#pragma once

#include "core/Grid.h"
#include "core/Records.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace landsmith {

inline constexpr std::uint8_t StepKind = 8;

struct RunPoint {
  std::int32_t X = 0, Y = 0;
  float Wid = 0;  ///< metres
  std::uint8_t Kind =
      0;  ///< StepKind: a step from the point before; else absolute, with so many steps behind it
  std::uint8_t WidthByte = 0;  ///< 0: the width goes on as it was
  bool operator==(const RunPoint&) const = default;
};

struct LineRun {
  std::string_view Name;  ///< that of the project's line, which outlives the run
  std::int32_t TexId = 0;
  std::int32_t Layer = 0;
  std::int32_t CellX = 0, CellY = 0;
  std::vector<RunPoint> Points;  ///< the first and the last slot are free until AddLineEnds (VtpShape.h)
};

/// Every vertex to the lattice of Points; one that then equals its predecessor goes. May leave a single
/// vertex.
std::vector<LinePoint> SnapLinePoints(const std::vector<LinePoint>& points);

/// The runs of one line, by Cell row from the north, then column from the west, then place on the line. The
/// sides of a Cell count as inside, so a vertex on a border belongs to both neighbours as far as the line's
/// box reaches them. A line of 2 vertices goes whole to each Cell that holds one of them. A run that would
/// hold only the last vertex and the one before is left out: the neighbour's run has that segment already.
/// `points`: snapped, 2 or more. The work grows with the vertices and the runs; a Cell that the line only
/// crosses costs nothing.
std::vector<LineRun> ClipLineToCells(const std::vector<LinePoint>& points, std::string_view name,
                                     std::int32_t texId, std::int32_t layer);

}  // namespace landsmith
