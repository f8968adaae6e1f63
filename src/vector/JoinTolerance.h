// How near two vertices must be for lines or polygons to meet there.
#pragma once

#include "core/Grid.h"
#include "core/Settings.h"

#include <cmath>

namespace landsmith {

/// Degrees on each axis.
struct JoinTolerance {
  double Lon = StepLon;
  double Lat = StepLat;
};

/// Three pixels with the setting DisplayJoin, else one step of the grid.
inline JoinTolerance JoinToleranceOf(const AppSettings& settings, const ViewScale& scale) {
  constexpr double pixels = 3;
  if (!settings.DisplayJoin) return {};
  return {pixels / scale.PixelsPerDegLon, pixels / scale.PixelsPerDegLat};
}

template <class Point>
bool AreClose(const Point& a, const Point& b, const JoinTolerance& tolerance) {
  return std::fabs(a.Lon - b.Lon) <= tolerance.Lon && std::fabs(a.Lat - b.Lat) <= tolerance.Lat;
}

}  // namespace landsmith
