// What modes and gestures work with, and the change of view that they share.
#pragma once

#include "editor/Display.h"
#include "editor/EditorHost.h"
#include "editor/Measure.h"
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
  Measure measure;
  bool labelShown = false;  ///< the label beside the mouse
};

/// One step about the display centre, repainted.
void ZoomAboutCenter(ModeContext& context, ZoomStep step);
/// The point becomes the centre, then one step.
void ZoomAtPoint(ModeContext& context, PixelOffset at, ZoomStep step);

}  // namespace landsmith
