#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "editor/RingClip.h"
#include "editor/RingRaster.h"

#include <array>

namespace landsmith {

namespace {

/// Pens and marks reach this far outside their ring.
constexpr double HiddenMargin = 8;
constexpr std::int32_t MarkReach = 2;

class PolyPainter {
public:
  /// `quick`: marks go to the surface as pixels, many at a time.
  PolyPainter(Surface& surface, const PaintInput& in, bool quick)
      : m_surface(surface), m_in(in), m_quick(quick), m_frame(FrameOf(in.view, HiddenMargin)) {}

  void Paint(const PolyRec& poly, bool mayHaveSelection) {
    m_canvas.clear();
    for (const PolyPoint& point : poly.Points)
      m_canvas.push_back(ToCanvas(m_in.view, point.Lon, point.Lat));
    PaintRing(poly);
    PaintMarks(poly, mayHaveSelection);
  }

private:
  void PaintRing(const PolyRec& poly) {
    const auto ring = RoundedRing(CutFarParts(WithoutHiddenStretches(m_canvas, m_frame)));
    if (ring.empty()) return;
    const AppSettings& settings = m_in.settings;
    if (CountCrossings(ring, m_surface.Height()) > PainterCrossings) {
      PaintHugeRing(m_surface, ring, {settings.PolyColorBorder, poly.Color, settings.PolyFill});
      return;
    }
    m_surface.SetPen(settings.PolyColorBorder);
    if (settings.PolyFill) {
      m_surface.SetBrush(poly.Color);
      m_surface.Polygon(ring);
      return;
    }
    m_surface.Polyline(ring);
    m_surface.Polyline(std::array<PixelPoint, 2>{ring.back(), ring.front()});
  }

  void PaintMarks(const PolyRec& poly, bool mayHaveSelection) {
    const bool selected = poly.Selected || (mayHaveSelection && HasSelectedPoint(poly));
    if (!selected && m_in.tool.Mode != ModeId::Poly) return;
    for (std::size_t i = 0; i < poly.Points.size(); ++i) {
      if (!PointInView(m_in.view, poly.Points[i].Lon, poly.Points[i].Lat)) continue;
      const bool marked = poly.Selected || poly.Points[i].Selected;
      PaintMark(HeldPixel(m_canvas[i]), marked);
    }
    for (const bool marked : {false, true}) {
      auto& spans = m_spans[marked];
      if (!spans.empty()) m_surface.Spans(spans, MarkColor(marked));
      spans.clear();
    }
  }

  std::int32_t MarkColor(bool marked) const {
    return marked ? m_in.settings.PtColorSel : m_in.settings.PtColorUns;
  }

  void PaintMark(PixelPoint at, bool marked) {
    if (m_quick) return AppendMarkSpans(m_spans[marked], at, MarkReach, true);
    m_surface.SetPen(MarkColor(marked));
    m_surface.SetBrush(MarkColor(marked));
    m_surface.Box(MarkBox(at, MarkReach));
  }

  Surface& m_surface;
  const PaintInput& m_in;
  bool m_quick;
  std::array<std::vector<PixelSpan>, 2> m_spans;  ///< marks of a polygon: of plain vertices, of selected ones
  CanvasFrame m_frame;
  std::vector<CanvasPoint> m_canvas;
};

std::vector<std::uint32_t> PolysInView(const PaintInput& in) {
  const GeoBox area = in.view.VisibleBox();
  std::vector<std::uint32_t> items;
  if (in.part == PaintPart::Moving) {
    items = in.moving->Polys;
    std::erase_if(items, [&](std::uint32_t item) { return !in.project.Polys[item].Box.Meets(area); });
    return items;
  }
  items = in.index != nullptr ? in.index->Polys.Meeting(area) : GeometryIndex(in.project).Polys.Meeting(area);
  if (in.part == PaintPart::Still)
    std::erase_if(items, [&](std::uint32_t item) { return in.moving->PolyFlags[item] != 0; });
  return items;
}

}  // namespace

void DisplayPolys(Surface& surface, const PaintInput& in, std::vector<std::uint8_t>& drawn) {
  const auto& polys = in.project.Polys;
  const bool all = in.part == PaintPart::All;
  if (all) drawn.assign(polys.size(), 0);
  const std::vector<std::uint32_t> inView = PolysInView(in);
  std::size_t vertices = 0;
  for (const std::uint32_t number : inView)
    vertices += polys[number].Points.size();
  PolyPainter painter(surface, in, vertices > ManyVertices);
  for (const std::uint32_t number : inView) {
    const PolyRec& poly = polys[number];
    if (in.settings.HideOtherPolys && poly.Type.starts_with('O')) continue;
    painter.Paint(poly, in.tool.Selected.SelectionActive);
    if (all) drawn[number] = 1;
  }
}

}  // namespace landsmith
