// Where a bitmap lies, worked out from two of its pixels whose places on the earth are known.
#pragma once

#include "core/GeoTypes.h"
#include "core/Grid.h"
#include "core/Records.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace landsmith {

/// Which axis the scale is taken from. With one alone the pixels are taken to be square on the display.
enum class CalibrationAxis { Both, Lat, Lon };

struct CalibrationPoint {
  LatLon Place;
  float X = 0, Y = 0;  ///< pixels from the bitmap's north-west corner
};

struct CalibrationInput {
  CalibrationPoint First, Second;
  CalibrationAxis Axis = CalibrationAxis::Both;
  std::int32_t Cols = 0, Rows = 0;
  ViewScale Scale;  ///< of the display at its present centre
};

/// What is to be told when the points do not make a calibration.
struct CalibrationRefusal {
  std::string_view Message;
};

/// Told when a text is no latitude or longitude.
inline constexpr std::string_view CheckPlacesText = "Check Latitude & Longitude Values";

/// The box of the whole bitmap, or the refusal: latitudes or longitudes beyond the earth or such that north
/// would lie below south; pixels less than 2 apart on an axis that counts.
std::variant<GeoBox, CalibrationRefusal> Calibrate(const CalibrationInput& input);

/// Stores the box as what is seen and as the calibration of the view.
void StoreCalibration(MapRec& map, std::string_view mapView, const GeoBox& box);

/// The pixel of a place by the map's present calibration, x to the right and y down; sides included.
/// Nothing for a place that is not on the map.
std::optional<CalibrationPoint> PixelOnMap(const MapLevel& shown, LatLon at);

}  // namespace landsmith
