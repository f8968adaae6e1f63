#include "vector/PolyOperations.h"

#include "core/Grid.h"
#include "core/Numbers.h"
#include "vector/AltitudePlane.h"
#include "vector/PackedText.h"
#include "vector/PolyType.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

/// Altitudes that differ by less are one altitude.
constexpr float LeastSlopeMetres = 0.01F;
constexpr double TextureSide = 256;

std::size_t CountPairs(std::string_view pairs) {
  std::size_t count = 0;
  while (!pairs.empty()) {
    TakePackedField(pairs);
    ++count;
  }
  return count;
}

std::string TexturePairs(const PolyRec& poly) {
  const double width = poly.Box.ELon - poly.Box.WLon;
  const double height = poly.Box.NLat - poly.Box.SLat;
  // A polygon without extent on an axis has its vertices at 0 there.
  const auto factor = [](double own, double other) {
    return own > 0 ? std::min(own / other, 1.0) * TextureSide / own : 0;
  };
  const double across = factor(width, height);
  const double up = factor(height, width);
  std::string pairs;
  for (const PolyPoint& point : poly.Points) {
    const std::int32_t x = RoundHalfEven((point.Lon - poly.Box.WLon) * across);
    const std::int32_t y = RoundHalfEven((point.Lat - poly.Box.SLat) * up);
    AddPackedField(pairs, std::to_string(x) + ',' + std::to_string(y));
  }
  return pairs;
}

/// The vertex, counted from 0, that the number in a Type text names.
std::optional<std::size_t> NamedPoint(const PolyRec& poly, std::string_view number) {
  const std::optional<std::int32_t> point = ParseInt32(number);
  if (!point || *point < 1 || static_cast<std::size_t>(*point) > poly.Points.size()) return {};
  return static_cast<std::size_t>(*point) - 1;
}

}  // namespace

PolyRec NewPoly(LatLon first, LatLon second, float altitudeMetres, std::int32_t color) {
  PolyRec poly;
  poly.Color = color;
  AppendPoint(poly, first, altitudeMetres);
  AppendPoint(poly, second, altitudeMetres);
  return poly;
}

LineRec MakeLineFromPoly(const PolyRec& poly, float widthMetres, std::int32_t color) {
  LineRec line;
  line.Color = color;
  for (const PolyPoint& point : poly.Points)
    AppendPoint(line, {point.Lat, point.Lon}, widthMetres);
  if (!line.Points.empty()) line.Points.push_back(line.Points.front());
  return line;
}

void SetPolyAltitude(PolyRec& poly, float altitudeMetres) {
  for (PolyPoint& point : poly.Points)
    point.Alt = altitudeMetres;
}

void SetPolyPlane(PolyRec& poly, std::size_t point1, std::size_t point2, float altitude1, float altitude2) {
  const PolyPoint& p1 = poly.Points[point1];
  const PolyPoint& p2 = poly.Points[point2];
  const auto plane = PlaneThrough({p1.Lat, p1.Lon}, {p2.Lat, p2.Lon}, static_cast<double>(altitude1),
                                  static_cast<double>(altitude2));
  if (!plane) return;
  for (PolyPoint& point : poly.Points)
    point.Alt = plane->AltitudeAt({point.Lat, point.Lon});
}

void ApplyPlaneAltitudes(PolyRec& poly) {
  const PolyType type = DecodePolyType(poly.Type);
  const auto* lwm = std::get_if<LwmPolyType>(&type);
  if (lwm == nullptr) return;
  const auto point1 = NamedPoint(poly, lwm->HighestPoint);
  const auto point2 = NamedPoint(poly, lwm->LowestPoint);
  if (!point1 || !point2) return;
  const float altitude1 = poly.Points[*point1].Alt;
  const float altitude2 = poly.Points[*point2].Alt;
  if (std::fabs(altitude1 - altitude2) < LeastSlopeMetres) return;
  SetPolyPlane(poly, *point1, *point2, altitude1, altitude2);
}

void UpdateLWMType(PolyRec& poly) {
  PolyType type = DecodePolyType(poly.Type);
  auto* lwm = std::get_if<LwmPolyType>(&type);
  if (lwm == nullptr || poly.Points.empty()) return;
  std::size_t highest = 0;
  std::size_t lowest = 0;
  for (std::size_t k = 1; k < poly.Points.size(); ++k) {
    if (poly.Points[k].Alt > poly.Points[highest].Alt)
      highest = k;
    else if (poly.Points[k].Alt < poly.Points[lowest].Alt)
      lowest = k;
  }
  const float top = poly.Points[highest].Alt;
  const float bottom = poly.Points[lowest].Alt;
  const std::optional<double> oldTop = ParseNumber(lwm->Highest);
  if (top == bottom && oldTop && oldTop == ParseNumber(lwm->Lowest)) {
    // A level polygon keeps the one altitude that its author gave it: with the lowest alone taken from the
    // text it would become a slope between a vertex and itself.
    lwm->Highest = lwm->Lowest = NumberText(*oldTop);
  } else {
    lwm->Highest = NumberText(top);
    lwm->Lowest = NumberText(bottom);
  }
  lwm->HighestPoint = std::to_string(highest + 1);
  lwm->LowestPoint = std::to_string(lowest + 1);
  poly.Type = EncodePolyType(type);
}

void SetTexCoords(PolyRec& poly, bool force) {
  PolyType type = DecodePolyType(poly.Type);
  auto* tex = std::get_if<TexPolyType>(&type);
  if (tex == nullptr) return;
  if (!force && CountPairs(tex->Pairs) == poly.Points.size()) return;
  tex->Pairs = TexturePairs(poly);
  poly.Type = EncodePolyType(type);
}

void PointsChanged(PolyRec& poly) {
  UpdateLWMType(poly);
  SetTexCoords(poly, false);
}

void PointsMoved(PolyRec& poly) {
  ApplyPlaneAltitudes(poly);
  UpdateLWMType(poly);
}

int SnapPolyToGrid(PolyRec& poly) {
  constexpr std::size_t least = PathTraits<PolyRec>::LeastPoints;
  if (poly.Points.size() < least) return -3;
  std::vector<PolyPoint> kept;
  int dropped = 0;
  for (PolyPoint point : poly.Points) {
    const LatLon at = PointInAreaToLatLon(ComputeGridPosition(point.Lat, point.Lon));
    point.Lat = at.lat;
    point.Lon = at.lon;
    if (kept.empty() || !SamePlace(point, kept.back())) {
      kept.push_back(point);
      continue;
    }
    if (poly.Points.size() - static_cast<std::size_t>(dropped) <= least) return -3 - dropped;
    ++dropped;
  }
  if (kept.size() > 1 && SamePlace(kept.front(), kept.back())) {
    if (kept.size() <= least) return -3 - dropped;
    kept.pop_back();
    ++dropped;
  }
  poly.Points = std::move(kept);
  SetPathBounds(poly);
  if (dropped > 0) PointsChanged(poly);
  return dropped;
}

}  // namespace landsmith
