#include "core/Color.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "editor/RingClip.h"

#include <array>
#include <cmath>
#include <utility>

namespace landsmith {

namespace {

constexpr std::int32_t MarkColor = Rgb(230, 0, 126), RimColor = Rgb(255, 255, 255);
constexpr std::int32_t MarkWidth = 3, RimWidth = 7;
constexpr double PlaceRadius = 16;
constexpr std::size_t PlaceCorners = 24;
constexpr double HiddenMargin = 2 * RimWidth;

/// A line becomes the ring there and back, so that both are cut and drawn alike.
template <class Path>
std::vector<PixelPoint> OutlineOf(const Path& path, const ViewState& view, bool isClosed) {
  std::vector<CanvasPoint> ring;
  for (const auto& point : path.Points)
    ring.push_back(ToCanvas(view, point.Lon, point.Lat));
  if (!isClosed) {
    const std::vector<CanvasPoint> back(ring.rbegin(), ring.rend());
    ring.insert(ring.end(), back.begin(), back.end());
  }
  auto outline = RoundedRing(CutFarParts(WithoutHiddenStretches(ring, FrameOf(view, HiddenMargin))));
  if (!outline.empty()) outline.push_back(outline.front());
  return outline;
}

std::vector<PixelPoint> OutlineOf(const Finding& finding, const ProjectState& project,
                                  const ViewState& view) {
  if (finding.Kind == LineFinding && finding.Item < project.Lines.size())
    return OutlineOf(project.Lines[finding.Item], view, false);
  if (finding.Kind == PolyFinding && finding.Item < project.Polys.size())
    return OutlineOf(project.Polys[finding.Item], view, true);
  return {};
}

std::array<PixelPoint, PlaceCorners + 1> CircleAround(CanvasPoint middle) {
  constexpr double step = 2 * 3.141592653589793 / PlaceCorners;
  std::array<PixelPoint, PlaceCorners + 1> circle{};
  for (std::size_t i = 0; i < circle.size(); ++i) {
    const double angle = step * static_cast<double>(i);
    circle[i] = HeldPixel(
        CanvasPoint{middle.x + PlaceRadius * std::cos(angle), middle.y + PlaceRadius * std::sin(angle)});
  }
  return circle;
}

}  // namespace

void PaintFinding(Surface& surface, const Finding& finding, const ProjectState& project,
                  const ViewState& view) {
  const std::vector<PixelPoint> outline = OutlineOf(finding, project, view);
  const auto circle = CircleAround(ToCanvas(view, finding.At.lon, finding.At.lat));
  for (const auto& [color, width] : {std::pair{RimColor, RimWidth}, std::pair{MarkColor, MarkWidth}}) {
    surface.SetPen(color, width);
    surface.Polyline(outline);
    surface.Polyline(circle);
  }
  surface.SetPen(0);
}

}  // namespace landsmith
