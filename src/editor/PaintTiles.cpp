// Layers of boxes: meshes, photos, area fills, excludes.
#include "core/Color.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"
#include "raster/AreaFill.h"

#include <array>

namespace landsmith {

namespace {

constexpr std::int32_t FillSelectionColor = 65280, HandleColor = 65280;

void HatchedBox(Surface& surface, const PixelBox& box, std::int32_t color) {
  surface.SetPen(color);
  surface.SetBrush(color, BrushStyle::DiagonalCross);
  surface.Box(box);
}

std::int32_t FillColor(const FillRec& fill, const AppSettings& settings) {
  if (fill.Selected) return FillSelectionColor;
  switch (TypeOfFill(fill)) {
    case FillType::Water:
      return settings.PolyWaterColor;
    case FillType::Land:
      return settings.PolyLandColor;
    case FillType::Flatten:
      break;
  }
  return settings.PolyFlattenColor;
}

void DrawEdges(Surface& surface, const PixelBox& box) {
  const std::array<PixelPoint, 5> around{{{box.left, box.top},
                                          {box.right, box.top},
                                          {box.right, box.bottom},
                                          {box.left, box.bottom},
                                          {box.left, box.top}}};
  for (std::size_t side = 0; side < 4; ++side)
    surface.Polyline(std::span(around).subspan(side, 2));
}

/// From 3 pixels before the corner to 4 pixels after it.
void DrawHandle(Surface& surface, std::int32_t x, std::int32_t y) {
  surface.Box({x - 3, y - 3, x + 5, y + 5});
}

}  // namespace

void DisplayMeshes(Surface& surface, const PaintInput& in) {
  for (const MeshRec& mesh : in.project.Meshes) {
    if (!Meets(in.view, mesh.Box)) continue;
    HatchedBox(surface, CanvasBox(in.view, mesh.Box), mesh.Selected ? Rgb(0, 255, 255) : Rgb(0, 255, 0));
  }
}

void DisplayPhotos(Surface& surface, const PaintInput& in) {
  for (const PhotoRec& photo : in.project.Photos) {
    if (!Meets(in.view, photo.Box)) continue;
    HatchedBox(surface, CanvasBox(in.view, photo.Box), photo.Selected ? Rgb(255, 255, 0) : Rgb(0, 255, 0));
  }
}

void PaintFill(Surface& surface, const FillRec& fill, const ViewState& view, const AppSettings& settings) {
  if (!Meets(view, fill.Box)) return;
  surface.SetPen(0);
  surface.SetBrush(FillColor(fill, settings));
  surface.Box(CanvasBox(view, fill.Box));
}

void DisplayFills(Surface& surface, const PaintInput& in) {
  for (const FillRec& fill : in.project.Fills)
    PaintFill(surface, fill, in.view, in.settings);
}

void DisplayExcludes(Surface& surface, const PaintInput& in) {
  const bool editing = in.tool.Mode == ModeId::Exclude;
  for (const ExcludeRec& exclude : in.project.Excludes) {
    if (!in.Takes(exclude.Selected) || !Meets(in.view, exclude.Box)) continue;
    const PixelBox box = CanvasBox(in.view, exclude.Box);
    surface.SetPen(exclude.Selected ? in.settings.ExcColorSel : in.settings.ExcColorUns, editing ? 2 : 1);
    DrawEdges(surface, box);
    if (!editing) continue;
    surface.SetPen(HandleColor);
    surface.SetBrush(HandleColor);
    DrawHandle(surface, box.left, box.top);
    DrawHandle(surface, box.right, box.bottom);
  }
}

}  // namespace landsmith
