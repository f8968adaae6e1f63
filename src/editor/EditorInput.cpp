// The canvas's events.
#include "editor/Editor.h"
#include "editor/Gestures.h"
#include "editor/Modes.h"
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
  const bool leftOrRight = in.button == MouseButton::Left || in.button == MouseButton::Right;
  if (m_session.tool.Mode == ModeId::Zoom && leftOrRight) return m_mode->Press(in);
  if (m_session.tool.ZoomKeyDown) return std::make_unique<ZoomDrag>(m_context, in);
  if (in.button == MouseButton::Middle || m_session.tool.PanKeyDown)
    return std::make_unique<PanDrag>(m_context, in);
  return GestureOfTool(in);
}

/// A press that leaves the view alone.
std::unique_ptr<Gesture> Editor::GestureOfTool(const PointerInput& in) {
  m_session.tool.Walk.reset();
  if (UseArmedPress(in)) return nullptr;
  const ToolState& tool = m_session.tool;
  if (DrawsItems(tool.Mode) && tool.MeasureOn) {
    m_context.measure.Click(ToLatLon(m_session.view, in.at));
    return nullptr;
  }
  if (DrawsItems(tool.Mode) && in.ctrl) return StartRubberBox(m_context, in, 0);
  return m_mode->Press(in);
}

/// A press that something else than the mode waits for.
bool Editor::UseArmedPress(const PointerInput& in) {
  ToolState& tool = m_session.tool;
  const bool right = in.button == MouseButton::Right;
  if (tool.PasteArmed) {
    if (right)
      tool.PasteArmed = false;
    else
      PasteAt(ToLatLon(m_session.view, in.at));
    return true;
  }
  if (TakePick(in)) return true;
  if (!tool.MeasureOn || !right) return false;
  StopMeasuring();
  m_display.RedrawTop();
  return true;
}

void Editor::Press(const PointerInput& in) {
  m_host.StopTimer(TimerId::Label);
  HideHoverLabel(m_context);
  if (!HasProject() || m_session.view.BusyPainting) return;
  if (m_gesture) {  // a second button during a drag ends it
    EndGesture();
    ShowToolState();
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
  ShowToolState();
  OpenPendingMenu();
}

void Editor::OpenPendingMenu() {
  const auto at = std::exchange(m_context.menuAt, std::nullopt);
  if (!at) return;
  const ModeId mode = m_session.tool.Mode;
  const bool several = m_session.tool.Selected.SelectedCount >= 2;
  if (several && mode == ModeId::Line) return m_host.ShowLineProperties(std::nullopt);
  if (several && mode == ModeId::Poly) return m_host.ShowPolyProperties(std::nullopt);
  m_host.ShowContextMenu(PopupTargetAt(m_session.project, m_session.view, mode, *at, m_display.Index()));
}

void Editor::Move(const PointerInput& in) {
  if (!HasProject() || m_session.view.BusyPainting) return;
  m_lastPointer = in;
  m_session.view.Mouse = in.at;
  const bool viewKey = m_session.tool.PanKeyDown || m_session.tool.ZoomKeyDown;
  Guard([&] {
    if (m_gesture) {
      if (!viewKey || m_gesture->MovesView()) m_gesture->Update(in);
    } else if (!viewKey) {
      Hover(in);
    }
    ShowStatus();
  });
}

void Editor::Hover(const PointerInput& in) {
  if (!m_context.measure.Started()) return m_mode->Hover(in);
  ShowMeasure();  // at once: a timer that each move starts anew would hold the line still
}

void Editor::ShowMeasure() {
  constexpr std::int32_t labelRight = 35, labelAbove = 35;
  m_display.RedrawTop();
  const Measurement measured = m_context.measure.ToMouse(m_session.view);
  SetHoverLabel(m_context, MeasureLabel(measured, m_session.settings), labelRight, labelAbove);
}

void Editor::ReleaseGesture(const PointerInput& in) {
  CloseGesture([&in](Gesture& gesture) { gesture.End(in); });
}

void Editor::Release(const PointerInput& in) {
  if (in.button == MouseButton::Right) m_session.tool.InsertPoints = false;
  if (!m_gesture) return;
  ReleaseGesture(in);
  ShowToolState();
}

void Editor::PointerLeft() {
  m_mode->HoverEnd();
  if (m_context.measure.Started()) return;  // what it tells is still true
  m_host.StopTimer(TimerId::Label);
  HideHoverLabel(m_context);
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
    else if (!m_context.measure.Started())
      m_mode->Tick(timer);
  });
}

void Editor::FocusLost() {
  ToolState& tool = m_session.tool;
  tool.PanKeyDown = tool.ZoomKeyDown = tool.CtrlKeyDown = false;
  tool.DeletePoints = tool.BreakLine = tool.WidthDown = tool.WidthUp = false;
  // Ins is not held, so it stays: a menu may be opened meanwhile.
  if (std::exchange(m_insertHeld, false)) tool.InsertPoints = false;
  EndGesture();
  ShowToolState();
}

/// Keys that count while they are held. True when the key is one of them.
bool Editor::KeyState(const KeyInput& in, bool down) {
  ToolState& tool = m_session.tool;
  switch (in.code) {
    case 'I':
      tool.InsertPoints = m_insertHeld = down;
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

void Editor::EndByEscape(const KeyInput& in) {
  CancelPick();
  if (m_session.tool.MeasureOn) ToggleMeasure();
  Guard([&] { m_mode->Key(in); });
  m_host.RefreshUi();
}

/// Keys that do something at once. True when the key is one of them.
bool Editor::KeyCommand(const KeyInput& in) {
  if (in.code == DeleteKey) {
    if (m_session.tool.Selected.SelectedCount >= 1) DeleteSelected();
  } else if (in.code == 'P' && in.alt) {
    m_session.settings.PolyFill = !m_session.settings.PolyFill;
    m_display.DisplayAll();
  } else if (in.code == SpaceKey) {
    if (m_session.tool.Mode == ModeId::Line) PressByKey(in);
  } else if (in.code == EscapeKey) {
    EndByEscape(in);
  } else if (in.code == 'M' && !in.ctrl) {
    ToggleMeasure();
  } else {
    return false;
  }
  return true;
}

void Editor::KeyDown(const KeyInput& in) {
  m_session.tool.InsertPoints = false;
  if (!HasProject()) return;
  if (WalkKey(in)) return ShowToolState();
  // With Ctrl a letter is a shortcut of the menus, and its release may never come.
  if (!KeyCommand(in) && (!in.ctrl || in.code == CtrlKey)) KeyState(in, true);
  ShowToolState();
}

void Editor::KeyUp(const KeyInput& in) {
  if (!KeyState(in, false)) {
    if (in.code == SpaceKey && m_dragByKey) ReleaseGesture(m_lastPointer);
    if (in.code == InsertKey) m_session.tool.InsertPoints = true;
    if (in.code == 'R') m_session.tool.NextClickIsRight = true;
  }
  ShowToolState();
}

}  // namespace landsmith
