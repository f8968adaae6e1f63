#include "vector/AltitudePlane.h"

#include "core/Grid.h"

namespace landsmith {

float AltitudePlane::AltitudeAt(LatLon place) const {
  const double east = MetresPerDegreeLon * place.lon - MetresPerDegreeLon * Origin.lon;
  const double north = MetersPerDegreeLat * place.lat - MetersPerDegreeLat * Origin.lat;
  return static_cast<float>(OriginAltitude + RiseEast * east + RiseNorth * north);
}

std::optional<AltitudePlane> PlaneThrough(LatLon place1, LatLon place2, double altitude1, double altitude2) {
  AltitudePlane plane;
  plane.Origin = place1;
  plane.OriginAltitude = altitude1;
  plane.MetresPerDegreeLon = MetersPerDegreeLon((place1.lat + place2.lat) / 2);
  const double rise = altitude1 - altitude2;
  if (rise == 0) return plane;
  const double dx = plane.MetresPerDegreeLon * place1.lon - plane.MetresPerDegreeLon * place2.lon;
  const double dy = MetersPerDegreeLat * place1.lat - MetersPerDegreeLat * place2.lat;
  const double distance2 = dx * dx + dy * dy;
  if (distance2 == 0) return std::nullopt;
  plane.RiseEast = dx * rise / distance2;
  plane.RiseNorth = dy * rise / distance2;
  return plane;
}

}  // namespace landsmith
