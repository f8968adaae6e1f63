#include "vector/PathSelection.h"

#include <cmath>

namespace landsmith {
namespace {

/// Both ends lie on one side of `value`, out of reach of it.
bool OutOfReach(double end1, double end2, double value) {
  return (value > end1 + HitReach && value > end2 + HitReach) ||
         (value < end1 - HitReach && value < end2 - HitReach);
}

}  // namespace

GeoBox CursorBox(WorldPixel at, const ViewScale& scale) {
  return {(at.Y + HitReach) / scale.PixelsPerDegLat, (at.Y - HitReach) / scale.PixelsPerDegLat,
          (at.X - HitReach) / scale.PixelsPerDegLon, (at.X + HitReach) / scale.PixelsPerDegLon};
}

bool NearPoint(double lon, double lat, WorldPixel at, const ViewScale& scale) {
  return std::fabs(scale.PixelsPerDegLon * lon - at.X) <= HitReach &&
         std::fabs(scale.PixelsPerDegLat * lat - at.Y) <= HitReach;
}

bool NearEdge(WorldPixel end1, WorldPixel end2, WorldPixel at) {
  if (OutOfReach(end1.X, end2.X, at.X) || OutOfReach(end1.Y, end2.Y, at.Y)) return false;
  const double dx = end2.X - end1.X, dy = end2.Y - end1.Y;
  if (std::fabs(dy) < std::fabs(dx)) {
    const double y = (at.X - end1.X) * dy / dx + end1.Y;
    return y >= at.Y - HitReach && y <= at.Y + HitReach;
  }
  if (dy == 0) return false;  // both ends are one point
  const double x = dx * (at.Y - end1.Y) / dy + end1.X;
  return x >= at.X - HitReach && x <= at.X + HitReach;
}

bool NearSegment(double lon1, double lat1, double lon2, double lat2, WorldPixel at, const ViewScale& scale) {
  return NearEdge({scale.PixelsPerDegLon * lon1, scale.PixelsPerDegLat * lat1},
                  {scale.PixelsPerDegLon * lon2, scale.PixelsPerDegLat * lat2}, at);
}

bool IsStrictlyInside(const GeoBox& box, const GeoBox& outer) {
  return box.NLat < outer.NLat && box.SLat > outer.SLat && box.WLon > outer.WLon && box.ELon < outer.ELon;
}

}  // namespace landsmith
