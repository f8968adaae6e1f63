// What each layer looks like. Every painter reads the project and the view and draws on a Surface; none
// changes anything but the list of what it drew.
//
// A canvas of a million vertices must repaint at once, so painters skip by boxes and by the index, drop what
// falls on one pixel, and cut long rings to the view before they reach the surface. Where nothing was dropped
// the picture is the same to the pixel.
#pragma once

#include "compile/Findings.h"
#include "core/Project.h"
#include "core/Settings.h"
#include "editor/GeometryIndex.h"
#include "editor/MovingItems.h"
#include "editor/ToolState.h"
#include "editor/ViewState.h"
#include "platform/Surface.h"
#include "raster/ClassTable.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace landsmith {

/// While a selection is dragged, what stays lies in the base image and what moves on the overlay.
enum class PaintPart { All, Still, Moving };

struct PaintInput {
  const ProjectState& project;
  const AppSettings& settings;
  const ViewState& view;
  const ToolState& tool;
  const ClassTable& lands;
  const ClassTable& waters;
  const std::filesystem::path& bitmaps;  ///< tools/bmps
  /// Of this very state of the project; without one the painters make their own.
  const GeometryIndex* index = nullptr;
  PaintPart part = PaintPart::All;
  const MovingItems* moving = nullptr;  ///< with every part but All

  /// Whether an item is of the part to be painted.
  bool Takes(bool moves) const { return part == PaintPart::All || (part == PaintPart::Moving) == moves; }
};

void DisplayMaps(Surface& surface, const PaintInput& in);
void DisplayMeshes(Surface& surface, const PaintInput& in);
void DisplayFills(Surface& surface, const PaintInput& in);
/// One of them, which may lie outside the view.
void PaintFill(Surface& surface, const FillRec& fill, const ViewState& view, const AppSettings& settings);
void DisplayLands(Surface& surface, const PaintInput& in);
void DisplayWaters(Surface& surface, const PaintInput& in);
void DisplayPhotos(Surface& surface, const PaintInput& in);
void DisplayExcludes(Surface& surface, const PaintInput& in);
/// `drawn`: one byte a polygon or line, set for what was drawn; left alone unless the part is All.
void DisplayPolys(Surface& surface, const PaintInput& in, std::vector<std::uint8_t>& drawn);
void DisplayLines(Surface& surface, const PaintInput& in, std::vector<std::uint8_t>& drawn);
void DisplayObjects(Surface& surface, const PaintInput& in);
void DisplayGrid(Surface& surface, const PaintInput& in);
void DisplayAircraft(Surface& surface, const PaintInput& in);
/// On top of all layers, in a colour that no item has by itself: the item's outline, if it still exists, and
/// a circle round the place.
void PaintFinding(Surface& surface, const Finding& finding, const ProjectState& project,
                  const ViewState& view);

}  // namespace landsmith
