// Positions and boxes in degrees, WGS84, north and east positive.
#pragma once

#include <algorithm>

namespace landsmith {

struct LatLon {
  double lat = 0;
  double lon = 0;
  bool operator==(const LatLon&) const = default;
};

/// A box in degrees. A fresh one holds nothing and grows with what is added to it.
struct GeoBox {
  double NLat = -90;
  double SLat = 90;
  double WLon = 180;
  double ELon = -180;

  bool operator==(const GeoBox&) const = default;

  void Add(double lat, double lon) {
    if (lat > NLat) NLat = lat;
    if (lat < SLat) SLat = lat;
    if (lon > ELon) ELon = lon;
    if (lon < WLon) WLon = lon;
  }
  void Add(const GeoBox& other) {
    NLat = std::max(NLat, other.NLat);
    SLat = std::min(SLat, other.SLat);
    WLon = std::min(WLon, other.WLon);
    ELon = std::max(ELon, other.ELon);
  }
  /// Touching counts as meeting.
  bool Meets(const GeoBox& other) const {
    return SLat <= other.NLat && NLat >= other.SLat && WLon <= other.ELon && ELon >= other.WLon;
  }
  bool Holds(LatLon at) const {  ///< sides included
    return at.lat <= NLat && at.lat >= SLat && at.lon >= WLon && at.lon <= ELon;
  }
};

}  // namespace landsmith
