// How a map is cut to the canvas before it is scaled: of a bitmap of any size only the pixels under the view
// are touched, and two more.
#pragma once

#include "core/Records.h"
#include "editor/ViewState.h"
#include "platform/Surface.h"

#include <optional>

namespace landsmith {

struct MapCut {
  PixelBox Source;                        ///< pixels of the bitmap; may reach over its right and lower side
  FloatBox Target;                        ///< where they go on the canvas
  float FrameWidth = 0, FrameHeight = 0;  ///< of the map's frame, from the target's top left corner
};

/// Nothing for a map that does not meet the view or that is no box. Worked out in 32-bit floats. Without a
/// size in pixels (`COLS`, `ROWS`) the source is empty and the rest right.
std::optional<MapCut> CutMap(const MapLevel& shown, const ViewState& view);

}  // namespace landsmith
