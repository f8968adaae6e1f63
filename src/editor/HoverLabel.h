// The label beside the mouse: what lies under it, or what is being measured.
#pragma once

#include "editor/ModeContext.h"

#include <string_view>

namespace landsmith {

/// An empty text hides the label. `right`, `above`: pixels of its top left corner from the mouse.
void SetHoverLabel(ModeContext& context, std::string_view text, std::int32_t right, std::int32_t above);
void HideHoverLabel(ModeContext& context);

/// Where the setting asks for labels: looks under the mouse when it has rested for a moment, longer while a
/// label shows; at once in a window without timers.
void LabelSoon(ModeContext& context);
/// Names the line, polygon or object under the mouse. In the mode of one of these kinds that kind alone.
void ShowLabelUnderMouse(ModeContext& context);

}  // namespace landsmith
