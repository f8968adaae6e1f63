#include "editor/ModeContext.h"

namespace landsmith {

void ZoomAboutCenter(ModeContext& context, ZoomStep step) {
  StepZoom(context.session.view, step);
  SetDisplayExtent(context.session.view);
  context.display.DisplayAll();
}

void ZoomAtPoint(ModeContext& context, PixelOffset at, ZoomStep step) {
  PanDisplay(context.session.view, at.x, at.y);
  ZoomAboutCenter(context, step);
}

}  // namespace landsmith
