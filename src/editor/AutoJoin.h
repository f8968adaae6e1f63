// Joining a figure that has just been drawn or moved with the one that it meets.
#pragma once

#include "editor/Edit.h"
#include "editor/Session.h"
#include "editor/ViewState.h"

#include <cstddef>

namespace landsmith {

/// Where the setting AutoLineJoin is 1: joins the line or polygon `item` with another one, with a beep, and
/// counts the selection anew. Nothing for other kinds.
void AutoJoinFigure(Session& session, Edit& edit, LayerKind kind, std::size_t item);

}  // namespace landsmith
