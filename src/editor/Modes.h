// The tool modes that this version offers.
#pragma once

#include "editor/ModeContext.h"
#include "editor/ToolMode.h"

#include <memory>

namespace landsmith {

/// Whether there is a mode to choose.
bool IsOffered(ModeId mode);
std::unique_ptr<ToolMode> MakeMode(ModeId mode, ModeContext& context);

/// A rubber box about to be dragged; the selection is cleared first unless Shift adds to it.
std::unique_ptr<Gesture> StartRubberBox(ModeContext& context, const PointerInput& in, int layers);

}  // namespace landsmith
