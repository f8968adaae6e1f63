// Where a line of vector terrain will have gaps.
#pragma once

#include "core/GeoTypes.h"
#include "core/Records.h"

#include <cstddef>
#include <vector>

namespace landsmith {

struct LineGaps {
  std::size_t Count = 0;  ///< stretches of the line, each in one Cell
  LatLon First;           ///< the middle of the first
};

/// A segment is written in the Cells of its two vertices; what it crosses between them stays empty. Corners
/// that it cuts by less than half a Point do not count.
/// `points`: snapped to the grid.
LineGaps FindLineGaps(const std::vector<LinePoint>& points);

}  // namespace landsmith
