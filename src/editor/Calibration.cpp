#include "editor/Calibration.h"

#include "editor/MapView.h"

#include <cmath>

namespace landsmith {

namespace {

constexpr CalibrationRefusal BadPlaces{CheckPlacesText};
constexpr CalibrationRefusal BadX{"Check X Pixel Values"}, BadY{"Check Y Pixel Values"};
constexpr float LeastPixels = 2;

bool IsOnEarth(LatLon at) {
  return at.lat >= -90 && at.lat <= 90 && at.lon >= -180 && at.lon <= 180;
}

/// Also false for what is no number.
bool AreApart(float a, float b) {
  return std::abs(b - a) >= LeastPixels;
}

struct DegreesPerPixel {
  double Lat, Lon;
};

DegreesPerPixel ScaleOf(const CalibrationInput& in) {
  const double x = static_cast<double>(in.Second.X) - in.First.X;
  const double y = static_cast<double>(in.Second.Y) - in.First.Y;
  const auto lat = [&] { return (in.First.Place.lat - in.Second.Place.lat) / y; };
  const auto lon = [&] { return (in.Second.Place.lon - in.First.Place.lon) / x; };
  switch (in.Axis) {
    case CalibrationAxis::Lat:
      return {lat(), in.Scale.PixelsPerDegLat * lat() / in.Scale.PixelsPerDegLon};
    case CalibrationAxis::Lon:
      return {in.Scale.PixelsPerDegLon * lon() / in.Scale.PixelsPerDegLat, lon()};
    case CalibrationAxis::Both:
      break;
  }
  return {lat(), lon()};
}

}  // namespace

std::variant<GeoBox, CalibrationRefusal> Calibrate(const CalibrationInput& in) {
  const CalibrationPoint &a = in.First, &b = in.Second;
  if (!IsOnEarth(a.Place) || !IsOnEarth(b.Place)) return BadPlaces;
  if (in.Axis != CalibrationAxis::Lon && !AreApart(a.Y, b.Y)) return BadY;
  if (in.Axis != CalibrationAxis::Lat && !AreApart(a.X, b.X)) return BadX;
  const DegreesPerPixel degrees = ScaleOf(in);
  const double lat = (a.Place.lat + b.Place.lat) / 2, lon = (a.Place.lon + b.Place.lon) / 2;
  const double x = (static_cast<double>(a.X) + b.X) / 2, y = (static_cast<double>(a.Y) + b.Y) / 2;
  const GeoBox box{lat + y * degrees.Lat, lat - (in.Rows - y) * degrees.Lat, lon - x * degrees.Lon,
                   lon + (in.Cols - x) * degrees.Lon};
  // Mixed up points would turn the map over, and it would never be seen again.
  if (!(box.NLat > box.SLat) || !(box.ELon > box.WLon)) return BadPlaces;
  return box;
}

void StoreCalibration(MapRec& map, std::string_view mapView, const GeoBox& box) {
  for (const std::size_t place : {std::size_t{0}, LevelOfView(mapView)}) {
    MapLevel& level = map.Level[place];
    level.NLat = box.NLat;
    level.SLat = box.SLat;
    level.WLon = box.WLon;
    level.ELon = box.ELon;
  }
}

std::optional<CalibrationPoint> PixelOnMap(const MapLevel& shown, LatLon at) {
  if (!GeoBox{shown.NLat, shown.SLat, shown.WLon, shown.ELon}.Holds(at)) return {};
  const double down = (shown.NLat - at.lat) / (shown.NLat - shown.SLat);
  const double right = (at.lon - shown.WLon) / (shown.ELon - shown.WLon);
  return CalibrationPoint{at, static_cast<float>(shown.COLS * right), static_cast<float>(shown.ROWS * down)};
}

}  // namespace landsmith
