// A press that selects. Marking what is selected is no change of the project.
#pragma once

#include "core/Project.h"
#include "editor/GeometryIndex.h"
#include "editor/ViewState.h"
#include "vector/Selection.h"

namespace landsmith {

/// Adds what lies under the mouse to the selection; false when nothing does. The first hit wins: a vertex of
/// a line, of a polygon, an object, a line, a polygon, a map, and at last all excludes there. Hidden kinds
/// are not hit. `index` describes the project.
bool HitSelect(ProjectState& project, const GeometryIndex& index, const ViewState& view, PixelOffset at,
               Selection& selection);
/// The same for the kind of one mode.
bool HitSelectObject(ProjectState& project, const ViewState& view, PixelOffset at, Selection& selection);
bool HitSelectExcludes(ProjectState& project, const ViewState& view, PixelOffset at, Selection& selection);

}  // namespace landsmith
