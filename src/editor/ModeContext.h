// What modes and gestures work with, and the change of view that they share.
#pragma once

#include "editor/Display.h"
#include "editor/EditorHost.h"
#include "editor/Session.h"

#include <optional>

namespace landsmith {

struct ModeContext {
  Session& session;
  Display& display;
  EditorHost& host;
  /// Set by a press that asks for the context menu; the editor opens it when the press has ended, since a
  /// menu may replace the mode that asked.
  std::optional<PixelOffset> menuAt;
};

/// One step about the display centre, repainted.
void ZoomAboutCenter(ModeContext& context, ZoomStep step);
/// The point becomes the centre, then one step.
void ZoomAtPoint(ModeContext& context, PixelOffset at, ZoomStep step);

/// Starts the timer that puts repaints together, or repaints at once in a window without timers.
void RedrawSoon(ModeContext& context, TimerId timer);

/// The label of what is under the mouse, when the setting asks for labels.
void ShowLabelUnderMouse(ModeContext& context);

}  // namespace landsmith
