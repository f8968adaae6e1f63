#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "editor/RingClip.h"
#include "editor/RingRaster.h"

#include <array>
#include <optional>

namespace landsmith {

namespace {

/// Pens and marks reach this far outside their ring.
constexpr double HiddenMargin = 8;

class PolyPainter {
public:
  PolyPainter(Surface& surface, const PaintInput& in)
      : m_surface(surface), m_in(in), m_frame(FrameOf(in.view, HiddenMargin)) {}

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
      const std::int32_t color = marked ? m_in.settings.PtColorSel : m_in.settings.PtColorUns;
      m_surface.SetPen(color);
      m_surface.SetBrush(color);
      m_surface.Box(MarkBox(HeldPixel(m_canvas[i]), 2));
    }
  }

  Surface& m_surface;
  const PaintInput& m_in;
  CanvasFrame m_frame;
  std::vector<CanvasPoint> m_canvas;
};

}  // namespace

void DisplayPolys(Surface& surface, const PaintInput& in, std::vector<std::uint8_t>& drawn) {
  const auto& polys = in.project.Polys;
  if (!in.tool.Dragging || drawn.size() != polys.size()) drawn.assign(polys.size(), 0);
  std::optional<GeometryIndex> own;
  const GeometryIndex& index = in.index != nullptr ? *in.index : own.emplace(in.project);
  PolyPainter painter(surface, in);
  for (const std::uint32_t number : index.PolyBoxes().Meeting(in.view.VisibleBox())) {
    const PolyRec& poly = polys[number];
    if (in.settings.HideOtherPolys && poly.Type.starts_with('O')) continue;
    painter.Paint(poly, in.tool.Selected.SelectionActive || index.PolyHadSelection(number));
    if (!in.tool.Dragging) drawn[number] = 1;
  }
}

}  // namespace landsmith
