// The check of one line or polygon.
#pragma once

#include "compile/Findings.h"
#include "core/Records.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace landsmith {

/// Takes the findings of one item.
class ItemFindings {
public:
  ItemFindings(std::vector<Finding>& all, std::string_view kind, std::size_t item)
      : m_all(all), m_kind(kind), m_item(item) {}
  void Error(LatLon at, std::string text) { Add(FindingSeverity::Error, at, std::move(text)); }
  void Warn(LatLon at, std::string text) { Add(FindingSeverity::Warning, at, std::move(text)); }

private:
  void Add(FindingSeverity severity, LatLon at, std::string text) {
    m_all.push_back({severity, m_kind, m_item, at, std::move(text)});
  }

  std::vector<Finding>& m_all;
  std::string_view m_kind;
  std::size_t m_item;
};

/// `shift`: what the settings add to the vertices of vector terrain, in degrees.
void CheckItem(const LineRec& line, LatLon shift, ItemFindings& found);
void CheckItem(const PolyRec& poly, LatLon shift, ItemFindings& found);
void CheckItem(const FillRec& fill, ItemFindings& found);

/// Of a land or water mask, in metres.
void CheckMaskAltitude(float metres, LatLon at, ItemFindings& found);

/// Layer and texture of a line or polygon of vector terrain; `at` is where the item lies.
void CheckVtpFields(const std::string& layer, const std::string& texture, LatLon at, ItemFindings& found);

/// From the settings VTPShiftNS and VTPShiftWE.
LatLon VtpShift(const AppSettings& settings);

inline bool IsInWorld(LatLon at) {  ///< sides included; no place is one without a number
  return at.lat >= -90 && at.lat <= 90 && at.lon >= -180 && at.lon <= 180;
}

/// Where the item is shown that has no better place: its first vertex in the world.
template <class Point>
LatLon PlaceOf(const std::vector<Point>& points) {
  for (const Point& point : points)
    if (IsInWorld({point.Lat, point.Lon})) return {point.Lat, point.Lon};
  return {};
}

/// Whether all vertices lie in the world, moved by `shift` and without; otherwise says so.
template <class Point>
bool CheckPlaces(const std::vector<Point>& points, LatLon shift, ItemFindings& found) {
  std::size_t outside = 0, shiftedOut = 0;
  for (const Point& point : points)
    if (!IsInWorld({point.Lat, point.Lon}))
      ++outside;
    else if (!IsInWorld({point.Lat + shift.lat, point.Lon + shift.lon}))
      ++shiftedOut;
  if (outside == 0 && shiftedOut == 0) return true;
  if (outside == 0) {
    found.Error(PlaceOf(points), "The shift of the settings takes vertices out of the world.");
    return false;
  }
  found.Error(PlaceOf(points), outside == 1 ? "A vertex lies outside the world."
                                            : std::to_string(outside) + " vertices lie outside the world.");
  return false;
}

}  // namespace landsmith
