#include "vector/PolyJoin.h"

#include "vector/JoinTolerance.h"
#include "vector/PathSelection.h"
#include "vector/PolyOperations.h"
#include "vector/RingOrder.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace landsmith {
namespace {

using Ring = std::vector<PolyPoint>;

constexpr std::string_view NotJoinable = "Polygons can not be joined!";
constexpr std::size_t LeastBorder = 2;
/// A tenth of a millimetre, what moving polygons in degrees may leave between vertices that were one.
constexpr JoinTolerance OnePlace{1e-9, 1e-9};

/// Answers which vertices of a ring are close to a position: they lie in rows a tolerance high, from west to
/// east.
class CloseVertices {
public:
  CloseVertices(const Ring& ring, const JoinTolerance& tolerance)
      : m_ring(ring), m_tolerance(tolerance), m_reach{tolerance.Lon * Wider, tolerance.Lat * Wider} {
    m_places.reserve(ring.size());
    for (std::size_t k = 0; k < ring.size(); ++k)
      m_places.push_back({RowOf(ring[k]), ring[k].Lon, k});
    std::sort(m_places.begin(), m_places.end());
  }

  /// In no order that means anything.
  std::vector<std::size_t> Of(const PolyPoint& at) const {
    std::vector<std::size_t> close;
    for (const double row : {RowOf(at) - 1, RowOf(at), RowOf(at) + 1}) {
      auto next = std::lower_bound(m_places.begin(), m_places.end(), Place{row, at.Lon - m_reach.Lon, 0});
      for (; next != m_places.end() && next->Row == row && next->Lon <= at.Lon + m_reach.Lon; ++next)
        if (AreClose(at, m_ring[next->Vertex], m_tolerance)) close.push_back(next->Vertex);
    }
    return close;
  }

private:
  static constexpr double Wider = 1.001;  // AreClose alone decides at the very edge
  struct Place {
    double Row = 0;
    double Lon = 0;
    std::size_t Vertex = 0;
    bool operator<(const Place& other) const {
      return std::tie(Row, Lon, Vertex) < std::tie(other.Row, other.Lon, other.Vertex);
    }
  };
  double RowOf(const PolyPoint& point) const { return std::floor(point.Lat / m_reach.Lat); }

  const Ring& m_ring;
  JoinTolerance m_tolerance, m_reach;
  std::vector<Place> m_places;
};

/// Vertices First, First + 1, ... of one ring meet Partner, Partner - 1, ... of the other.
struct CommonBorder {
  std::size_t First = 0;
  std::size_t Partner = 0;
  std::size_t Length = 0;
  double Fit = 0;  ///< 1 for each pair at one place, down to 0 for each at the tolerance's edge
};

/// Both rings run clockwise, so along their common border they run against each other. The first one begins
/// away from the other.
class BorderSearch {
public:
  BorderSearch(const Ring& first, const Ring& second, const JoinTolerance& tolerance)
      : m_first(first), m_second(second), m_tolerance(tolerance), m_close(second, tolerance) {}

  /// On the first stretch of vertices that are all close to some of the other ring, the run that fits best:
  /// where vertices stand closer together than the tolerance, several runs are possible.
  std::optional<CommonBorder> Find() const {
    std::optional<CommonBorder> best;
    for (std::size_t k = 1; k < m_first.size(); ++k) {
      const std::vector<std::size_t> partners = m_close.Of(m_first[k]);
      if (partners.empty() && best) break;
      for (const std::size_t partner : partners) {
        if (AreClose(m_first[k - 1], m_second[After(partner)], m_tolerance)) continue;
        const CommonBorder run = RunFrom(k, partner);
        if (run.Length >= LeastBorder && (!best || run.Fit > best->Fit)) best = run;
      }
    }
    return best;
  }

  /// A border of vertices at one place goes on over pairs that are merely close while others at one place lie
  /// behind them. At its ends it takes only pairs so close that they are one Point of the grid, and no more
  /// than the pair: beyond a border the rings may part slowly, and what lies between is not theirs.
  CommonBorder Extended(CommonBorder border) const {
    for (std::size_t more = 1; border.First + border.Length + more <= m_first.size(); ++more) {
      const std::size_t a = border.First + border.Length + more - 1;
      const std::size_t b = Before(border.Partner, border.Length + more - 1);
      if (border.Length + more > m_second.size() || !AreClose(m_first[a], m_second[b], m_tolerance)) break;
      if (!AreOne(a, b)) continue;
      border.Length += more;
      more = 0;
    }
    for (std::size_t more = 1; more < border.First; ++more) {
      const std::size_t a = border.First - more;
      const std::size_t b = (border.Partner + more) % m_second.size();
      if (border.Length + more > m_second.size() || !AreClose(m_first[a], m_second[b], m_tolerance)) break;
      if (!AreOne(a, b)) continue;
      border.First = a;
      border.Partner = b;
      border.Length += more;
      more = 0;
    }
    return border;
  }

private:
  std::size_t After(std::size_t partner) const { return (partner + 1) % m_second.size(); }
  std::size_t Before(std::size_t partner, std::size_t steps) const {
    return (partner + m_second.size() - steps % m_second.size()) % m_second.size();
  }

  bool AreOne(std::size_t a, std::size_t b) const {
    if (AreClose(m_first[a], m_second[b], OnePlace)) return true;
    return AreClose(m_first[a], m_second[b], JoinTolerance{}) && m_close.Of(m_first[a]).size() == 1;
  }

  CommonBorder RunFrom(std::size_t first, std::size_t partner) const {
    CommonBorder run{first, partner, 0, 0};
    while (run.Length < m_second.size() && first + run.Length < m_first.size()) {
      const PolyPoint& a = m_first[first + run.Length];
      const PolyPoint& b = m_second[Before(partner, run.Length)];
      if (!AreClose(a, b, m_tolerance)) break;
      ++run.Length;
      run.Fit += 1 - std::max(std::fabs(a.Lon - b.Lon) / m_tolerance.Lon,
                              std::fabs(a.Lat - b.Lat) / m_tolerance.Lat);
    }
    return run;
  }

  const Ring& m_first;
  const Ring& m_second;
  JoinTolerance m_tolerance;
  CloseVertices m_close;
};

/// Runs clockwise and repeats no vertex. False when there is no area left that it could enclose.
bool Prepare(Ring& ring) {
  ring.erase(std::unique(ring.begin(), ring.end(), SamePlace<PolyPoint>), ring.end());
  while (ring.size() > 1 && SamePlace(ring.front(), ring.back()))
    ring.pop_back();
  OrientPoly(ring);
  return SignedRingArea(ring) != 0;
}

/// Whether the two edges cross inside both.
bool EdgesCross(const PolyPoint& a, const PolyPoint& b, const PolyPoint& c, const PolyPoint& d) {
  const auto side = [](const PolyPoint& from, const PolyPoint& to, const PolyPoint& at) {
    return (to.Lon - from.Lon) * (at.Lat - from.Lat) - (at.Lon - from.Lon) * (to.Lat - from.Lat);
  };
  return side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0;
}

/// Whether the edge from vertex `edge` crosses another of the ring.
bool CrossesRing(const Ring& ring, std::size_t edge) {
  const auto at = [&](std::size_t k) -> const PolyPoint& { return ring[k % ring.size()]; };
  for (std::size_t k = edge + 2; k + 1 < edge + ring.size(); ++k)
    if (EdgesCross(at(edge), at(edge + 1), at(k), at(k + 1))) return true;
  return false;
}

/// The first ring from the vertex that has none close to it, so that no border runs over its end. False when
/// there is no such vertex.
bool BeginAway(Ring& first, const Ring& second, const JoinTolerance& tolerance) {
  const CloseVertices close(second, tolerance);
  const auto away = std::find_if(first.begin(), first.end(),
                                 [&](const PolyPoint& point) { return close.Of(point).empty(); });
  if (away == first.end()) return false;
  RotatePolyStart(first, static_cast<std::size_t>(away - first.begin()));
  return true;
}

/// Vertices at one place are a border whatever else lies within the tolerance, which may be wider than an
/// edge is long.
std::optional<CommonBorder> FindBorder(Ring& first, const Ring& second, const JoinTolerance& tolerance) {
  const bool away = BeginAway(first, second, tolerance);
  const BorderSearch search(first, second, tolerance);
  if (away || BeginAway(first, second, OnePlace))
    if (const auto border = BorderSearch(first, second, OnePlace).Find()) return search.Extended(*border);
  return away ? search.Find() : std::nullopt;
}

/// Between two runs of close vertices lies a gap or an overlap; half as large as one of the polygons, it is
/// no border of theirs.
bool FitsBeside(const Ring& first, const Ring& second, const CommonBorder& border) {
  Ring between;
  for (std::size_t t = 0; t < border.Length; ++t)
    between.push_back(first[border.First + t]);
  for (std::size_t t = border.Length; t-- > 0;)
    between.push_back(second[(border.Partner + second.size() - t) % second.size()]);
  const double smaller = std::min(std::fabs(SignedRingArea(first)), std::fabs(SignedRingArea(second)));
  return std::fabs(SignedRingArea(between)) <= smaller / 2;
}

struct JoinedRing {
  Ring Points;
  std::string Refusal;
};

JoinedRing Refused(std::string_view message) {
  return {{}, std::string(message)};
}

JoinedRing JoinRings(Ring first, Ring second, const JoinTolerance& tolerance) {
  if (!Prepare(first)) return Refused("Fatal error in polygon 1!");
  if (!Prepare(second)) return Refused("Fatal error in polygon 2!");
  const std::optional<CommonBorder> border = FindBorder(first, second, tolerance);
  if (!border || !FitsBeside(first, second, *border)) return Refused(NotJoinable);

  // The ends of the border stay as the first ring has them; what the second has beyond comes between them.
  RotatePolyStart(second, (border->Partner + 1) % second.size());
  second.resize(second.size() - border->Length);
  const auto from = first.begin() + static_cast<std::ptrdiff_t>(border->First + 1);
  const auto to = from + static_cast<std::ptrdiff_t>(border->Length - LeastBorder);
  first.insert(first.erase(from, to), second.begin(), second.end());
  // Only the edges at the two ends are new. Close vertices that are no border make them cross the others.
  if (CrossesRing(first, border->First) || CrossesRing(first, border->First + second.size()))
    return Refused(NotJoinable);
  return {std::move(first), {}};
}

/// Polygon `b` goes into polygon `a`. Empty when joined, else the message; nothing has changed then.
std::string JoinPolyRecords(ProjectState& project, std::size_t a, std::size_t b,
                            const JoinTolerance& tolerance, Selection& selection) {
  JoinedRing joined = JoinRings(project.Polys[a].Points, project.Polys[b].Points, tolerance);
  if (!joined.Refusal.empty()) return joined.Refusal;
  for (PolyPoint& point : joined.Points)
    point.Selected = false;
  MarkPath(project.Polys, a, true, selection);
  MarkPath(project.Polys, b, false, selection);
  PolyRec& kept = project.Polys.Edit(a);
  kept.Points = std::move(joined.Points);
  SetPathBounds(kept);
  UpdateLWMType(kept);
  SetTexCoords(kept, true);
  project.Polys.Erase(b);
  return {};
}

bool BoxesAreClose(GeoBox box, const GeoBox& other, const JoinTolerance& tolerance) {
  box.NLat += tolerance.Lat;
  box.SLat -= tolerance.Lat;
  box.ELon += tolerance.Lon;
  box.WLon -= tolerance.Lon;
  return box.Meets(other);
}

}  // namespace

std::string JoinPolys(ProjectState& project, const AppSettings& settings, const ViewScale& scale,
                      Selection& selection) {
  std::vector<std::size_t> chosen;
  for (std::size_t i = 0; i < project.Polys.size() && chosen.size() < 2; ++i)
    if (project.Polys[i].Selected) chosen.push_back(i);
  if (chosen.size() < 2) return "Could not find 2 polygons to join!";
  return JoinPolyRecords(project, chosen[0], chosen[1], JoinToleranceOf(settings, scale), selection);
}

bool TryAutoJoinPoly(ProjectState& project, std::size_t newPoly, const AppSettings& settings,
                     const ViewScale& scale) {
  if (settings.AutoLineJoin != 1) return false;
  const JoinTolerance tolerance = JoinToleranceOf(settings, scale);
  Selection countedByCaller;
  for (std::size_t j = 0; j < newPoly; ++j) {
    const PolyRec& fresh = project.Polys[newPoly];
    const PolyRec& other = project.Polys[j];
    if (other.Type != fresh.Type || !BoxesAreClose(other.Box, fresh.Box, tolerance)) continue;
    if (JoinPolyRecords(project, j, newPoly, tolerance, countedByCaller).empty()) return true;
  }
  return false;
}

}  // namespace landsmith
