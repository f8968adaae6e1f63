// The canvas's events.
#include "editor/Editor.h"
#include "editor/Gestures.h"
#include "editor/PopupAt.h"

#include <cstdlib>
#include <utility>

namespace landsmith {

namespace {

constexpr int WheelNotch = 120;
constexpr int DeleteKey = 46, InsertKey = 45, EscapeKey = 27, SpaceKey = 32, CtrlKey = 17;
constexpr int MinusKey = 109, PlusKey = 107;

}  // namespace

std::unique_ptr<Gesture> Editor::GestureOfPress(const PointerInput& in) {
  if (TakePick(in)) return nullptr;
  const bool leftOrRight = in.button == MouseButton::Left || in.button == MouseButton::Right;
  if (m_session.tool.Mode == ModeId::Zoom && leftOrRight) return m_mode->Press(in);
  if (m_session.tool.ZoomKeyDown) return std::make_unique<ZoomDrag>(m_context, in);
  if (in.button == MouseButton::Middle || m_session.tool.PanKeyDown)
    return std::make_unique<PanDrag>(m_context, in);
  return m_mode->Press(in);
}

void Editor::Press(const PointerInput& in) {
  m_host.StopTimer(TimerId::Rubber);
  m_host.ShowHoverLabel({}, in.raw);
  if (!HasProject() || m_session.view.BusyPainting) return;
  if (m_gesture) {  // a second button during a drag ends it
    EndGesture();
    ShowCursor();
    return;
  }
  PointerInput press = in;
  if (press.button == MouseButton::Left && std::exchange(m_session.tool.NextClickIsRight, false))
    press.button = MouseButton::Right;
  if (press.button == MouseButton::Right) m_session.tool.InsertPoints = false;
  m_lastPointer = press;
  m_session.view.Mouse = press.at;
  Guard([&] {
    m_gesture = GestureOfPress(press);
    ShowStatus();
    m_host.RefreshUi();
  });
  ShowCursor();
  OpenPendingMenu();
}

void Editor::OpenPendingMenu() {
  const auto at = std::exchange(m_context.menuAt, std::nullopt);
  if (!at) return;
  if (m_session.tool.Mode == ModeId::Line && m_session.tool.Selected.SelectedCount >= 2) {
    m_host.ShowLineProperties(std::nullopt);
    return;
  }
  m_host.ShowContextMenu(
      PopupTargetAt(m_session.project, m_session.view, m_session.tool.Mode, *at, m_display.Index()));
}

void Editor::Move(const PointerInput& in) {
  if (!HasProject() || m_session.view.BusyPainting) return;
  m_lastPointer = in;
  m_session.view.Mouse = in.at;
  Guard([&] {
    if (m_gesture)
      m_gesture->Update(in);
    else if (!m_session.tool.PanKeyDown && !m_session.tool.ZoomKeyDown)
      m_mode->Hover(in);
    ShowStatus();
  });
}

void Editor::ReleaseGesture(const PointerInput& in) {
  m_dragByKey = false;
  m_host.StopTimer(TimerId::DragSettle);
  m_host.StopTimer(TimerId::DragRedraw);
  // Out of the member first: what the end repaints no longer shows the drag.
  const auto gesture = std::exchange(m_gesture, nullptr);
  if (gesture) Guard([&] { gesture->End(in); });
}

void Editor::Release(const PointerInput& in) {
  if (in.button == MouseButton::Right) m_session.tool.InsertPoints = false;
  if (!m_gesture) return;
  ReleaseGesture(in);
  ShowCursor();
}

void Editor::Wheel(int delta, const PointerInput& in) {
  if (!HasProject() || m_session.view.BusyPainting) return;
  if (in.shift || in.ctrl || in.button != MouseButton::None || m_gesture) return;
  if ((delta > 0) != (m_wheelRest > 0)) m_wheelRest = 0;
  m_wheelRest += delta;
  if (std::abs(m_wheelRest) < WheelNotch) return;
  m_wheelRest = 0;
  m_session.view.Mouse = in.at;
  StepZoomBy(delta > 0 ? ZoomStep::In : ZoomStep::Out, in.at);
}

void Editor::TimerTick(TimerId timer) {
  if (!HasProject()) return;
  Guard([&] {
    if (m_gesture)
      m_gesture->Tick(timer);
    else
      m_mode->Tick(timer);
  });
}

void Editor::FocusLost() {
  ToolState& tool = m_session.tool;
  tool.PanKeyDown = tool.ZoomKeyDown = tool.CtrlKeyDown = false;
  tool.InsertPoints = tool.DeletePoints = tool.BreakLine = tool.WidthDown = tool.WidthUp = false;
  EndGesture();
  ShowCursor();
}

/// Keys that count while they are held. True when the key is one of them.
bool Editor::KeyState(const KeyInput& in, bool down) {
  ToolState& tool = m_session.tool;
  switch (in.code) {
    case 'I':
      tool.InsertPoints = down;
      return true;
    case 'D':
      tool.DeletePoints = down;
      return true;
    case 'B':
      tool.BreakLine = down;
      return true;
    case 'P':
      tool.PanKeyDown = down;
      return true;
    case 'Z':
      tool.ZoomKeyDown = down;
      return true;
    case CtrlKey:
      tool.CtrlKeyDown = down;
      return true;
    case MinusKey:
      tool.WidthDown = down;
      return true;
    case PlusKey:
      tool.WidthUp = down;
      return true;
    default:
      return false;
  }
}

/// A left press where the mouse is. R waits for a real click, and a drag of the mouse goes on.
void Editor::PressByKey(const KeyInput& in) {
  if (m_gesture) return;
  PointerInput press = m_lastPointer;
  press.button = MouseButton::Left;
  press.shift = in.shift;
  press.ctrl = in.ctrl;
  const bool nextIsRight = std::exchange(m_session.tool.NextClickIsRight, false);
  Press(press);
  m_session.tool.NextClickIsRight = nextIsRight;
  m_dragByKey = m_gesture != nullptr;
}

void Editor::KeyDown(const KeyInput& in) {
  m_session.tool.InsertPoints = false;
  if (in.code == DeleteKey) {
    if (m_session.tool.Selected.SelectedCount >= 1) DeleteSelected();
  } else if (in.code == 'P' && in.alt) {
    m_session.settings.PolyFill = !m_session.settings.PolyFill;
    m_display.DisplayAll();
  } else if (in.code == SpaceKey && m_session.tool.Mode == ModeId::Line) {
    PressByKey(in);
  } else if (in.code == EscapeKey && m_pick) {
    CancelPick();
    ShowCursor();
  } else if (in.code == EscapeKey) {
    if (HasProject()) Guard([&] { m_mode->Key(in); });
  } else if (in.ctrl && in.code != CtrlKey) {
    return;  // a shortcut of the menus; its release may never come
  } else {
    KeyState(in, true);
  }
}

void Editor::KeyUp(const KeyInput& in) {
  if (KeyState(in, false)) return;
  if (in.code == SpaceKey && m_dragByKey) {
    ReleaseGesture(m_lastPointer);
    ShowCursor();
  }
  if (in.code == InsertKey) m_session.tool.InsertPoints = true;
  if (in.code == 'R') m_session.tool.NextClickIsRight = true;
}

}  // namespace landsmith
