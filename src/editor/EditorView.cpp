// Commands that change what is seen, not what is there.
#include "editor/Editor.h"
#include "editor/MapView.h"
#include "editor/Modes.h"
#include "editor/SelectKinds.h"

namespace landsmith {

void Editor::AfterViewChange() {
  m_display.DisplayAll();
  ShowStatus();
  // Other places lie under the mouse now.
  if (m_context.measure.Started())
    ShowMeasure();
  else
    HideHoverLabel(m_context);
}

/// A step of the wheel: about the display centre, or, where the setting says so, about the mouse.
void Editor::StepZoomBy(ZoomStep step, PixelOffset at) {
  ViewState& view = m_session.view;
  const LatLon underMouse = ToLatLon(view, at);
  if (!StepZoom(view, step)) return;
  if (m_session.settings.ZoomAtCursor) {
    view.LatDispCenter = underMouse.lat;
    view.LonDispCenter = underMouse.lon;
    PanDisplay(view, -at.x, -at.y);
  } else {
    SetDisplayExtent(view);
  }
  AfterViewChange();
}

void Editor::ZoomAt(PixelOffset at, ZoomStep step) {
  if (!HasProject()) return;
  ZoomAtPoint(m_context, at, step);
  ShowStatus();
}

void Editor::CenterAt(PixelOffset at) {
  if (!HasProject()) return;
  PanDisplay(m_session.view, at.x, at.y);
  AfterViewChange();
}

void Editor::GoTo(LatLon center) {
  m_session.view.LatDispCenter = center.lat;
  m_session.view.LonDispCenter = center.lon;
  PanDisplay(m_session.view, 0, 0);
  AfterViewChange();
}

void Editor::ShowFinding(const Finding& finding) {
  m_finding = finding;
  GoTo(finding.At);
}

void Editor::HideFinding() {
  if (!m_finding) return;
  m_finding.reset();
  m_display.RedrawTop();
}

void Editor::SetGrid(int lod) {
  m_session.view.GridLod = lod;
  m_session.view.FillSize = FillSizeOfGrid(lod);
  m_display.DisplayAll();
  ShowToolState();
  // Its form shows the size of the brush.
  if (m_session.tool.Mode == ModeId::Fill) m_host.ShowModeForm(ModeId::Fill);
  m_host.RefreshUi();
}

void Editor::ToggleShown(LayerKind kind) {
  bool& shown = m_session.view.ShowFlag[static_cast<std::size_t>(kind)];
  if (kind == SetupOf(m_session.tool.Mode).Kind) {
    shown = true;
    m_host.RefreshUi();
    return;
  }
  EndGesture();
  if (shown) SelectAllOfKind(m_session.project, m_session.view, kind, false, m_session.tool.Selected);
  shown = !shown;
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::ShowAll() {
  m_session.tool.ViewAllOn = false;
  m_session.view.ShowFlag.fill(true);
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::ToggleViewAll() {
  if (!HasProject()) return;
  if (m_session.tool.ViewAllOn) return ShowAll();
  EndGesture();
  m_session.tool.ViewAllOn = true;
  ClearSelection(m_session.project, m_session.tool);
  auto& shown = m_session.view.ShowFlag;
  shown.fill(false);
  shown[static_cast<std::size_t>(LayerKind::Grid)] = true;  // no kind of item
  if (const auto kind = SetupOf(m_session.tool.Mode).Kind) shown[static_cast<std::size_t>(*kind)] = true;
  m_display.DisplayAll();
  m_host.RefreshUi();
}

void Editor::SetClassGridView(bool on) {
  Edit edit(m_session, m_display);
  edit.Project().ClassGridVIEW = on;
}

void Editor::SettingsChanged(bool centerChanged) {
  if (centerChanged) {
    const AppSettings& settings = m_session.settings;
    const auto take = [&settings](ProjectState& project) {
      project.LatLandCenter = settings.LatLandCenter;
      project.LonLandCenter = settings.LonLandCenter;
    };
    if (HasProject()) {
      Edit edit(m_session, m_display, -1);
      take(edit.Project());
    } else {
      take(m_session.project);
    }
    m_session.view.Classes = ClassWindowOf(settings.LatLandCenter, settings.LonLandCenter);
    m_session.view.LatDispCenter = settings.LatLandCenter;
    m_session.view.LonDispCenter = settings.LonLandCenter;
  }
  UpdateScale(m_session.view);
  PanDisplay(m_session.view, 0, 0);
  LoadMaps(LoadMapView);
  AfterViewChange();
  m_host.RefreshUi();
}

}  // namespace landsmith
