#include "editor/Editor.h"

#include "core/Text.h"
#include "editor/Modes.h"
#include "editor/SelectKinds.h"

#include <utility>

namespace landsmith {

Editor::Editor(Session& session, CanvasSurfaces& surfaces, EditorHost& host)
    : m_session(session),
      m_display(session, surfaces),
      m_host(host),
      m_context{session, m_display, host, std::nullopt},
      m_mode(MakeMode(session.tool.Mode, m_context)) {
  m_display.SetExtra([this](Surface& surface) {
    m_mode->Paint(surface);
    if (m_gesture) m_gesture->Paint(surface);
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

void Editor::EndGesture() {
  // Out of the member first: what the end repaints no longer shows the drag.
  if (const auto gesture = std::exchange(m_gesture, nullptr)) gesture->Cancel();
  m_dragByKey = false;
  m_host.StopTimer(TimerId::DragSettle);
  m_host.StopTimer(TimerId::DragRedraw);
}

void Editor::TakeMode(ModeId mode) {
  m_session.tool.Mode = mode;
  m_mode = MakeMode(mode, m_context);
}

void Editor::ChooseMode(ModeId mode) {
  if (!IsOffered(mode) || !HasProject()) return;
  Guard([&] {
    EndGesture();
    m_mode->Leave();
    m_session.tool.InsertPoints = false;
    TakeMode(mode);
    if (mode == ModeId::Line) {
      m_session.view.ShowFlag[static_cast<std::size_t>(LayerKind::Lines)] = true;
      ClearSelection(m_session.project, m_session.tool);
    }
    m_display.DisplayAll();
    ShowCursor();
    m_host.RefreshUi();
  });
}

void Editor::ShowCursor() {
  if (m_pick && !m_gesture) return m_host.SetCursor(CursorShape::Cross);
  m_host.SetCursor(m_gesture ? m_gesture->Cursor() : m_mode->Cursor());
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
