// Polygons under which layers of vector terrain are left out, Area by Area.
//
// collect (selected polygons of head "Other", layers read from their masks) -> touched Areas (PolyClip) ->
// tree Cell, Area, layers -> text -> CompileStep.
#pragma once

#include "compile/CompileContext.h"

#include <string>

namespace landsmith {

/// The whole source text. Areas of a Cell and layers of an Area stand in order of first appearance, a layer
/// once for each Area. Without any Area it holds no Cell; its header is then that of the polygons all the
/// same, or, with no polygon left on the grid, the degree north and east of 0, 0. Throws RuntimeError that
/// names the polygon for a Type without four masks or a vertex off the grid.
std::string ExcludePolySource(const ProjectState& project);

/// Base name "0_" + project + "_VTPX", so that the file stands in front of all others in the scenery folder.
/// It is written without Cells too, so that an earlier one goes.
void CompileExcludePolys(const CompileContext& context);

}  // namespace landsmith
