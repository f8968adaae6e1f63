// Lines in their true width: one quad a segment, one more where two segments meet.
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "editor/QuadRaster.h"
#include "editor/RingClip.h"

#include <array>
#include <cmath>

namespace landsmith {

namespace {

/// A shorter segment has a direction all the same.
constexpr double LeastLength = 5.744485294117647e-8;
/// Above this many pixels of width the gap between two segments shows, and is filled.
constexpr double LeastJointWidth = 2;
/// A vertex that lies nearer than this to the one before, and is as wide, adds no pixel worth painting.
constexpr double ThinningPixels = 0.5, ThinningHalfWidth = 0.25;

constexpr std::size_t MaxSpans = 16384;

/// The last vertex has a larger, hollow mark, so that the direction shows.
constexpr std::int32_t MarkReach = 2, LastMarkReach = 3;

struct StrokeVertex {
  double x = 0, y = 0;
  double half = 0;  ///< half the width on screen
};

using Quad = std::array<CanvasPoint, 4>;

bool IsSamePlace(const StrokeVertex& a, const StrokeVertex& b) {
  return std::abs(a.x - b.x) < ThinningPixels && std::abs(a.y - b.y) < ThinningPixels &&
         std::abs(a.half - b.half) < ThinningHalfWidth;
}

class LinePainter {
public:
  /// `quick`: small quads go to the surface as pixels, many at a time.
  LinePainter(Surface& surface, const PaintInput& in, bool quick)
      : m_surface(surface), m_in(in), m_quick(quick) {}

  /// `runs`: those of one line that meet the view. True when a segment was drawn.
  bool Paint(const LineRec& line, std::span<const PathPiece> runs) {
    UseColor(line.Selected ? m_in.settings.LnColorSel : line.Color);
    m_joined = m_drawn = m_painted = false;
    std::uint32_t reached = 0;
    for (const PathPiece& run : runs) {
      if (run.first != reached) m_joined = false;
      PaintRun(line, run);
      reached = run.last;
    }
    // Not even a pixel: the line lies within one.
    if (m_drawn && !m_painted) AddPixel(m_start);
    return m_drawn;
  }

  /// Nothing is on the surface for sure before this.
  void Flush() {
    if (!m_spans.empty()) m_surface.Spans(m_spans, m_color);
    m_spans.clear();
  }

  void PaintMarks(const LineRec& line, std::span<const PathPiece> runs, bool anySelected) {
    if (!m_quick) Flush();
    std::size_t next = 0;
    for (const PathPiece& run : runs) {
      for (std::size_t i = std::max<std::size_t>(next, run.first); i <= run.last; ++i)
        PaintMark(line, i, anySelected);
      next = run.last + std::size_t{1};
    }
  }

private:
  StrokeVertex Vertex(const LinePoint& point) const {
    const CanvasPoint at = ToCanvas(m_in.view, point.Lon, point.Lat);
    return {at.x, at.y, point.Wid * m_in.view.Scale.PixelsPerMeter / 2};
  }

  bool IsVisible(const LinePoint& a, const LinePoint& b) const {
    return PointInView(m_in.view, a.Lon, a.Lat) || PointInView(m_in.view, b.Lon, b.Lat) ||
           SegmentCrossesView(m_in.view, a.Lon, a.Lat, b.Lon, b.Lat);
  }

  void PaintRun(const LineRec& line, const PathPiece& run) {
    for (std::size_t i = run.first + std::size_t{1}; i <= run.last; ++i) {
      const LinePoint &from = line.Points[i - 1], &to = line.Points[i];
      if (!IsVisible(from, to)) {
        m_joined = false;
        continue;
      }
      m_drawn = true;
      const StrokeVertex end = Vertex(to);
      if (!m_joined)
        m_start = Vertex(from);
      else if (IsSamePlace(m_start, end))
        continue;
      PaintSegment(end);
      m_start = end;
      m_joined = true;
    }
  }

  /// From m_start. The quad's last two corners are still those of the segment before when the joint is
  /// filled.
  void PaintSegment(const StrokeVertex& end) {
    const double dx = end.x - m_start.x, dy = end.y - m_start.y;
    const double length = std::max(std::sqrt(dx * dx + dy * dy), LeastLength);
    const double ux = dx / length, uy = dy / length;
    m_quad[0] = {m_start.x - m_start.half * uy, m_start.y + m_start.half * ux};
    m_quad[1] = {m_start.x + m_start.half * uy, m_start.y - m_start.half * ux};
    if (m_joined && 2 * m_start.half > LeastJointWidth) FillQuad();
    m_quad[2] = {end.x + end.half * uy, end.y - end.half * ux};
    m_quad[3] = {end.x - end.half * uy, end.y + end.half * ux};
    FillQuad();
  }

  void FillQuad() {
    const auto isFar = [](CanvasPoint at) { return std::abs(at.x) > FarPixel || std::abs(at.y) > FarPixel; };
    if (std::any_of(m_quad.begin(), m_quad.end(), isFar)) {
      const auto cut = RoundedRing(CutFarParts({m_quad.begin(), m_quad.end()}));
      if (!cut.empty()) PaintPolygon(cut);
      return;
    }
    PixelQuad corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
      corners[i] = {RoundPixel(m_quad[i].x), RoundPixel(m_quad[i].y)};
    const bool collapsed = corners[0] == corners[1] && corners[0] == corners[2] && corners[0] == corners[3];
    if (collapsed) return;  // a painter sets no pixel for it either
    if (!m_quick || !IsOnCanvas(corners) || !AppendQuad(corners, m_spans)) PaintPolygon(corners);
    m_painted = true;
  }

  /// A painter cuts the edges that leave the canvas, which turns them a little.
  bool IsOnCanvas(const PixelQuad& corners) const {
    return std::all_of(corners.begin(), corners.end(), [this](PixelPoint at) {
      return at.x >= 0 && at.y >= 0 && at.x < m_in.view.ScaleWidth && at.y < m_in.view.ScaleHeight;
    });
  }

  void PaintPolygon(std::span<const PixelPoint> ring) {
    Flush();
    m_surface.SetPen(m_color);
    m_surface.SetBrush(m_color);
    m_surface.Polygon(ring);
    m_painted = true;
  }

  void AddPixel(const StrokeVertex& at) {
    const PixelPoint pixel = HeldPixel({at.x, at.y});
    m_spans.push_back({pixel.y, pixel.x, pixel.x + 1});
  }

  void UseColor(std::int32_t color) {
    if (color != m_color || m_spans.size() > MaxSpans) Flush();
    m_color = color;
  }

  void PaintMark(const LineRec& line, std::size_t i, bool anySelected) {
    const LinePoint& point = line.Points[i];
    if (!PointInView(m_in.view, point.Lon, point.Lat)) return;
    const bool marked = anySelected && (line.Selected || point.Selected);
    const std::int32_t color = marked ? m_in.settings.PtColorSel : m_in.settings.PtColorUns;
    const PixelPoint at = HeldPixel(ToCanvas(m_in.view, point.Lon, point.Lat));
    const bool last = i + 1 == line.Points.size();
    const std::int32_t reach = last ? LastMarkReach : MarkReach;
    if (m_quick) {
      UseColor(color);
      AppendMarkSpans(m_spans, at, reach, !last);
      return;
    }
    m_surface.SetPen(color);
    m_surface.SetBrush(color, last ? BrushStyle::None : BrushStyle::Solid);
    m_surface.Box(MarkBox(at, reach));
  }

  Surface& m_surface;
  const PaintInput& m_in;
  bool m_quick;
  StrokeVertex m_start;
  Quad m_quad{};
  bool m_joined = false;  ///< m_start and the last two corners are those of a segment painted just before
  bool m_drawn = false;
  bool m_painted = false;  ///< at least a pixel of the line
  std::int32_t m_color = 0;
  std::vector<PixelSpan> m_spans;  ///< in m_color, not yet on the surface
};

/// Of the lines that move, whole ones: the index knows where they lay when the drag began.
std::vector<PathPiece> PiecesInView(const PaintInput& in) {
  const RecordList<LineRec>& lines = in.project.Lines;
  const GeoBox area = in.view.VisibleBox();
  std::vector<PathPiece> pieces;
  if (in.part == PaintPart::Moving) {
    for (const std::uint32_t item : in.moving->Lines) {
      if (lines[item].Points.empty() || !lines[item].Box.Meets(area)) continue;
      pieces.push_back({item, 0, static_cast<std::uint32_t>(lines[item].Points.size() - 1)});
    }
    return pieces;
  }
  pieces = in.index != nullptr ? in.index->Lines.PiecesMeeting(area)
                               : GeometryIndex(in.project).Lines.PiecesMeeting(area);
  if (in.part == PaintPart::Still)
    std::erase_if(pieces, [&](const PathPiece& piece) { return in.moving->LineFlags[piece.item] != 0; });
  return pieces;
}

}  // namespace

void DisplayLines(Surface& surface, const PaintInput& in, std::vector<std::uint8_t>& drawn) {
  const auto& lines = in.project.Lines;
  const bool all = in.part == PaintPart::All;
  if (all) drawn.assign(lines.size(), 0);
  const std::vector<PathPiece> runs = PiecesInView(in);
  std::size_t segments = 0;
  for (const PathPiece& run : runs)
    segments += run.last - run.first;
  LinePainter painter(surface, in, segments > ManyVertices);
  for (std::size_t first = 0, behind = 0; first < runs.size(); first = behind) {
    const std::uint32_t number = runs[first].item;
    while (behind < runs.size() && runs[behind].item == number)
      ++behind;
    const LineRec& line = lines[number];
    const auto lineRuns = std::span(runs).subspan(first, behind - first);
    if (painter.Paint(line, lineRuns) && all) drawn[number] = 1;

    const bool selected = line.Selected || (in.tool.Selected.SelectionActive && HasSelectedPoint(line));
    const bool editing = in.tool.Mode == ModeId::Line && !in.tool.Selected.SelectionActive;
    if (selected || editing) painter.PaintMarks(line, lineRuns, selected);
  }
  painter.Flush();
}

}  // namespace landsmith
