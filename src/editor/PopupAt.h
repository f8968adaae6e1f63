// What a context menu is about.
#pragma once

#include "core/Project.h"
#include "editor/EditorHost.h"
#include "editor/GeometryIndex.h"
#include "editor/ToolState.h"
#include "editor/ViewState.h"

namespace landsmith {

/// A vertex of a line, else a line, else the general menu, titled with the project's name in capitals.
PopupTarget PopupTargetAt(const ProjectState& project, const ViewState& view, ModeId mode, PixelOffset at,
                          const GeometryIndex& index);

/// The question before the target is deleted.
std::string DeleteQuestion(const PopupTarget& target);

/// Whether the item, and the point where the target names one, are still there.
bool TargetExists(const ProjectState& project, const PopupTarget& target);

}  // namespace landsmith
