// What a context menu is about.
#pragma once

#include "core/Project.h"
#include "editor/EditorHost.h"
#include "editor/GeometryIndex.h"
#include "editor/ToolState.h"
#include "editor/ViewState.h"

namespace landsmith {

/// What the mode looks for under the place: its own kind, in Pointer mode any kind, vertices first. Else the
/// general menu, titled with the project's name in capitals. Hidden kinds are not found.
PopupTarget PopupTargetAt(const ProjectState& project, const ViewState& view, ModeId mode, PixelOffset at,
                          const GeometryIndex& index);

/// The question before the target is deleted.
std::string DeleteQuestion(const PopupTarget& target);
/// Deletes what the target names, which must exist. The selection is not counted anew.
void DeletePopupTarget(ProjectState& project, const PopupTarget& target);

/// Whether the item, and the point where the target names one, are still there.
bool TargetExists(const ProjectState& project, const PopupTarget& target);
/// Whether there is a form for the target.
bool HasProperties(const PopupTarget& target);

}  // namespace landsmith
