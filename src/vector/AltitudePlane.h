// The plane on which the vertices of a sloped polygon lie.
#pragma once

#include "core/GeoTypes.h"

#include <optional>

namespace landsmith {

/// Altitude that changes only along the line between two places.
struct AltitudePlane {
  LatLon Origin;              ///< has the altitude `OriginAltitude`
  double OriginAltitude = 0;  ///< metres
  double MetresPerDegreeLon = 0;
  double RiseEast = 0, RiseNorth = 0;  ///< metres of altitude a metre

  /// In metres, rounded to single precision as vertices hold it.
  float AltitudeAt(LatLon place) const;
};

/// The plane with `altitude1` at `place1` and `altitude2` at `place2`, in metres; equal altitudes give a
/// level one. Nothing for two altitudes at one place: that is a step, which no plane has. Metres per degree
/// of longitude are those of the mean latitude.
std::optional<AltitudePlane> PlaneThrough(LatLon place1, LatLon place2, double altitude1, double altitude2);

}  // namespace landsmith
