#include "editor/ExcludeMode.h"

#include "editor/Gestures.h"
#include "editor/HitSelect.h"
#include "editor/SelectKinds.h"

namespace landsmith {

namespace {

constexpr int SettleMilliseconds = 100;

}  // namespace

std::unique_ptr<Gesture> ExcludeMode::Press(const PointerInput& in) {
  Session& session = TheSession();
  if (in.button == MouseButton::Right) m_context.menuAt = in.at;
  if (in.button != MouseButton::Left) return nullptr;
  ClearSelection(session.project, session.tool);
  const bool hit = HitSelectExcludes(session.project, session.view, in.at, session.tool.Selected);
  m_context.display.RebuildDisplay(LayerMask::AllButExcludes);
  m_context.display.RedrawOverlay();
  if (!hit) return nullptr;
  return std::make_unique<MoveDrag>(m_context, in, SettleMilliseconds);
}

std::string ExcludeMode::Hint() const {
  return "Click an edge: select. Drag: move. Right click: menu";
}

}  // namespace landsmith
