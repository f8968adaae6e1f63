#include "compile/CutRing.h"
#include "compile/ItemFindings.h"
#include "compile/PolyClip.h"
#include "compile/RingSquares.h"
#include "compile/TexSurface.h"
#include "core/Grid.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/RuntimeError.h"
#include "vector/LineType.h"
#include "vector/PackedText.h"
#include "vector/PolyType.h"
#include "vector/RingCrossing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
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

/// What a LayerCall statement takes.
constexpr std::int32_t LastTexPriority = 255;

/// A field that goes into the text as it stands: the tool wants digits.
bool IsTakenAsWritten(std::string_view field, std::int32_t largest) {
  const std::string_view digits = Trim(field);
  const auto number = ParseInt32(digits);
  return number && *number <= largest && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

/// What the statements of a mask take: points of one piece, metres.
constexpr std::size_t MostMaskPoints = 318;
constexpr float LowestMaskAltitude = -32768, MaskAltitudesEnd = 32768;

bool IsMaskAltitude(float metres) {
  return metres >= LowestMaskAltitude && metres < MaskAltitudesEnd;
}

/// In one Area a ring that does not cross itself has its own vertices, two cuts an edge and four corners.
bool MayHaveLargePiece(std::size_t vertices) {
  return 3 * vertices + 4 > MostMaskPoints;
}

constexpr const char* NoAltitude = "A vertex has an altitude that cannot be.";

/// Whether the polygon fits into a file. That of few Areas is not cut for it.
bool IsTooLarge(const std::vector<PolyPoint>& points) {
  GeoBox box;
  for (const PolyPoint& point : points)
    box.Add(point.Lat, point.Lon);
  if (CountCrossings(points, {AreaHeight, AreaWidth}) > MostCrossings) return true;
  const double most = (box.NLat - box.SLat) / AreaHeight * ((box.ELon - box.WLon) / AreaWidth);
  if (!(most > static_cast<double>(MostSquares))) return false;
  try {
    ClipPolyToAreasForExclude(points);
  } catch (const RuntimeError&) {
    return true;
  }
  return false;
}

/// The compiler takes the last four characters off.
bool IsOnlyExtension(const std::string& bitmap) {
  constexpr std::size_t extension = 4;
  return !bitmap.empty() && ToWindows1252(bitmap).size() <= extension;
}

/// The name stands in the text without quotes.
bool IsBitmapWord(const std::string& bitmap) {
  return std::none_of(bitmap.begin(), bitmap.end(), [](char c) {
    return static_cast<unsigned char>(c) <= ' ' ||
           std::string_view("()\";").find(c) != std::string_view::npos;
  });
}

bool IsPair(std::string_view text) {
  const std::size_t comma = text.find(',');
  return comma != std::string_view::npos && ParseInt32(text.substr(0, comma)) &&
         ParseInt32(text.substr(comma + 1));
}

/// The first vertex whose texture coordinates cannot be read. Where there are not as many as vertices, they
/// are made anew anyway.
std::optional<std::size_t> UnreadablePair(std::string_view pairs, std::size_t vertices) {
  std::optional<std::size_t> unreadable;
  std::size_t number = 0;
  for (; !pairs.empty(); ++number)
    if (!IsPair(TakePackedField(pairs)) && !unreadable) unreadable = number;
  return number == vertices ? unreadable : std::nullopt;
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
    if (CheckOnAreas()) CheckPieces();
  }
  void operator()(const VtpPolyType& type) {
    CheckVtpFields(type.Layer, type.Texture, m_at, m_found);
    CheckOnPoints(m_shift);
  }
  void operator()(const ExclusionPolyType& type) {
    if (LayersOfMasks(type.Masks).empty()) m_found.Warn(m_at, "The polygon excludes no layer.");
    CheckOnAreas();
  }
  void operator()(const TexPolyType& type) {
    CheckTexFields(type);
    if (const PolyPoint* odd = VertexWithoutAltitude(IsTexAltitude)) m_found.Error(ShownAt(*odd), NoAltitude);
    if (CheckPlaces(m_poly.Points, {}, m_found))
      CheckShape(RingAsDrawn(m_poly.Points), m_at, "The polygon has no area: nothing of it can be seen.",
                 m_found);
  }

private:
  /// False when a vertex lies outside the world.
  bool CheckOnPoints(LatLon shift) {
    if (!CheckPlaces(m_poly.Points, shift, m_found)) return false;
    CheckShape(RingOnPoints(m_poly.Points, shift), m_at,
               "The polygon has no area on the grid: it covers no ground.", m_found);
    return true;
  }

  /// Of what is cut into Areas; into Cells even the world can be cut. False when it cannot be cut.
  bool CheckOnAreas() {
    if (!CheckOnPoints({})) return false;
    if (!IsTooLarge(m_poly.Points)) return true;
    m_found.Error(m_at, "The polygon is too large or too wild to be cut.");
    return false;
  }

  void CheckPieces() {
    if (!MayHaveLargePiece(m_poly.Points.size())) return;
    const ClippedPoly cut = ClipPolyToAreas(m_poly.Points, nullptr);
    const auto largest =
        std::max_element(cut.Pieces.begin(), cut.Pieces.end(),
                         [](const PolyPiece& a, const PolyPiece& b) { return a.Count < b.Count; });
    if (largest == cut.Pieces.end() || largest->Count <= MostMaskPoints) return;
    const PiecePoint& first = cut.PointsOf(*largest).front();
    m_found.Error(PointInAreaToLatLon(
                      {first.X, first.Y, largest->AreaX, largest->AreaY, largest->CellX, largest->CellY}),
                  "The polygon has " + std::to_string(largest->Count) +
                      " points in one Area, where the tool takes " + std::to_string(MostMaskPoints) +
                      ": simplify it there or split it.");
  }

  void CheckAltitudes(const LwmPolyType& type) {
    const auto highest = ParseFloat(type.Highest), lowest = ParseFloat(type.Lowest);
    if (!highest || !lowest) {
      m_found.Error(m_at, "The altitude \"" + (highest ? type.Lowest : type.Highest) + "\" is no number.");
      return;
    }
    if (!IsMaskAltitude(*highest) || !IsMaskAltitude(*lowest)) {
      CheckMaskAltitude(IsMaskAltitude(*highest) ? *lowest : *highest, m_at, m_found);
    } else if (*ParseNumber(type.Highest) == *ParseNumber(type.Lowest)) {
      if (!IsLevel())
        m_found.Warn(m_at, "The polygon is compiled level at " + Metres(*highest) +
                               ", but its vertices have different altitudes.");
    } else {
      if (const PolyPoint* odd = VertexWithoutAltitude(IsFinite)) m_found.Warn(ShownAt(*odd), NoAltitude);
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
      m_found.Error(ShownAt(*high), slope + " begins and ends at one place.");
    else if (IsLevel())
      m_found.Warn(m_at, slope + " has all its vertices at " + Metres(high->Alt) + ".");
    else if (high->Alt == low->Alt)
      m_found.Warn(ShownAt(*high), slope + " begins and ends at vertices of " + Metres(high->Alt) + ".");
  }

  const PolyPoint* VertexOf(const std::string& text) const {
    const auto number = ParseInt32(text);
    if (!number || *number < 1 || *number > std::ssize(m_poly.Points)) return nullptr;
    return &m_poly.Points[static_cast<std::size_t>(*number) - 1];
  }

  static bool IsFinite(float altitude) { return std::isfinite(altitude); }

  const PolyPoint* VertexWithoutAltitude(bool (*isAltitude)(float)) const {
    const auto odd = std::find_if(m_poly.Points.begin(), m_poly.Points.end(),
                                  [&](const PolyPoint& point) { return !isAltitude(point.Alt); });
    return odd == m_poly.Points.end() ? nullptr : &*odd;
  }

  void CheckTexFields(const TexPolyType& type) {
    if (!IsBitmapWord(type.Name))
      m_found.Error(m_at, "The bitmap's name \"" + type.Name +
                              "\" has blanks, brackets, quotes, a semicolon or a line end in it.");
    if (IsOnlyExtension(type.Name))
      m_found.Error(m_at, "The bitmap's name \"" + type.Name + "\" is no more than an extension.");
    if (!ParseInt32(type.TileX) || !ParseInt32(type.TileY))
      m_found.Error(m_at, "The bitmap is repeated \"" + type.TileX + "\" by \"" + type.TileY +
                              "\" times, which are no whole numbers.");
    if (!IsTakenAsWritten(type.Priority, LastTexPriority))
      m_found.Error(m_at, "The priority \"" + type.Priority + "\" is no whole number from 0 to " +
                              std::to_string(LastTexPriority) + ".");
    if (!IsTakenAsWritten(type.V1, std::numeric_limits<std::int32_t>::max()))
      m_found.Error(m_at, "The visibility \"" + type.V1 + "\" is no whole number of metres.");
    if (!ParseInt32(type.Night))
      m_found.Error(m_at, "The mark for a night bitmap is \"" + type.Night + "\", no number.");
    if (const auto pair = UnreadablePair(type.Pairs, m_poly.Points.size()))
      m_found.Error(ShownAt(m_poly.Points[*pair]),
                    "The place of vertex " + std::to_string(*pair + 1) + " on the bitmap cannot be read.");
  }

  LatLon ShownAt(const PolyPoint& vertex) const {
    const LatLon at{vertex.Lat, vertex.Lon};
    return IsInWorld(at) ? at : m_at;
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

void CheckMaskAltitude(float metres, LatLon at, ItemFindings& found) {
  if (!IsMaskAltitude(metres))
    found.Error(at, "The altitude " + Metres(metres) + " is farther from sea level than the tool takes.");
}

void CheckItem(const PolyRec& poly, LatLon shift, ItemFindings& found) {
  std::visit(PolyCheck(poly, shift, found), DecodePolyType(poly.Type));
}

}  // namespace landsmith
