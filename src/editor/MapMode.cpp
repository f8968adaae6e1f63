#include "editor/MapMode.h"

#include "editor/AddMap.h"

namespace landsmith {

std::unique_ptr<Gesture> MapMode::Press(const PointerInput& in) {
  if (in.button == MouseButton::Left)
    AddNewMap(TheSession(), m_context.display, m_context.host, ToLatLon(TheSession().view, in.at));
  return MenuMode::Press(in);
}

}  // namespace landsmith
