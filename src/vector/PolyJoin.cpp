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
  BorderSearch(const Ring& first, const Ring& second, const JoinTolerance& tolerance,
               const CloseVertices& close)
      : m_first(first), m_second(second), m_tolerance(tolerance), m_close(close) {}

  /// On the first stretch of vertices that are all close to some of the other ring, the run that fits best:
  /// where vertices stand closer together than the tolerance, several runs are possible.
  std::optional<CommonBorder> Find() const {
    std::optional<CommonBorder> best;
    for (std::size_t k = 1; k < m_first.size(); ++k) {
      const std::vector<std::size_t> partners = m_close.Of(m_first[k]);
      if (partners.empty() && best) break;
      for (const std::size_t partner : partners) {
        if (AreClose(m_first[k - 1], m_second[(partner + 1) % m_second.size()], m_tolerance)) continue;
        const CommonBorder run = RunFrom(k, partner);
        if (run.Length >= LeastBorder && (!best || run.Fit > best->Fit)) best = run;
      }
    }
    return best;
  }

private:
  CommonBorder RunFrom(std::size_t first, std::size_t partner) const {
    CommonBorder run{first, partner, 0, 0};
    while (run.Length < m_second.size() && first + run.Length < m_first.size()) {
      const PolyPoint& a = m_first[first + run.Length];
      const PolyPoint& b = m_second[(partner + m_second.size() - run.Length) % m_second.size()];
      if (!AreClose(a, b, m_tolerance)) break;
      ++run.Length;
      run.Fit += 1 - std::max(std::fabs(a.Lon - b.Lon) / m_tolerance.Lon,
                              std::fabs(a.Lat - b.Lat) / m_tolerance.Lat);
    }
    return run;
  }

  const Ring& m_first;
  const Ring& m_second;
  const JoinTolerance& m_tolerance;
  const CloseVertices& m_close;
};

/// Runs clockwise and repeats no vertex. False when there is no area left that it could enclose.
bool Prepare(Ring& ring) {
  ring.erase(std::unique(ring.begin(), ring.end(), SamePlace<PolyPoint>), ring.end());
  while (ring.size() > 1 && SamePlace(ring.front(), ring.back()))
    ring.pop_back();
  OrientPoly(ring);
  return SignedRingArea(ring) != 0;
}

/// With a wide tolerance, vertices may be close without being a border. Then the joined ring loses or gains
/// more than rims.
bool AreasAddUp(double first, double second, double joined) {
  const double a = std::fabs(first);
  const double b = std::fabs(second);
  return std::fabs(std::fabs(joined) - (a + b)) <= std::min(a, b) / 2;
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
  const double firstArea = SignedRingArea(first);
  const double secondArea = SignedRingArea(second);

  const CloseVertices close(second, tolerance);
  const auto away = std::find_if(first.begin(), first.end(),
                                 [&](const PolyPoint& point) { return close.Of(point).empty(); });
  if (away == first.end()) return Refused(NotJoinable);
  RotatePolyStart(first, static_cast<std::size_t>(away - first.begin()));
  const std::optional<CommonBorder> border = BorderSearch(first, second, tolerance, close).Find();
  if (!border) return Refused(NotJoinable);

  // The ends of the border stay as the first ring has them; what the second has beyond comes between them.
  RotatePolyStart(second, (border->Partner + 1) % second.size());
  second.resize(second.size() - border->Length);
  const auto from = first.begin() + static_cast<std::ptrdiff_t>(border->First + 1);
  const auto to = from + static_cast<std::ptrdiff_t>(border->Length - LeastBorder);
  first.insert(first.erase(from, to), second.begin(), second.end());
  if (!AreasAddUp(firstArea, secondArea, SignedRingArea(first))) return Refused(NotJoinable);
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
