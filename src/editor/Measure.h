// Measuring on the canvas: distance, heading and middle between a first click and the mouse.
#pragma once

#include "core/GeoTypes.h"
#include "core/Settings.h"
#include "editor/ViewState.h"
#include "platform/Surface.h"

#include <optional>
#include <string>

namespace landsmith {

struct Measurement {
  double DistanceMetres = 0;
  double HeadingDeg = 0;  ///< 0 north, 90 east
  LatLon Middle;
};
/// On a plane as true as it is at the middle.
Measurement MeasureBetween(LatLon first, LatLon last);
/// Five lines: distance in metres or feet, heading, nothing, latitude and longitude of the middle.
std::string MeasureLabel(const Measurement& measured, const AppSettings& settings);

class Measure {
public:
  /// The first click begins at this place, the second one ends there.
  void Click(LatLon at) { m_first = Started() ? std::nullopt : std::optional(at); }
  void Stop() { m_first.reset(); }
  bool Started() const { return m_first.has_value(); }

  /// From the first click to the mouse. Only while Started.
  Measurement ToMouse(const ViewState& view) const;
  /// The line to the mouse and circles at its ends and middle, while Started.
  void Paint(Surface& surface, const ViewState& view) const;

private:
  std::optional<LatLon> m_first;
};

}  // namespace landsmith
