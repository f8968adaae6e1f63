#include "editor/ObjectMode.h"

#include "editor/Gestures.h"
#include "editor/HitSelect.h"
#include "editor/SelectKinds.h"

namespace landsmith {

std::unique_ptr<Gesture> ObjectMode::Press(const PointerInput& in) {
  Session& session = TheSession();
  if (in.button == MouseButton::Right) m_context.menuAt = in.at;
  if (in.button != MouseButton::Left) return nullptr;
  if (!in.shift) ClearSelection(session.project, session.tool);
  Selection& selection = session.tool.Selected;
  const bool hit = HitSelectObject(session.project, session.view, in.at, selection);
  m_context.display.RebuildDisplay(LayerMask::AllButObjects);
  m_context.display.RedrawOverlay();
  // With Shift what was selected before is dragged as well, wherever the press is.
  if (!hit && !(in.shift && selection.SelectionActive)) return nullptr;
  return std::make_unique<MoveDrag>(m_context, in);
}

std::string ObjectMode::Hint() const {
  return "Click: select an object. Shift+click: select more. Drag: move. Right click: menu. Ctrl+drag: "
         "select";
}

}  // namespace landsmith
