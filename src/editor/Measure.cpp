#include "editor/Measure.h"

#include "core/Grid.h"
#include "core/Numbers.h"
#include "editor/PaintHelpers.h"

#include <array>
#include <cmath>

namespace landsmith {

namespace {

constexpr double DegreesPerRadian = 57.29577951308238;
constexpr double FeetPerMetre = 3.2808;
constexpr double LeastEastMetres = 0.0001;  ///< less counts as due north or south
constexpr std::int32_t CircleColor = 255, LineColor = 16711680;

/// A circle of radius 3, pixel by pixel.
void PaintCircle(Surface& surface, PixelPoint at) {
  constexpr std::array<PixelPoint, 17> ring{{{3, 0},
                                             {3, 1},
                                             {2, 2},
                                             {1, 3},
                                             {0, 3},
                                             {-1, 3},
                                             {-2, 2},
                                             {-3, 1},
                                             {-3, 0},
                                             {-3, -1},
                                             {-2, -2},
                                             {-1, -3},
                                             {0, -3},
                                             {1, -3},
                                             {2, -2},
                                             {3, -1},
                                             {3, 0}}};
  std::array<PixelPoint, ring.size()> placed{};
  for (std::size_t i = 0; i < ring.size(); ++i)
    placed[i] = {at.x + ring[i].x, at.y + ring[i].y};
  surface.Polyline(placed);
}

}  // namespace

Measurement MeasureBetween(LatLon first, LatLon last) {
  Measurement measured;
  measured.Middle = {(last.lat + first.lat) / 2, (last.lon + first.lon) / 2};
  const double dx = MetersPerDegreeLon(measured.Middle.lat) * (last.lon - first.lon);
  const double dy = (last.lat - first.lat) * MetersPerDegreeLat;
  measured.DistanceMetres = std::sqrt(dx * dx + dy * dy);
  if (std::fabs(dx) >= LeastEastMetres)
    measured.HeadingDeg = (dx > 0 ? 90 : 270) - std::atan(dy / dx) * DegreesPerRadian;
  else
    measured.HeadingDeg = dy >= 0 ? 0 : 180;
  return measured;
}

std::string MeasureLabel(const Measurement& measured, const AppSettings& settings) {
  const std::string distance = settings.MeasuringMeters
                                   ? FixedText(measured.DistanceMetres, 3) + " m"
                                   : FixedText(measured.DistanceMetres * FeetPerMetre, 3) + " ft";
  return distance + "\n" + FixedText(measured.HeadingDeg, 3) + " deg\n\n" +
         FormatLatText(measured.Middle.lat, settings.Form()) + "\n" +
         FormatLonText(measured.Middle.lon, settings.Form());
}

Measurement Measure::ToMouse(const ViewState& view) const {
  return MeasureBetween(*m_first, ToLatLon(view, view.Mouse));
}

void Measure::Paint(Surface& surface, const ViewState& view) const {
  if (!m_first) return;
  const LatLon last = ToLatLon(view, view.Mouse);
  const LatLon middle = MeasureBetween(*m_first, last).Middle;
  surface.SetPen(CircleColor);
  for (const LatLon at : {*m_first, last, middle})
    PaintCircle(surface, HeldPixel(ToCanvas(view, at.lon, at.lat)));
  surface.SetPen(LineColor);
  surface.Polyline(std::array<PixelPoint, 2>{HeldPixel(ToCanvas(view, m_first->lon, m_first->lat)),
                                             HeldPixel(ToCanvas(view, last.lon, last.lat))});
}

}  // namespace landsmith
