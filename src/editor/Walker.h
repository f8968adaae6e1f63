// The walk along vertices by the arrow keys: where a step leads, and what it does to the vertices. Where the
// walk stands is ToolState::Walk; the editor moves the view and tells the window.
#pragma once

#include "core/Project.h"
#include "editor/EditorHost.h"
#include "editor/VertexRef.h"
#include "vector/Selection.h"

#include <optional>

namespace landsmith {

enum class WalkStep { NextPath, PreviousPath, NextPoint, PreviousPoint };

/// The step of an arrow key: right and left to the path after and before, up and down to the next and the
/// previous point.
std::optional<WalkStep> WalkStepOfKey(int code);

bool VertexExists(const ProjectState& project, const VertexRef& vertex);
/// Where a step from a vertex that exists leads. Paths and points wrap round at both ends; another path is
/// entered at its first point, one without points is passed over.
VertexRef Stepped(const ProjectState& project, const VertexRef& from, WalkStep step);

/// Marks or clears a vertex that exists and keeps the count. A vertex marked takes the mark of its path away.
void MarkVertex(ProjectState& project, const VertexRef& vertex, bool state, Selection& selection);

/// Whether the path stays one without the vertex: lines keep 2 points, polygons 3.
bool CanSpareVertex(const ProjectState& project, const VertexRef& vertex);
/// Deletes a vertex that can be spared. The result is the one in its place, or the last.
VertexRef DeleteVertex(ProjectState& project, const VertexRef& vertex);

/// The vertex that a context menu or a form is about, or nothing for any other target.
std::optional<VertexRef> VertexOf(const PopupTarget& target);
/// A vertex that exists, as a target with its title.
PopupTarget TargetOf(const ProjectState& project, const VertexRef& vertex);

}  // namespace landsmith
