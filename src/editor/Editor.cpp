#include "editor/Editor.h"

#include "core/Text.h"
#include "editor/Modes.h"

#include <utility>

namespace landsmith {

Editor::Editor(Session& session, CanvasSurfaces& surfaces, EditorHost& host)
    : m_session(session),
      m_display(session, surfaces),
      m_host(host),
      m_context{session, m_display, host, std::nullopt, {}, false},
      m_mode(MakeMode(session.tool.Mode, m_context)) {
  m_display.SetExtra([this](Surface& surface) {
    m_mode->Paint(surface);
    m_context.measure.Paint(surface, m_session.view);
    if (m_gesture) m_gesture->Paint(surface);
    if (m_finding) PaintFinding(surface, *m_finding, m_session.project, m_session.view);
  });
}

Editor::~Editor() {
  EndGesture();
}

/// False when the command failed; the user has then been told.
bool Editor::Guard(const std::function<void()>& command) {
  try {
    command();
    return true;
  } catch (const std::exception& failure) {
    m_session.dialogs.Message(MessageKind::Error, failure.what());
    return false;
  }
}

/// `end` says how: by End or by Cancel.
void Editor::CloseGesture(const std::function<void(Gesture&)>& end) {
  m_dragByKey = false;
  m_host.StopTimer(TimerId::DragSettle);
  m_host.StopTimer(TimerId::DragRedraw);
  // Out of the member first: what the end repaints no longer shows the drag.
  auto gesture = std::exchange(m_gesture, nullptr);
  if (!gesture) return;
  Guard([&] { end(*gesture); });
  gesture.reset();  // closes its edit; only then is there something to undo
  m_host.RefreshUi();
}

void Editor::EndGesture() {
  CloseGesture([](Gesture& gesture) { gesture.Cancel(); });
}

void Editor::SettleCanvas() {
  EndGesture();
  const bool drawing = m_mode->IsDrawing();
  m_mode->Leave();
  if (!drawing) return;
  m_display.DisplayAll();
  ShowToolState();
}

CursorShape Editor::CursorNow() const {
  const ToolState& tool = m_session.tool;
  if (tool.MeasureOn) return CursorShape::Measure;
  if (m_gesture) return m_gesture->Cursor();
  if (m_pick && tool.Mode != ModeId::Zoom) return CursorShape::Cross;
  if (tool.PasteArmed) return CursorShape::Paste;
  return m_mode->Cursor();
}

std::string Editor::HintNow() const {
  const ToolState& tool = m_session.tool;
  if (!HasProject()) return {};
  if (m_gesture) return m_gesture->Hint();
  if (tool.ZoomKeyDown) return "Drag up: zoom in. Drag down: zoom out";
  if (tool.PanKeyDown) return "Drag: move the view";
  if (tool.NextClickIsRight) return "Click: as with the right button";
  if (tool.PasteArmed) return "Click: paste a copy here. Right click: no more copies";
  if (m_pick && tool.Mode != ModeId::Zoom) return "Click: take this place";
  if (tool.MeasureOn)
    return m_context.measure.Started() ? "Click: end the measure. Right click: stop measuring"
                                       : "Click: measure from here. Right click: stop measuring";
  return m_mode->Hint();
}

/// Cursor and hint, after anything that may have changed what the mouse does.
void Editor::ShowToolState() {
  m_host.SetCursor(CursorNow());
  std::string hint = HintNow();
  if (hint == m_hint) return;
  m_hint = std::move(hint);
  m_host.SetHint(m_hint);
}

void Editor::ShowStatus() {
  // Only the mesh view reads the canvas.
  const bool reads = m_session.view.MapView == "Mesh";
  const std::int32_t pixel = reads ? m_display.Surfaces().Base().Pixel(m_lastPointer.raw) : 0;
  m_host.SetStatus(ComposeStatusText(m_session, m_session.view.Mouse, pixel));
}

void Editor::Resize(std::int32_t width, std::int32_t height) {
  ViewState& view = m_session.view;
  view.ScaleWidth = width < 1 ? 1 : width;
  view.ScaleHeight = height < 1 ? 1 : height;
  UpdateScale(view);
  SetDisplayExtent(view);
  m_display.DisplayAll();
}

std::string Editor::Caption() const {
  const std::string title = "Landsmith";
  return HasProject() ? ToUpper(m_session.project.Name) + "  " + title : title;
}

bool Editor::MaySave() const {
  return HasProject() && !m_session.project.ProjectFile.empty();
}

}  // namespace landsmith
