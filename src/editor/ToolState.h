// The tool at hand and what its gestures keep between events.
#pragma once

#include "editor/VertexRef.h"
#include "raster/AreaFill.h"
#include "vector/Selection.h"

#include <cstdint>
#include <optional>

namespace landsmith {

enum class ModeId { Pointer, Zoom, Map, Mesh, Line, Poly, Object, Exclude, Photo, Land, Water, Fill };

struct ToolState {
  ModeId Mode = ModeId::Pointer;
  Selection Selected;
  bool PanKeyDown = false, ZoomKeyDown = false, CtrlKeyDown = false;
  bool InsertPoints = false, DeletePoints = false, BreakLine = false, WidthDown = false, WidthUp = false;
  bool NextClickIsRight = false;
  bool SelectAllOn = false;  ///< the next Select All clears the selection
  bool ViewAllOn = false;    ///< the kind of the mode at hand is alone on the canvas
  bool MeasureOn = false;
  bool PasteArmed = false;        ///< the next left press pastes
  std::optional<VertexRef> Walk;  ///< where the walk by the arrow keys stands
  /// What the next area fill will be.
  FillType CurrentFillType = FillType::Water;
  float CurrentFillHeight = 0;  ///< metres
};

}  // namespace landsmith
