#include "editor/ViewState.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

constexpr double MaxCenterLat = 80;
constexpr double MaxZoom = 65536, LeastZoomToHalve = 0.0625;

void ClampCenter(ViewState& view) {
  if (std::abs(view.LatDispCenter) <= MaxCenterLat) return;
  view.LatDispCenter = std::copysign(MaxCenterLat, view.LatDispCenter);
  UpdateScale(view);
}

/// Whether the line through two points passes the edges of a strip: `low1` and `high1` are its places on the
/// two edges that lie across its longer axis.
bool PassesBetween(double place1, double place2, double low, double high) {
  return (place1 >= low || place2 >= low) && (place1 <= high || place2 <= high);
}

/// A damaged file may hold any number, or none; the canvas needs a place.
double OnEarth(double degrees, double limit) {
  return std::abs(degrees) <= limit ? degrees : 0;
}

}  // namespace

void UpdateScale(ViewState& view) {
  view.Scale = UpdateScale(view.Zoom, view.LatDispCenter);
}

void SetDisplayExtent(ViewState& view) {
  const double halfWidth = view.ScaleWidth / 2.0 / view.Scale.PixelsPerDegLon;
  const double halfHeight = view.ScaleHeight / 2.0 / view.Scale.PixelsPerDegLat;
  view.LonLeft = view.LonDispCenter - halfWidth;
  view.LonRight = view.LonDispCenter + halfWidth;
  view.LatTop = view.LatDispCenter + halfHeight;
  view.LatBottom = view.LatDispCenter - halfHeight;
}

void PanDisplay(ViewState& view, double dx, double dy) {
  DragDisplay(view, {view.LatDispCenter, view.LonDispCenter}, dx, dy);
}

void DragDisplay(ViewState& view, LatLon savedCenter, double dx, double dy) {
  view.LonDispCenter = savedCenter.lon + dx / view.Scale.PixelsPerDegLon;
  view.LatDispCenter = savedCenter.lat - dy / view.Scale.PixelsPerDegLat;
  ClampCenter(view);
  SetDisplayExtent(view);
}

bool StepZoom(ViewState& view, ZoomStep step) {
  if (step == ZoomStep::In) {
    if (view.Zoom >= MaxZoom) return false;
    view.Zoom *= 2;
  } else {
    if (view.Zoom < LeastZoomToHalve) return false;
    view.Zoom /= 2;
  }
  UpdateScale(view);
  return true;
}

bool IsOutsideCenterBox(const ViewState& view, PixelOffset at, int toolbarHeight, int statusBarHeight) {
  const double w = view.ScaleWidth / 2.2;
  const double h = view.ScaleHeight / 2.0;
  const double lower = (h - statusBarHeight) / 1.2;
  const double upper = (toolbarHeight - h) / 1.2;
  return at.x >= w || at.x <= -w || at.y >= lower || at.y <= upper;
}

LatLon ToLatLon(const ViewState& view, PixelOffset at) {
  return {view.LatDispCenter - at.y / view.Scale.PixelsPerDegLat,
          view.LonDispCenter + at.x / view.Scale.PixelsPerDegLon};
}

WorldPixel ToWorldPixel(const ViewState& view, PixelOffset at) {
  return {view.Scale.PixelsPerDegLon * view.LonDispCenter + at.x,
          view.Scale.PixelsPerDegLat * view.LatDispCenter - at.y};
}

bool PointInView(const ViewState& view, double lon, double lat) {
  return view.LonLeft <= lon && lon <= view.LonRight && lat <= view.LatTop && view.LatBottom <= lat;
}

bool SegmentCrossesView(const ViewState& view, double lon1, double lat1, double lon2, double lat2) {
  if (lat1 > view.LatTop && lat2 > view.LatTop) return false;
  if (lat1 < view.LatBottom && lat2 < view.LatBottom) return false;
  if (lon1 < view.LonLeft && lon2 < view.LonLeft) return false;
  if (lon1 > view.LonRight && lon2 > view.LonRight) return false;
  const double dLat = lat2 - lat1, dLon = lon2 - lon1;
  if (std::abs(dLat) >= std::abs(dLon)) {
    if (dLat == 0) return PointInView(view, lon1, lat1);
    const double atTop = lon1 + (view.LatTop - lat1) * dLon / dLat;
    const double atBottom = lon1 + (view.LatBottom - lat1) * dLon / dLat;
    return PassesBetween(atTop, atBottom, view.LonLeft, view.LonRight);
  }
  const double atLeft = lat1 + (view.LonLeft - lon1) * dLat / dLon;
  const double atRight = lat1 + (view.LonRight - lon1) * dLat / dLon;
  return PassesBetween(atLeft, atRight, view.LatBottom, view.LatTop);
}

CanvasPoint ToCanvas(const ViewState& view, double lon, double lat) {
  return {(lon - view.LonLeft) * view.Scale.PixelsPerDegLon,
          (view.LatTop - lat) * view.Scale.PixelsPerDegLat};
}

PixelOffset ToOffset(const ViewState& view, PixelPoint raw) {
  return {static_cast<float>(raw.x) - static_cast<float>(view.ScaleWidth) / 2,
          static_cast<float>(raw.y) - static_cast<float>(view.ScaleHeight) / 2};
}

int FillSizeOfGrid(int gridLod) {
  if (gridLod == 0 || gridLod >= 13) return 1;
  if (gridLod <= 8) return 32;
  return 1 << (13 - gridLod);
}

void TakeViewFrom(ViewState& view, const ProjectState& project) {
  view.LatDispCenter = OnEarth(project.LatDispCenter, 90);
  view.LonDispCenter = OnEarth(project.LonDispCenter, 540);  // a pan may have gone round
  view.Zoom = project.Zoom > 0 ? std::clamp(project.Zoom, LeastZoomToHalve / 2, MaxZoom) : 1;
  UpdateScale(view);
  PanDisplay(view, 0, 0);
  view.Classes = ClassWindowOf(OnEarth(project.LatLandCenter, 90), OnEarth(project.LonLandCenter, 180));
}

void StoreView(const ViewState& view, ProjectState& project) {
  project.LatDispCenter = view.LatDispCenter;
  project.LonDispCenter = view.LonDispCenter;
  project.Zoom = view.Zoom;
}

}  // namespace landsmith
