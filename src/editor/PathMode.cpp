#include "editor/PathMode.h"

#include "editor/AutoJoin.h"
#include "editor/Edit.h"
#include "editor/Gestures.h"
#include "editor/PaintHelpers.h"
#include "editor/SelectKinds.h"
#include "vector/LineOperations.h"
#include "vector/PolyOperations.h"

#include <array>
#include <utility>

namespace landsmith {

namespace {

constexpr int EscapeKey = 27;

/// What drawing lines and drawing polygons differ in.
template <class Path>
struct PathTool;

template <>
struct PathTool<LineRec> {
  static constexpr LayerKind Kind = LayerKind::Lines;
  static constexpr CursorShape Cursor = CursorShape::Line;
  static constexpr const char* Noun = "line";
  static constexpr auto List = &ProjectState::Lines;
  static constexpr auto Index = &GeometryIndex::Lines;

  static float Third(const AppSettings& settings) { return settings.DefPWidth; }
  static std::int32_t RubberColor(const AppSettings& settings) { return settings.LnColorUns; }
  static LineRec New(LatLon first, LatLon second, const AppSettings& settings) {
    return NewLine(first, second, Third(settings), settings.LnColorUns);
  }
  /// A held key for lines alone. False when there is none.
  static bool EditPoint(const ToolState& tool, ProjectState& project, Selection& selection,
                        Dialogs& dialogs) {
    if (tool.BreakLine) {
      if (SplitLine(project, selection)) dialogs.Beep();
    } else if (tool.WidthDown) {
      ShrinkLinePoint(project);
    } else if (tool.WidthUp) {
      GrowLinePoint(project);
    } else {
      return false;
    }
    return true;
  }
  static const char* KeyHint(const ToolState& tool) {
    if (tool.BreakLine) return "Click a point: cut the line there";
    if (tool.WidthDown) return "Click a point: make the line narrower there";
    if (tool.WidthUp) return "Click a point: make the line wider there";
    return nullptr;
  }
};

template <>
struct PathTool<PolyRec> {
  static constexpr LayerKind Kind = LayerKind::Polys;
  static constexpr CursorShape Cursor = CursorShape::Poly;
  static constexpr const char* Noun = "polygon";
  static constexpr auto List = &ProjectState::Polys;
  static constexpr auto Index = &GeometryIndex::Polys;

  static float Third(const AppSettings& settings) { return static_cast<float>(settings.DefAlt); }
  static std::int32_t RubberColor(const AppSettings& settings) { return settings.PolyColorBorder; }
  static PolyRec New(LatLon first, LatLon second, const AppSettings& settings) {
    return NewPoly(first, second, Third(settings), settings.PolyColorFill);
  }
  static bool EditPoint(const ToolState&, ProjectState&, Selection&, Dialogs&) { return false; }
  static const char* KeyHint(const ToolState&) { return nullptr; }
};

/// What a key held during a click on a vertex does to it. False when no such key is held.
template <class Path>
bool EditSelectedPoint(ModeContext& context) {
  Session& session = context.session;
  const ToolState& tool = session.tool;
  if (!tool.DeletePoints && !tool.BreakLine && !tool.WidthDown && !tool.WidthUp) return false;
  Edit edit(session, context.display, -1);
  Selection& selection = session.tool.Selected;
  if (tool.DeletePoints)
    DeleteSelectedPathPoints(edit.Project().*PathTool<Path>::List, selection);
  else if (!PathTool<Path>::EditPoint(tool, edit.Project(), selection, session.dialogs))
    return false;
  RecountSelection(session.project, selection);
  return true;
}

}  // namespace

template <class Path>
bool PathMode<Path>::IsDrawing() const {
  if (m_first) return true;
  // Commands may have deleted the figure, or appended others behind it: then it is finished.
  return m_item && *m_item + 1 == (TheSession().project.*PathTool<Path>::List).size();
}

template <class Path>
std::size_t PathMode<Path>::PointsDrawn() const {
  if (!IsDrawing()) return 0;
  return m_first ? 1 : (TheSession().project.*PathTool<Path>::List)[*m_item].Points.size();
}

template <class Path>
LatLon PathMode<Path>::LastPoint() const {
  if (m_first) return *m_first;
  const auto& last = (TheSession().project.*PathTool<Path>::List)[*m_item].Points.back();
  return {last.Lat, last.Lon};
}

template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::Press(const PointerInput& in) {
  if (in.button == MouseButton::Left) return PressLeft(in);
  if (in.button != MouseButton::Right) return nullptr;
  if (IsDrawing()) {
    EndFigure();
    m_context.display.DisplayAll();
  } else {
    m_context.menuAt = in.at;
  }
  return nullptr;
}

/// A click near the edge makes its place the centre first. True when the view has moved; the caller repaints.
template <class Path>
bool PathMode<Path>::Recentre(PixelOffset at) {
  ViewState& view = TheSession().view;
  const EditorHost& host = m_context.host;
  if (!IsOutsideCenterBox(view, at, host.ToolbarHeight(), host.StatusBarHeight())) return false;
  PanDisplay(view, at.x, at.y);
  return true;
}

/// Paints once, whatever the press does: in a large project the lines in view take their time.
template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::PressLeft(const PointerInput& in) {
  const bool recentred = Recentre(in.at);
  const PixelOffset at = recentred ? PixelOffset{} : in.at;
  std::unique_ptr<Gesture> gesture;
  bool used = false;
  // The mouse is still where it was pressed, so a drag counts from there.
  if (!IsDrawing()) gesture = PressOnFigures(in, ToWorldPixel(TheSession().view, at), used);
  if (!used) AddPoint(ToLatLon(TheSession().view, at));
  if (recentred)
    m_context.display.DisplayAll();
  else
    m_context.display.RedrawOverlay();
  return gesture;
}

/// A press while no figure is under way; `used` says that it begins none.
template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::PressOnFigures(const PointerInput& in, WorldPixel at, bool& used) {
  Session& session = TheSession();
  used = true;
  if (in.shift) return AddToSelection(in, at);
  ClearSelection(session.project, session.tool);
  if (session.view.Shows(PathTool<Path>::Kind)) {
    Selection& selection = session.tool.Selected;
    auto& paths = session.project.*PathTool<Path>::List;
    const auto pieces = PiecesAt(at);
    if (HitPoint(paths, pieces, at, session.view.Scale, selection))
      return EditSelectedPoint<Path>(m_context) ? nullptr : StartDrag(in);
    if (session.tool.InsertPoints) return InsertPoint(in, at);
    if (HitPath(paths, pieces, at, session.view.Scale, selection)) return StartDrag(in);
  }
  used = false;
  return nullptr;
}

template <class Path>
std::vector<PathPiece> PathMode<Path>::PiecesAt(WorldPixel at) {
  return (m_context.display.Index().*PathTool<Path>::Index)
      .PiecesMeeting(CursorBox(at, TheSession().view.Scale));
}

template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::AddToSelection(const PointerInput& in, WorldPixel at) {
  Session& session = TheSession();
  if (session.view.Shows(PathTool<Path>::Kind))
    HitPath(session.project.*PathTool<Path>::List, PiecesAt(at), at, session.view.Scale,
            session.tool.Selected);
  return session.tool.Selected.SelectionActive ? StartDrag(in) : nullptr;
}

template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::InsertPoint(const PointerInput& in, WorldPixel at) {
  Session& session = TheSession();
  const ViewScale& scale = session.view.Scale;
  const auto hit = FindSegmentAt(session.project.*PathTool<Path>::List, PiecesAt(at), at, scale);
  if (!hit) return nullptr;
  {
    Edit edit(session, m_context.display, -1);
    if (!InsertPathPoint(edit.Project().*PathTool<Path>::List,
                         {at.Y / scale.PixelsPerDegLat, at.X / scale.PixelsPerDegLon}, hit->item, hit->point,
                         session.tool.Selected))
      return nullptr;
  }
  return StartDrag(in);
}

template <class Path>
std::unique_ptr<Gesture> PathMode<Path>::StartDrag(const PointerInput& in) {
  return std::make_unique<MoveDrag>(m_context, in);
}

template <class Path>
void PathMode<Path>::AddPoint(LatLon at) {
  Session& session = TheSession();
  m_mouseKnown = false;
  if (!IsDrawing()) {
    m_item.reset();
    m_first = at;
  } else {
    Edit edit(session, m_context.display, -1, m_first ? UndoPoint::Take : UndoPoint::Share);
    auto& paths = edit.Project().*PathTool<Path>::List;
    if (m_first) {
      paths.push_back(PathTool<Path>::New(*m_first, at, session.settings));
      m_item = paths.size() - 1;
      m_first.reset();
    } else {
      AppendPoint(paths.Edit(*m_item), at, PathTool<Path>::Third(session.settings));
    }
  }
}

/// A figure with too few vertices goes, and leaves nothing to undo.
template <class Path>
void PathMode<Path>::EndFigure() {
  Session& session = TheSession();
  m_first.reset();
  const bool finished = IsDrawing();
  const std::optional<std::size_t> item = std::exchange(m_item, std::nullopt);
  if (!finished) return;
  const auto& paths = session.project.*PathTool<Path>::List;
  if (paths[*item].Points.size() < PathTraits<Path>::LeastPoints) {
    Edit edit(session, m_context.display, -1, UndoPoint::Withdraw);
    (edit.Project().*PathTool<Path>::List).Erase(*item);
    RecountSelection(session.project, session.tool.Selected);  // Invert may have marked it meanwhile
    return;
  }
  Edit edit(session, m_context.display, -1, UndoPoint::Share);
  AutoJoinFigure(session, edit, PathTool<Path>::Kind, *item);
}

template <class Path>
void PathMode<Path>::Hover(const PointerInput& in) {
  m_mouseKnown = true;
  if (!IsDrawing()) return CanvasMode::Hover(in);
  // At once: a timer that each move starts anew would hold the segment still.
  m_context.display.RedrawTop();
}

template <class Path>
void PathMode<Path>::Tick(TimerId timer) {
  if (!IsDrawing()) CanvasMode::Tick(timer);
}

template <class Path>
bool PathMode<Path>::Key(const KeyInput& in) {
  if (in.code != EscapeKey || !IsDrawing()) return false;
  EndFigure();
  m_context.display.DisplayAll();
  return true;
}

template <class Path>
void PathMode<Path>::Leave() {
  EndFigure();
}

template <class Path>
bool PathMode<Path>::Abandon() {
  m_item.reset();
  return std::exchange(m_first, std::nullopt).has_value();
}

template <class Path>
CursorShape PathMode<Path>::Cursor() const {
  return PathTool<Path>::Cursor;
}

template <class Path>
std::string PathMode<Path>::Hint() const {
  const std::string noun = PathTool<Path>::Noun;
  const ToolState& tool = TheSession().tool;
  if (const std::size_t points = PointsDrawn(); points > 0) {
    const bool kept = points >= PathTraits<Path>::LeastPoints;
    return "Click: next point. Right click: " + std::string(kept ? "end the " : "give up the ") + noun;
  }
  if (tool.InsertPoints) return "Click a " + noun + ": insert a point";
  if (tool.DeletePoints) return "Click a point: delete it";
  if (const char* hint = PathTool<Path>::KeyHint(tool)) return hint;
  return "Click: start a " + noun + ". Right click: menu. Ctrl+drag: select";
}

template <class Path>
void PathMode<Path>::Paint(Surface& surface) const {
  if (!IsDrawing() || !m_mouseKnown) return;
  const ViewState& view = TheSession().view;
  const LatLon last = LastPoint();
  const std::array<PixelPoint, 2> rubber{
      HeldPixel(ToCanvas(view, last.lon, last.lat)),
      HeldPixel({view.Mouse.x + view.ScaleWidth / 2.0, view.Mouse.y + view.ScaleHeight / 2.0})};
  surface.SetPen(PathTool<Path>::RubberColor(TheSession().settings));
  surface.Polyline(rubber);
}

template class PathMode<LineRec>;
template class PathMode<PolyRec>;

}  // namespace landsmith
