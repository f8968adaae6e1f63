// The tool modes and what choosing one does to the canvas.
#pragma once

#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

#include <memory>
#include <optional>
#include <string_view>

namespace landsmith {

std::unique_ptr<ToolMode> MakeMode(ModeId mode, ModeContext& context);

/// What the canvas shows when a tool is chosen. Tools for tiles force the view that their work needs.
struct ModeSetup {
  std::optional<LayerKind> Kind;  ///< what the mode edits; then shown, and the selection is cleared
  double Zoom = 0;                ///< 0 leaves the view as it is; else maps are shown and the form opens
  int GridLod = 0;                ///< with a zoom: the grid, 0 the one of the brush
  std::string_view MapView = {};  ///< empty leaves it
};
const ModeSetup& SetupOf(ModeId mode);
/// Lines, polygons or objects: Ctrl drags a box, and cut, copy and paste work on the kind.
bool DrawsItems(ModeId mode);

/// A rubber box about to be dragged; the selection is cleared first unless Shift adds to it.
std::unique_ptr<Gesture> StartRubberBox(ModeContext& context, const PointerInput& in, int layers);

}  // namespace landsmith
