#include "editor/PointerMode.h"

#include "editor/Gestures.h"
#include "editor/HitSelect.h"
#include "editor/Modes.h"
#include "editor/SelectKinds.h"

namespace landsmith {

std::unique_ptr<Gesture> PointerMode::Press(const PointerInput& in) {
  if (in.button == MouseButton::Left) return PressLeft(in);
  if (in.button == MouseButton::Right) m_context.menuAt = in.at;
  return nullptr;
}

std::unique_ptr<Gesture> PointerMode::PressLeft(const PointerInput& in) {
  Session& session = TheSession();
  const bool selected = session.tool.Selected.SelectionActive;
  if (!in.shift) ClearSelection(session.project, session.tool);
  const bool hit =
      HitSelect(session.project, m_context.display.Index(), session.view, in.at, session.tool.Selected);
  if (!hit && session.tool.MeasureOn) {
    m_context.measure.Click(ToLatLon(session.view, in.at));
    if (selected && !in.shift) m_context.display.DisplayAll();
    return nullptr;
  }
  if (!hit) return StartRubberBox(m_context, in, LayerMask::All);
  // What may move goes to the overlay, so that the drag redraws nothing else.
  m_context.display.RebuildDisplay(session.tool.Selected.MapSelected ? LayerMask::DragWithMap
                                                                     : LayerMask::Drag);
  m_context.display.RedrawOverlay();
  return std::make_unique<MoveDrag>(m_context, in);
}

std::string PointerMode::Hint() const {
  return "Click: select. Shift+click: select more. Drag: move, or select in a box. Right click: menu";
}

}  // namespace landsmith
