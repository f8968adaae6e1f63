#include "editor/PaintHelpers.h"
#include "editor/Painters.h"

#include <array>
#include <cmath>

namespace landsmith {

namespace {

constexpr std::int32_t GridColor = 255;
constexpr float LeastCellPixels = 8;

/// The part of the view that the grid covers, in degrees.
GeoBox GridArea(const PaintInput& in) {
  GeoBox area = in.view.VisibleBox();
  if (!in.project.ClassGridVIEW) return area;
  const ClassWindow& window = in.view.Classes;
  area.NLat = std::min(area.NLat, window.LandNorth);
  area.SLat = std::max(area.SLat, window.LandSouth);
  area.WLon = std::max(area.WLon, window.LandWest);
  area.ELon = std::min(area.ELon, window.LandEast);
  return area;
}

void DrawStroke(Surface& surface, double x1, double y1, double x2, double y2) {
  const std::array<PixelPoint, 2> stroke{HeldPixel({x1, y1}), HeldPixel({x2, y2})};
  surface.Polyline(stroke);
}

void DrawGridLod(Surface& surface, const PaintInput& in, int level) {
  const ViewState& view = in.view;
  const double latStep = std::ldexp(90.0, -level), lonStep = std::ldexp(120.0, -level);
  const auto pixY = static_cast<float>(view.Scale.PixelsPerDegLat * latStep);
  const auto pixX = static_cast<float>(view.Scale.PixelsPerDegLon * lonStep);
  if (pixY < LeastCellPixels || pixX < LeastCellPixels) return;

  const GeoBox area = GridArea(in);
  const double firstRow = std::floor(area.SLat / latStep) + 1, lastRow = std::floor(area.NLat / latStep);
  const double firstColumn = std::floor(area.WLon / lonStep) + 1,
               lastColumn = std::floor(area.ELon / lonStep);

  const double left = (area.WLon - view.LonLeft) * view.Scale.PixelsPerDegLon;
  const double right = view.ScaleWidth - (view.LonRight - area.ELon) * view.Scale.PixelsPerDegLon;
  auto y = static_cast<float>(view.ScaleHeight -
                              (firstRow * latStep - view.LatBottom) * view.Scale.PixelsPerDegLat);
  for (double row = firstRow; row <= lastRow; ++row, y -= pixY)
    DrawStroke(surface, left, y, right, y);

  const double top = (view.LatTop - area.NLat) * view.Scale.PixelsPerDegLat;
  const double bottom = view.ScaleHeight - (area.SLat - view.LatBottom) * view.Scale.PixelsPerDegLat;
  auto x = static_cast<float>((firstColumn * lonStep - view.LonLeft) * view.Scale.PixelsPerDegLon);
  for (double column = firstColumn; column <= lastColumn; ++column, x += pixX)
    DrawStroke(surface, x, top, x, bottom);
}

void DrawLevel(Surface& surface, const PaintInput& in, int level, std::int32_t width, PenStyle style) {
  surface.SetPen(GridColor, width, style);
  DrawGridLod(surface, in, level);
}

}  // namespace

void DisplayGrid(Surface& surface, const PaintInput& in) {
  const int lod = in.view.GridLod;
  if (lod <= 0) return;
  const bool fine = lod >= 13;
  // Coarser levels lie on top of the level asked for, which is dotted unless it is one of them itself.
  if (lod != 5 && lod != 8 && lod != 13) DrawLevel(surface, in, lod, 1, PenStyle::Dot);
  if (fine) DrawLevel(surface, in, 13, 1, PenStyle::Solid);
  if (lod >= 8) DrawLevel(surface, in, 8, fine ? 2 : 1, PenStyle::Solid);
  if (!fine) DrawLevel(surface, in, 5, lod >= 8 ? 2 : 1, PenStyle::Solid);
  surface.SetPen(GridColor);
}

}  // namespace landsmith
