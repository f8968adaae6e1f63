// Polygons of vector terrain: areas of texture, cut along the Cells and broken into convex pieces, as the
// simulator wants them.
//
// collect (selected polygons of head "VTP", layer and texture read) -> cut (PolyClip) -> convex parts ->
// group (VtpTree) -> text (VtpText) -> CompileStep.
#pragma once

#include "compile/CompileContext.h"

#include <optional>
#include <string>

namespace landsmith {

/// The whole source text of the selected VTP polygons; nothing when there is nothing to write. Throws
/// RuntimeError that names the polygon for a layer that is no 16-bit number or a vertex off the grid.
std::optional<std::string> VtpPolySource(const ProjectState& project, const AppSettings& settings);

/// Base name project + "_VTPP". With nothing to write no file is made, no tool runs, and a message says so.
void CompileVTPPolys(const CompileContext& context);

}  // namespace landsmith
