// What a drag of the selection moves, collected once when it begins, so that each step costs what moves.
#pragma once

#include "core/Project.h"
#include "editor/GeometryIndex.h"
#include "editor/ToolState.h"
#include "editor/ViewState.h"

#include <cstdint>
#include <vector>

namespace landsmith {

struct MovingItems {
  std::vector<std::uint8_t> LineFlags, PolyFlags;  ///< one byte a record, set for those that move
  std::vector<std::uint32_t> Lines, Polys, Objects, Maps, Excludes;
};

/// In Line mode selected lines and vertices alone, in Poly mode those of polygons; in other modes objects,
/// maps, excludes, lines and polygons. Of lines and polygons those that are drawn on screen. `index` must
/// describe `project`.
MovingItems CollectMoving(const ProjectState& project, const GeometryIndex& index, const ViewState& view,
                          ModeId mode);

/// By pixels.
void MoveSelection(ProjectState& project, const MovingItems& moving, const ViewState& view, double dx,
                   double dy);

}  // namespace landsmith
