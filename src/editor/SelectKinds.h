// Selecting, deleting and moving items of every kind. Marking what is selected is no change of the project:
// it makes nothing unsaved.
#pragma once

#include "core/Project.h"
#include "editor/GeometryIndex.h"
#include "editor/ToolState.h"
#include "editor/ViewState.h"

namespace landsmith {

/// Counts items and points that are marked; for after a load, a join or a deletion.
void RecountSelection(const ProjectState& project, Selection& selection);

void ClearSelection(ProjectState& project, ToolState& tool);

/// Marks or clears every item of a kind; a kind that is hidden stays as it is.
void SelectAllOfKind(ProjectState& project, const ViewState& view, LayerKind kind, bool state,
                     Selection& selection);
/// Whether the kind has items, and each of them is selected as a whole.
bool IsKindSelected(const ProjectState& project, LayerKind kind);
/// Every kind that is shown, but no maps.
void SelectEverything(ProjectState& project, const ViewState& view, bool state, ToolState& tool);
/// Turns round lines, polygons, objects, photos and fills that are shown.
void InvertShownSelection(ProjectState& project, const ViewState& view, Selection& selection);
/// Adds the items that lie strictly inside the box, of the kinds that are shown and, in the mode of one kind,
/// of that kind alone. `index` describes the project.
void SelectInBox(ProjectState& project, const GeometryIndex& index, const ViewState& view, const GeoBox& box,
                 ToolState& tool);

/// Every selected item and point.
void DeleteSelectedItems(ProjectState& project, Selection& selection);

}  // namespace landsmith
