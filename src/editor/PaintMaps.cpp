// The maps: calibrated bitmaps under everything else.
#include "core/Numbers.h"
#include "editor/MapCut.h"
#include "editor/MapView.h"
#include "editor/PaintHelpers.h"
#include "editor/Painters.h"

namespace landsmith {

namespace {

constexpr std::int32_t MapSelectionColor = 65535;
constexpr std::int32_t MostPixels = 1 << 24;  ///< along a side; more is no size of a bitmap
constexpr double MostDegrees = 1e6;           ///< of a side; a damaged file may hold any number

/// A map and the canvas along one axis, from the west or from the north.
struct Axis {
  double MapDegrees, ViewDegrees;
  double PixelsPerDegree;
  std::int32_t SourcePixels, CanvasPixels;
};

struct AxisCut {
  std::int32_t Source = 0, SourceSize = 0;
  float Target = 0, TargetSize = 0;
  float FrameSize = 0;
};

/// `offset`: degrees from the canvas's edge to the map's, negative when the map begins outside.
AxisCut CutAxis(const Axis& axis, float offset) {
  const auto pixels = static_cast<float>(axis.SourcePixels);
  const auto canvas = static_cast<float>(axis.CanvasPixels);
  const auto full = static_cast<float>(axis.MapDegrees * axis.PixelsPerDegree);
  AxisCut cut;
  cut.FrameSize = full;
  float available = canvas;
  if (offset < 0) {
    cut.FrameSize = static_cast<float>(offset * axis.PixelsPerDegree + full);
    const auto outside = static_cast<float>(offset / -axis.MapDegrees * axis.SourcePixels);
    cut.Source = Floor(outside);
    // At or left of the edge, which puts the first whole pixel of the bitmap where it belongs.
    cut.Target = (static_cast<float>(cut.Source) - outside) * full / pixels;
    available = canvas - cut.Target;
  } else {
    cut.Target = static_cast<float>(offset * axis.PixelsPerDegree);
  }
  if (full <= available) {
    cut.SourceSize = axis.SourcePixels;
    cut.TargetSize = full;
    return cut;
  }
  const auto inView = static_cast<float>(axis.ViewDegrees / axis.MapDegrees * axis.SourcePixels);
  cut.SourceSize = Floor(inView) + 2;
  cut.TargetSize = static_cast<float>((static_cast<float>(cut.SourceSize) - inView) * axis.MapDegrees *
                                          axis.PixelsPerDegree / axis.SourcePixels +
                                      canvas);
  return cut;
}

bool IsSize(std::int32_t pixels) {
  return pixels > 0 && pixels <= MostPixels;
}

bool IsBox(const MapLevel& level) {
  return level.NLat > level.SLat && level.ELon > level.WLon && level.NLat < MostDegrees &&
         level.SLat > -MostDegrees && level.ELon < MostDegrees && level.WLon > -MostDegrees;
}

void PaintBitmap(Surface& surface, const PaintInput& in, std::size_t map, const MapCut& cut) {
  const MapPictures& pictures = in.view.Pictures;
  if (map >= pictures.Files.size() || pictures.Files[map].empty()) return;
  // The colours of meshes and of class maps are altitudes and classes.
  const bool exact = LevelOfView(in.view.MapView) > 1;
  surface.ImagePart(pictures.Files[map], cut.Source, cut.Target,
                    exact ? PictureQuality::Exact : PictureQuality::Smooth);
  if (pictures.ChangeColorFrom) surface.ReplaceColor(*pictures.ChangeColorFrom, in.settings.ColorChanged);
}

void PaintFrame(Surface& surface, const PaintInput& in, const MapRec& map, const MapCut& cut) {
  if (!map.Selected && !in.settings.BorderON) return;
  surface.SetPen(map.Selected ? MapSelectionColor : 0, map.Selected ? 2 : 1);
  surface.SetBrush(0, BrushStyle::None);
  const FloatBox& target = cut.Target;
  surface.Box({HeldPixel(target.left), HeldPixel(target.top), HeldPixel(target.left + cut.FrameWidth),
               HeldPixel(target.top + cut.FrameHeight)});
}

}  // namespace

std::optional<MapCut> CutMap(const MapLevel& shown, const ViewState& view) {
  if (!IsBox(shown)) return {};
  if (!Meets(view, {shown.NLat, shown.SLat, shown.WLon, shown.ELon})) return {};
  const bool hasSize = IsSize(shown.COLS) && IsSize(shown.ROWS);
  const AxisCut x = CutAxis({shown.ELon - shown.WLon, view.LonRight - view.LonLeft,
                             view.Scale.PixelsPerDegLon, hasSize ? shown.COLS : 1, view.ScaleWidth},
                            static_cast<float>(shown.WLon - view.LonLeft));
  const AxisCut y = CutAxis({shown.NLat - shown.SLat, view.LatTop - view.LatBottom,
                             view.Scale.PixelsPerDegLat, hasSize ? shown.ROWS : 1, view.ScaleHeight},
                            static_cast<float>(view.LatTop - shown.NLat));
  MapCut cut;
  if (hasSize) cut.Source = {x.Source, y.Source, x.Source + x.SourceSize, y.Source + y.SourceSize};
  cut.Target = {x.Target, y.Target, x.TargetSize, y.TargetSize};
  cut.FrameWidth = x.FrameSize;
  cut.FrameHeight = y.FrameSize;
  return cut;
}

void DisplayMaps(Surface& surface, const PaintInput& in) {
  const auto& maps = in.project.Maps;
  for (std::size_t i = 0; i < maps.size(); ++i) {
    if (!in.Takes(maps[i].Selected)) continue;
    const auto cut = CutMap(maps[i].Level[0], in.view);
    if (!cut) continue;
    PaintBitmap(surface, in, i, *cut);
    PaintFrame(surface, in, maps[i], *cut);
  }
  surface.SetPen(0);
}

}  // namespace landsmith
