#include "editor/Gestures.h"

#include "editor/AutoJoin.h"
#include "editor/SelectKinds.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr int RepaintMilliseconds = 20;
constexpr float PixelsPerZoomStep = 50;
constexpr std::int32_t BoxColor = 255;

PixelBox BoxBetween(PixelPoint a, PixelPoint b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x) + 1, std::max(a.y, b.y) + 1};
}

LatLon PlaceOf(const ViewState& view, PixelPoint raw) {
  return {view.LatTop - raw.y / view.Scale.PixelsPerDegLat,
          view.LonLeft + raw.x / view.Scale.PixelsPerDegLon};
}

}  // namespace

PanDrag::PanDrag(ModeContext& context, const PointerInput& in)
    : m_context(context),
      m_from(in.at),
      m_center{context.session.view.LatDispCenter, context.session.view.LonDispCenter} {}

void PanDrag::Update(const PointerInput& in) {
  DragDisplay(m_context.session.view, m_center, m_from.x - in.at.x, m_from.y - in.at.y);
  // A timer that runs is left to end: restarting it at each move would hold the picture still.
  if (std::exchange(m_repaintPending, true)) return;
  if (!m_context.host.StartTimer(TimerId::DragRedraw, RepaintMilliseconds)) Repaint();
}

void PanDrag::Repaint() {
  if (!std::exchange(m_repaintPending, false)) return;
  m_context.display.DisplayAll();
}

void PanDrag::Tick(TimerId timer) {
  if (timer == TimerId::DragRedraw) Repaint();
}

void PanDrag::End(const PointerInput&) {
  Repaint();
}

void PanDrag::Cancel() {
  Repaint();
}

void ZoomDrag::Update(const PointerInput& in) {
  const float down = in.at.y - m_y;
  if (down >= PixelsPerZoomStep)
    ZoomAboutCenter(m_context, ZoomStep::Out);
  else if (down <= -PixelsPerZoomStep)
    ZoomAboutCenter(m_context, ZoomStep::In);
  else
    return;
  m_y = in.at.y;
}

void RubberBox::Update(const PointerInput& in) {
  m_now = in.raw;
  m_context.display.RedrawTop();
}

void RubberBox::Paint(Surface& surface) const {
  surface.SetPen(BoxColor, 1, PenStyle::Dot);
  surface.SetBrush(0, BrushStyle::None);
  surface.Box(BoxBetween(m_first, m_now));
  surface.SetPen(BoxColor);
}

void RubberBox::End(const PointerInput& in) {
  Session& session = m_context.session;
  const LatLon a = PlaceOf(session.view, m_first), b = PlaceOf(session.view, in.raw);
  GeoBox box;
  box.Add(a.lat, a.lon);
  box.Add(b.lat, b.lon);
  SelectInBox(session.project, m_context.display.Index(), session.view, box, session.tool);
  Repaint();
}

void RubberBox::Cancel() {
  Repaint();
}

/// Without the box. In a drawing mode the kind under edit lay in the base image meanwhile; left there, later
/// clicks and drags would not show.
void RubberBox::Repaint() {
  const ToolState& tool = m_context.session.tool;
  if (tool.Selected.SelectionActive || tool.Mode != ModeId::Pointer)
    m_context.display.DisplayAll();
  else
    m_context.display.RedrawOverlay();
}

MoveDrag::MoveDrag(ModeContext& context, const PointerInput& in, int settleMilliseconds)
    : m_context(context), m_edit(context.session, context.display, -1), m_last(in.at) {
  m_settling = context.host.StartTimer(TimerId::DragSettle, settleMilliseconds);
}

void MoveDrag::Update(const PointerInput& in) {
  Session& session = m_context.session;
  if (m_settling || !session.tool.Selected.SelectionActive) return;
  const double dx = in.at.x - m_last.x, dy = in.at.y - m_last.y;
  if (dx == 0 && dy == 0) return;
  m_last = in.at;
  if (!m_moving) {
    m_moving = CollectMoving(session.project, m_context.display.Index(), session.view, session.tool.Mode);
    m_context.display.BeginMoving(*m_moving);
  }
  MoveSelection(m_edit.Project(), *m_moving, session.view, dx, dy);
  if (std::exchange(m_repaintPending, true)) return;
  if (!m_context.host.StartTimer(TimerId::DragRedraw, RepaintMilliseconds)) Repaint();
}

void MoveDrag::Repaint() {
  if (std::exchange(m_repaintPending, false)) m_context.display.RedrawOverlay();
}

void MoveDrag::Tick(TimerId timer) {
  if (timer == TimerId::DragSettle) m_settling = false;
  if (timer == TimerId::DragRedraw) Repaint();
}

void MoveDrag::JoinMovedFigure() {
  const ModeId mode = m_context.session.tool.Mode;
  if (!m_moving) return;
  if (mode == ModeId::Line && !m_moving->Lines.empty())
    AutoJoinFigure(m_context.session, m_edit, LayerKind::Lines, m_moving->Lines.front());
  if (mode == ModeId::Poly && !m_moving->Polys.empty())
    AutoJoinFigure(m_context.session, m_edit, LayerKind::Polys, m_moving->Polys.front());
}

void MoveDrag::Finish() {
  m_repaintPending = false;
  m_context.display.EndMoving();
}

void MoveDrag::End(const PointerInput&) {
  JoinMovedFigure();
  Finish();
}

void MoveDrag::Cancel() {
  Finish();
}

}  // namespace landsmith
