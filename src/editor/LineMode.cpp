#include "editor/LineMode.h"

#include "editor/Edit.h"
#include "editor/Gestures.h"
#include "editor/Modes.h"
#include "editor/PaintHelpers.h"
#include "editor/SelectKinds.h"
#include "vector/LineJoin.h"
#include "vector/LineOperations.h"

#include <array>

namespace landsmith {

namespace {

constexpr int RubberMilliseconds = 20, LabelMilliseconds = 100;
constexpr int EscapeKey = 27;

/// What a key held during a click on a vertex does to it. False when no such key is held.
bool EditSelectedPoint(ModeContext& context) {
  Session& session = context.session;
  const ToolState& tool = session.tool;
  if (!tool.DeletePoints && !tool.BreakLine && !tool.WidthDown && !tool.WidthUp) return false;
  Edit edit(session, context.display, -1);
  ProjectState& project = edit.Project();
  Selection& selection = session.tool.Selected;
  if (tool.DeletePoints)
    DeleteSelectedPathPoints(project.Lines, selection);
  else if (tool.BreakLine && SplitLine(project, selection))
    session.dialogs.Beep();
  else if (tool.WidthDown)
    ShrinkLinePoint(project);
  else if (tool.WidthUp)
    GrowLinePoint(project);
  RecountSelection(project, selection);
  return true;
}

}  // namespace

bool LineMode::IsDrawing() const {
  if (m_first) return true;
  // Commands may have deleted the line, or appended others behind it: then it is finished.
  return m_line && *m_line + 1 == m_context.session.project.Lines.size();
}

LatLon LineMode::LastPoint() const {
  if (m_first) return *m_first;
  const LinePoint& last = m_context.session.project.Lines[*m_line].Points.back();
  return {last.Lat, last.Lon};
}

std::unique_ptr<Gesture> LineMode::Press(const PointerInput& in) {
  if (in.button == MouseButton::Left && in.ctrl) return StartRubberBox(m_context, in, 0);
  if (in.button == MouseButton::Left) return PressLeft(in);
  if (in.button != MouseButton::Right) return nullptr;
  m_context.display.RedrawOverlay();
  if (!IsDrawing()) {
    m_context.menuAt = in.at;
    return nullptr;
  }
  EndLine();
  m_context.display.DisplayAll();
  return nullptr;
}

/// A click near the edge makes its place the centre first. The result is where the click is then.
PixelOffset LineMode::Recentred(PixelOffset at) {
  ViewState& view = m_context.session.view;
  const EditorHost& host = m_context.host;
  if (!IsOutsideCenterBox(view, at, host.ToolbarHeight(), host.StatusBarHeight())) {
    m_context.display.RedrawOverlay();
    return at;
  }
  PanDisplay(view, at.x, at.y);
  m_context.display.DisplayAll();
  return {};
}

std::unique_ptr<Gesture> LineMode::PressLeft(const PointerInput& in) {
  Session& session = m_context.session;
  PointerInput click = in;
  click.at = Recentred(in.at);
  if (!IsDrawing()) {
    if (in.shift) return AddToSelection(in, ToWorldPixel(session.view, click.at));
    ClearSelection(session.project, session.tool);
    const WorldPixel at = ToWorldPixel(session.view, click.at);
    Selection& selection = session.tool.Selected;
    if (session.view.Shows(LayerKind::Lines)) {
      const auto pieces = PiecesAt(at);
      if (HitPoint(session.project.Lines, pieces, at, session.view.Scale, selection)) return PressOnPoint(in);
      if (session.tool.InsertPoints) return InsertPoint(in, at);
      if (HitPath(session.project.Lines, pieces, at, session.view.Scale, selection)) return StartDrag(in);
    }
  }
  AddPoint(ToLatLon(session.view, click.at));
  return nullptr;
}

std::vector<PathPiece> LineMode::PiecesAt(WorldPixel at) {
  return m_context.display.Index().Lines.PiecesMeeting(CursorBox(at, m_context.session.view.Scale));
}

std::unique_ptr<Gesture> LineMode::AddToSelection(const PointerInput& in, WorldPixel at) {
  Session& session = m_context.session;
  if (session.view.Shows(LayerKind::Lines))
    HitPath(session.project.Lines, PiecesAt(at), at, session.view.Scale, session.tool.Selected);
  return session.tool.Selected.SelectionActive ? StartDrag(in) : nullptr;
}

std::unique_ptr<Gesture> LineMode::PressOnPoint(const PointerInput& in) {
  if (!EditSelectedPoint(m_context)) return StartDrag(in);
  m_context.display.RedrawOverlay();
  return nullptr;
}

std::unique_ptr<Gesture> LineMode::InsertPoint(const PointerInput& in, WorldPixel at) {
  Session& session = m_context.session;
  const auto hit = FindSegmentAt(session.project.Lines, PiecesAt(at), at, session.view.Scale);
  if (!hit) return nullptr;
  const LatLon place{at.Y / session.view.Scale.PixelsPerDegLat, at.X / session.view.Scale.PixelsPerDegLon};
  {
    Edit edit(session, m_context.display, -1);
    if (!InsertPathPoint(edit.Project().Lines, place, hit->item, hit->point, session.tool.Selected))
      return nullptr;
  }
  return StartDrag(in);
}

std::unique_ptr<Gesture> LineMode::StartDrag(const PointerInput& in) {
  m_context.display.RedrawOverlay();
  m_context.host.RefreshUi();
  return std::make_unique<MoveDrag>(m_context, in);
}

void LineMode::AddPoint(LatLon at) {
  Session& session = m_context.session;
  m_mouseKnown = false;
  if (!IsDrawing()) {
    m_line.reset();
    m_first = at;
    m_context.display.RedrawOverlay();
    return;
  }
  {
    Edit edit(session, m_context.display, -1, m_first ? UndoPoint::Take : UndoPoint::Share);
    auto& lines = edit.Project().Lines;
    if (m_first) {
      lines.push_back(NewLine(*m_first, at, session.settings.DefPWidth, session.settings.LnColorUns));
      m_line = lines.size() - 1;
      m_first.reset();
    } else {
      AppendPoint(lines.Edit(*m_line), at, session.settings.DefPWidth);
    }
  }
  m_context.display.RedrawOverlay();
}

void LineMode::EndLine() {
  Session& session = m_context.session;
  m_first.reset();
  const bool finished = IsDrawing();
  const std::optional<std::size_t> line = std::exchange(m_line, std::nullopt);
  if (!finished || session.settings.AutoLineJoin != 1 || session.project.Lines.size() < 2) return;
  Edit edit(session, m_context.display, -1);
  if (!TryAutoJoin(edit.Project(), *line, session.settings, session.view.Scale)) return;
  RecountSelection(session.project, session.tool.Selected);
  session.dialogs.Beep();
}

void LineMode::Hover(const PointerInput&) {
  m_mouseKnown = true;
  const bool drawing = IsDrawing();
  if (!drawing && m_context.session.settings.ShowLabels == 0) return;
  if (!m_context.host.StartTimer(TimerId::Rubber, drawing ? RubberMilliseconds : LabelMilliseconds))
    Tick(TimerId::Rubber);
}

void LineMode::Tick(TimerId timer) {
  if (timer != TimerId::Rubber) return;
  if (IsDrawing())
    m_context.display.RedrawOverlay();
  else
    ShowLabelUnderMouse(m_context);
}

bool LineMode::Key(const KeyInput& in) {
  if (in.code != EscapeKey || !IsDrawing()) return false;
  EndLine();
  m_context.display.DisplayAll();
  return true;
}

void LineMode::Leave() {
  EndLine();
}

void LineMode::Abandon() {
  m_first.reset();
  m_line.reset();
}

void LineMode::Paint(Surface& surface) const {
  if (!IsDrawing() || !m_mouseKnown) return;
  const ViewState& view = m_context.session.view;
  const LatLon last = LastPoint();
  const std::array<PixelPoint, 2> rubber{
      HeldPixel(ToCanvas(view, last.lon, last.lat)),
      HeldPixel({view.Mouse.x + view.ScaleWidth / 2.0, view.Mouse.y + view.ScaleHeight / 2.0})};
  surface.SetPen(m_context.session.settings.LnColorUns);
  surface.Polyline(rubber);
}

}  // namespace landsmith
