#include "compile/ItemFindings.h"
#include "core/Grid.h"
#include "core/Numbers.h"
#include "vector/LineType.h"
#include "vector/PolyType.h"
#include "vector/RingCrossing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <variant>

namespace landsmith {
namespace {

/// A ring in whole numbers and the way back to the map.
struct WholeRing {
  std::vector<RingVertex> Vertices;
  LatLon Origin;                    ///< of 0, 0
  double LatUnit = 0, LonUnit = 0;  ///< degrees a unit of Y and of X

  LatLon At(const RingPlace& place) const {
    return {Origin.lat + place.Y * LatUnit, Origin.lon + place.X * LonUnit};
  }
};

constexpr std::int32_t PointsOfCell = CellPointMax - CellPointMin;

/// On the Points of the grid, which are the same for Areas and for Cells.
WholeRing RingOnPoints(const std::vector<PolyPoint>& points, LatLon shift) {
  WholeRing ring{
      {}, {90 - shift.lat, -180 - shift.lon}, -CellHeight / PointsOfCell, CellWidth / PointsOfCell};
  ring.Vertices.reserve(points.size());
  for (const PolyPoint& point : points) {
    const GridPositionCell at = GridPositionToCellPoint(point.Lat + shift.lat, point.Lon + shift.lon);
    const RingVertex vertex{at.CellX * PointsOfCell + at.PointX - CellPointMin,
                            at.CellY * PointsOfCell + at.PointY - CellPointMin};
    if (ring.Vertices.empty() || vertex != ring.Vertices.back()) ring.Vertices.push_back(vertex);
  }
  while (ring.Vertices.size() > 1 && ring.Vertices.back() == ring.Vertices.front())
    ring.Vertices.pop_back();
  return ring;
}

/// As it is drawn, as finely as the search for crossings can tell places apart.
WholeRing RingAsDrawn(const std::vector<PolyPoint>& points) {
  GeoBox box;
  for (const PolyPoint& point : points)
    box.Add(point.Lat, point.Lon);
  const double half = std::max({box.NLat - box.SLat, box.ELon - box.WLon, HalfStepLat}) / 2;
  const double unit = half / LargestRingCoordinate;
  WholeRing ring{{}, {(box.NLat + box.SLat) / 2, (box.WLon + box.ELon) / 2}, unit, unit};
  ring.Vertices.reserve(points.size());
  for (const PolyPoint& point : points)
    ring.Vertices.push_back({RoundHalfEven((point.Lon - ring.Origin.lon) / unit),
                             RoundHalfEven((point.Lat - ring.Origin.lat) / unit)});
  return ring;
}

void CheckShape(const WholeRing& ring, LatLon at, const char* collapsed, ItemFindings& found) {
  if (const auto crossing = FindRingCrossing(ring.Vertices))
    found.Warn(ring.At(*crossing), "The polygon crosses itself: what is compiled of it may have holes.");
  else if (ring.Vertices.size() < 3 || TwiceRingArea(ring.Vertices) == 0)
    found.Warn(at, collapsed);
}

std::string Metres(float altitude) {
  return NumberText(altitude) + " m";
}

class PolyCheck {
public:
  PolyCheck(const PolyRec& poly, LatLon shift, ItemFindings& found)
      : m_poly(poly), m_shift(shift), m_found(found), m_at(PlaceOf(poly.Points)) {}

  void operator()(const PlainPoly&) {}
  void operator()(const UnknownPolyType& unknown) {
    const std::string_view head = TypeHead(unknown.Text);
    if (head == "LWM")
      m_found.Error(m_at, "The polygon is to be land, water or flatten, and its type names none of them.");
    else if (head == "Other")
      m_found.Error(m_at, "The layers that the polygon excludes cannot be read.");
    else
      return;
    CheckOnPoints({});
  }
  void operator()(const LwmPolyType& type) {
    CheckAltitudes(type);
    CheckOnPoints({});
  }
  void operator()(const VtpPolyType& type) {
    CheckVtpFields(type.Layer, type.Texture, m_at, m_found);
    CheckOnPoints(m_shift);
  }
  void operator()(const ExclusionPolyType& type) {
    if (LayersOfMasks(type.Masks).empty()) m_found.Warn(m_at, "The polygon excludes no layer.");
    CheckOnPoints({});
  }
  void operator()(const TexPolyType& type) {
    CheckTexFields(type);
    CheckVertexAltitudes();
    if (CheckPlaces(m_poly.Points, m_found))
      CheckShape(RingAsDrawn(m_poly.Points), m_at, "The polygon has no area: nothing of it can be seen.",
                 m_found);
  }

private:
  void CheckOnPoints(LatLon shift) {
    if (CheckPlaces(m_poly.Points, m_found))
      CheckShape(RingOnPoints(m_poly.Points, shift), m_at,
                 "The polygon has no area on the grid: nothing is compiled of it.", m_found);
  }

  void CheckAltitudes(const LwmPolyType& type) {
    const auto highest = ParseFloat(type.Highest), lowest = ParseFloat(type.Lowest);
    if (!highest || !lowest) {
      m_found.Error(m_at, "The altitude \"" + (highest ? type.Lowest : type.Highest) + "\" is no number.");
    } else if (*ParseNumber(type.Highest) == *ParseNumber(type.Lowest)) {
      if (!IsLevel())
        m_found.Warn(m_at, "The polygon is compiled level at " + Metres(*highest) +
                               ", but its vertices have different altitudes.");
    } else {
      CheckVertexAltitudes();
      CheckSlope(type, Metres(*highest), Metres(*lowest));
    }
  }

  void CheckSlope(const LwmPolyType& type, const std::string& highest, const std::string& lowest) {
    const PolyPoint* high = VertexOf(type.HighestPoint);
    const PolyPoint* low = VertexOf(type.LowestPoint);
    const std::string slope = "The slope from " + highest + " to " + lowest;
    if (!high || !low)
      m_found.Error(m_at, slope + " is given at vertices " + type.HighestPoint + " and " + type.LowestPoint +
                              ", but the polygon has " + std::to_string(m_poly.Points.size()) + ".");
    else if (high->Lat == low->Lat && high->Lon == low->Lon)
      m_found.Error({high->Lat, high->Lon}, slope + " begins and ends at one place.");
    else if (IsLevel())
      m_found.Warn(m_at, slope + " has all its vertices at " + Metres(high->Alt) + ".");
    else if (high->Alt == low->Alt)
      m_found.Warn({high->Lat, high->Lon},
                   slope + " begins and ends at vertices of " + Metres(high->Alt) + ".");
  }

  const PolyPoint* VertexOf(const std::string& text) const {
    const auto number = ParseInt32(text);
    if (!number || *number < 1 || *number > std::ssize(m_poly.Points)) return nullptr;
    return &m_poly.Points[static_cast<std::size_t>(*number) - 1];
  }

  void CheckVertexAltitudes() {
    const auto odd = std::find_if(m_poly.Points.begin(), m_poly.Points.end(),
                                  [](const PolyPoint& point) { return !std::isfinite(point.Alt); });
    if (odd == m_poly.Points.end()) return;
    const LatLon at{odd->Lat, odd->Lon};
    m_found.Error(IsInWorld(at) ? at : m_at, "A vertex has an altitude that is no number.");
  }

  void CheckTexFields(const TexPolyType& type) {
    if (!ParseInt32(type.TileX) || !ParseInt32(type.TileY))
      m_found.Error(m_at, "The texture is repeated \"" + type.TileX + "\" by \"" + type.TileY +
                              "\" times, which are no whole numbers.");
    if (!ParseInt32(type.Priority))
      m_found.Error(m_at, "The priority \"" + type.Priority + "\" is no whole number.");
    if (!ParseNumber(type.V1))
      m_found.Error(m_at, "The visibility \"" + type.V1 + "\" is no number of metres.");
    if (!ParseInt32(type.Night))
      m_found.Error(m_at, "The mark for a night texture is \"" + type.Night + "\", no number.");
  }

  bool IsLevel() const {
    return std::all_of(m_poly.Points.begin(), m_poly.Points.end(),
                       [&](const PolyPoint& point) { return point.Alt == m_poly.Points.front().Alt; });
  }

  const PolyRec& m_poly;
  LatLon m_shift;
  ItemFindings& m_found;
  LatLon m_at;
};

}  // namespace

void CheckItem(const PolyRec& poly, LatLon shift, ItemFindings& found) {
  std::visit(PolyCheck(poly, shift, found), DecodePolyType(poly.Type));
}

}  // namespace landsmith
