#include "editor/Modes.h"

#include "editor/Gestures.h"
#include "editor/LineMode.h"
#include "editor/MapMode.h"
#include "editor/PointerMode.h"
#include "editor/SelectKinds.h"

namespace landsmith {

namespace {

/// The left button zooms in on the point, the right one out.
class ZoomMode final : public ToolMode {
public:
  explicit ZoomMode(ModeContext& context) : m_context(context) {}
  std::unique_ptr<Gesture> Press(const PointerInput& in) override {
    if (in.button == MouseButton::Left) ZoomAtPoint(m_context, in.at, ZoomStep::In);
    if (in.button == MouseButton::Right) ZoomAtPoint(m_context, in.at, ZoomStep::Out);
    return nullptr;
  }
  CursorShape Cursor() const override { return CursorShape::Zoom; }

private:
  ModeContext& m_context;
};

}  // namespace

bool IsOffered(ModeId mode) {
  return mode == ModeId::Pointer || mode == ModeId::Zoom || mode == ModeId::Map || mode == ModeId::Line;
}

std::unique_ptr<ToolMode> MakeMode(ModeId mode, ModeContext& context) {
  switch (mode) {
    case ModeId::Zoom:
      return std::make_unique<ZoomMode>(context);
    case ModeId::Map:
      return std::make_unique<MapMode>(context);
    case ModeId::Line:
      return std::make_unique<LineMode>(context);
    default:
      return std::make_unique<PointerMode>(context);
  }
}

std::unique_ptr<Gesture> StartRubberBox(ModeContext& context, const PointerInput& in, int layers) {
  if (!in.shift) ClearSelection(context.session.project, context.session.tool);
  context.display.RebuildDisplay(layers);
  return std::make_unique<RubberBox>(context, in);
}

}  // namespace landsmith
