// The view of the maps, and the place on the canvas that a form waits for.
#include "editor/Calibration.h"
#include "editor/Edit.h"
#include "editor/Editor.h"
#include "editor/MapView.h"

#include <utility>

namespace landsmith {

/// Pictures of a hundred megabytes take their time.
void Editor::LoadMaps(void (*load)(Session&, CanvasSurfaces&)) {
  if (!m_session.project.Maps.empty()) m_host.SetCursor(CursorShape::Busy);
  load(m_session, m_display.Surfaces());
  ShowToolState();
}

void Editor::SetMapView(std::string_view view) {
  if (!HasProject() || FindMapView(view) == nullptr) return;
  Guard([&] {
    EndGesture();  // a drag moves the bitmaps of the view
    m_session.view.MapView = view;
    LoadMaps(LoadMapView);
    AfterViewChange();
  });
  m_host.RefreshUi();
}

bool Editor::CalibrateMap(std::size_t map, const GeoBox& box) {
  EndGesture();
  const bool stored = Guard([&] {
    Edit edit(m_session, m_display);
    StoreCalibration(edit.Project().Maps.Edit(map), m_session.view.MapView, box);
  });
  m_host.RefreshUi();
  return stored;
}

void Editor::PickPoint(std::function<void(const PointerInput&)> pick) {
  m_pick = std::move(pick);
  ShowToolState();
}

bool Editor::TakePick(const PointerInput& in) {
  const bool leftOrRight = in.button == MouseButton::Left || in.button == MouseButton::Right;
  if (!m_pick || !leftOrRight || m_session.tool.PanKeyDown || m_session.tool.ZoomKeyDown) return false;
  std::exchange(m_pick, nullptr)(in);
  return true;
}

void Editor::CancelPick() {
  if (!m_pick) return;
  PointerInput end = m_lastPointer;
  end.button = MouseButton::Right;
  std::exchange(m_pick, nullptr)(end);
}

}  // namespace landsmith
