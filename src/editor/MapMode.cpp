#include "editor/MapMode.h"

#include "editor/AddMap.h"

namespace landsmith {

std::unique_ptr<Gesture> MapMode::Press(const PointerInput& in) {
  if (in.button == MouseButton::Left)
    AddNewMap(m_context.session, m_context.display, m_context.host, ToLatLon(m_context.session.view, in.at));
  if (in.button == MouseButton::Right) m_context.menuAt = in.at;
  return nullptr;
}

}  // namespace landsmith
