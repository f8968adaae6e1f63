// Choosing a tool, and what the menus offer in it.
#include "editor/Editor.h"
#include "editor/Modes.h"
#include "editor/SelectKinds.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr int CoarsestFillGrid = 8, FinestFillGrid = 13;

/// The grid level whose squares are as large as the brush.
int GridOfFillSize(int fillSize) {
  int lod = FinestFillGrid;
  while (lod > CoarsestFillGrid && FillSizeOfGrid(lod) < fillSize)
    --lod;
  return lod;
}

template <class Records>
bool AnySelected(const Records& records) {
  return std::any_of(records.begin(), records.end(), [](const auto& record) { return record.Selected; });
}

}  // namespace

void Editor::TakeMode(ModeId mode) {
  m_session.tool.Mode = mode;
  m_session.tool.Walk.reset();
  m_mode = MakeMode(mode, m_context);
}

/// Ends the mode at hand, its gestures and what was armed in it.
void Editor::ResetToolState() {
  SettleCanvas();
  ToolState& tool = m_session.tool;
  if (SetupOf(tool.Mode).Zoom > 0) m_host.ShowModeForm(std::nullopt);
  tool.InsertPoints = tool.PasteArmed = false;
  StopMeasuring();
}

void Editor::ChooseMode(ModeId mode) {
  if (!HasProject()) return;
  Guard([&] {
    ResetToolState();
    TakeMode(mode);
    ShowModeSetup(SetupOf(mode));
    m_display.DisplayAll();
    ShowStatus();
  });
  ShowToolState();
  m_host.RefreshUi();
  if (SetupOf(mode).Zoom > 0) m_host.ShowModeForm(mode);
  if (mode == ModeId::Mesh && m_session.settings.Mesh8)
    m_session.dialogs.Message(MessageKind::Warning,
                              "You should unset the 8-bit/meter option\nin the Preferences menu!");
}

/// Changes what is seen for the tool that has been chosen; the caller repaints.
void Editor::ShowModeSetup(const ModeSetup& setup) {
  if (!setup.Kind) return;
  ViewState& view = m_session.view;
  const auto show = [&view](LayerKind kind) { view.ShowFlag[static_cast<std::size_t>(kind)] = true; };
  show(*setup.Kind);
  ClearSelection(m_session.project, m_session.tool);
  if (setup.Zoom <= 0) return;
  if (!setup.MapView.empty()) SetMapView(setup.MapView);
  view.GridLod = setup.GridLod > 0 ? setup.GridLod : GridOfFillSize(view.FillSize);
  view.FillSize = FillSizeOfGrid(view.GridLod);
  view.Zoom = setup.Zoom;
  UpdateScale(view);
  SetDisplayExtent(view);
  show(LayerKind::Maps);
}

bool Editor::MaySelectKind(LayerKind kind) const {
  const std::optional<LayerKind>& own = SetupOf(m_session.tool.Mode).Kind;
  return HasProject() && m_session.view.Shows(kind) && (!own || *own == kind);
}

bool Editor::MaySelectAll() const {
  return HasProject() && !SetupOf(m_session.tool.Mode).Kind && !m_session.tool.ViewAllOn;
}

bool Editor::MayCut() const {
  if (!HasProject() || !m_session.tool.Selected.SelectionActive || m_mode->IsDrawing()) return false;
  const ProjectState& project = m_session.project;
  switch (m_session.tool.Mode) {
    case ModeId::Line:
      return AnySelected(project.Lines);
    case ModeId::Poly:
      return AnySelected(project.Polys);
    case ModeId::Object:
      return AnySelected(project.Objects);
    default:
      return false;
  }
}

bool Editor::MayPaste() const {
  if (!HasProject()) return false;
  const Clipboard& clipboard = m_session.clipboard;
  switch (m_session.tool.Mode) {
    case ModeId::Line:
      return clipboard.CopiedLine.has_value();
    case ModeId::Poly:
      return clipboard.CopiedPoly.has_value();
    case ModeId::Object:
      return clipboard.CopiedObject.has_value();
    default:
      return false;
  }
}

bool Editor::MayDelete() const {
  if (DrawsItems(m_session.tool.Mode)) return MayCut();
  return HasProject() && m_session.tool.Selected.SelectedCount > 0;
}

bool Editor::MayMeasure() const {
  if (m_session.tool.MeasureOn) return true;
  const ModeId mode = m_session.tool.Mode;
  return HasProject() && !m_gesture && !m_mode->IsDrawing() && (mode == ModeId::Pointer || DrawsItems(mode));
}

void Editor::StopMeasuring() {
  m_session.tool.MeasureOn = false;
  m_context.measure.Stop();
  HideHoverLabel(m_context);
}

void Editor::ToggleMeasure() {
  if (!MayMeasure()) return;
  if (m_session.tool.MeasureOn) {
    StopMeasuring();
    m_display.RedrawTop();
  } else {
    m_session.tool.MeasureOn = true;
  }
  ShowToolState();
  m_host.RefreshUi();
}

}  // namespace landsmith
