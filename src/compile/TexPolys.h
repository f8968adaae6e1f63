// Textured polygons: free-standing surfaces at the altitudes of their vertices, each with one bitmap.
//
// collect (selected polygons of head "TEX") -> triangles in metres (TexSurface) -> text -> CompileStep. They
// are scenery objects placed around a point, and so are not cut to any grid.
#pragma once

#include "compile/CompileContext.h"

#include <cstddef>
#include <optional>
#include <string>

namespace landsmith {

struct TexSource {
  std::string Text;
  std::size_t Untriangulated = 0;  ///< rings that cross themselves: their triangles are wrong
};

/// The source text of the selected textured polygons, in their order; those of fewer than 3 vertices are left
/// out, and without any other there is nothing. Throws RuntimeError that names polygon and field for a field
/// that is no number, and for a bitmap's name with nothing in front of its last four characters.
std::optional<TexSource> TexPolySource(const ProjectState& project);

/// Base name project + "_TEXP". A message for each ring that could not be cut up; the work goes on. With
/// nothing to write no file is made, no tool runs, and a message says so.
void CompileTexPolys(const CompileContext& context);

}  // namespace landsmith
