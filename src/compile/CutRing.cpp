#include "compile/CutRing.h"

#include "core/Grid.h"
#include "core/Numbers.h"
#include "platform/RuntimeError.h"
#include "vector/RingOrder.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

namespace landsmith {
namespace {

LatLon SnappedPlace(const PolyPoint& point, SnapForm form) {
  if (form == SnapForm::Area) return PointInAreaToLatLon(ComputeGridPosition(point.Lat, point.Lon));
  return PointInCellToLatLon(GridPositionToCellPoint(point.Lat, point.Lon));
}

void RequireOnEarth(const PolyPoint& point, std::size_t index) {
  if (std::fabs(point.Lat) <= 90 && std::fabs(point.Lon) <= 180) return;  // a NaN fails as well
  throw RuntimeError::At("cutting a polygon", "", "vertex " + std::to_string(index + 1),
                         NumberText(point.Lat) + " " + NumberText(point.Lon) + " is no place on the earth");
}

bool AtOnePlace(const CutVertex& a, const CutVertex& b) {
  return a.Lat == b.Lat && a.Lon == b.Lon;
}

/// By the latitude between the two; by the longitude where they lie on one parallel, which two that went to
/// different sides of a line do all the same.
float AltitudeBetween(const CutVertex& from, const CutVertex& to, double lat, double lon) {
  if (from.Alt == to.Alt) return from.Alt;
  const bool onOneParallel = std::fabs(to.Lat - from.Lat) < 4 * NudgeLat && from.Lon != to.Lon;
  const double share =
      onOneParallel ? (lon - from.Lon) / (to.Lon - from.Lon) : (lat - from.Lat) / (to.Lat - from.Lat);
  const double start = static_cast<double>(from.Alt);
  return static_cast<float>(start + share * (static_cast<double>(to.Alt) - start));
}

double DistanceToLine(double value, double spacing) {
  return std::fabs(value - std::round(value / spacing) * spacing);
}

/// One axis: across which lines edges are cut, and along them.
struct Axis {
  double CutVertex::*Across;
  double CutVertex::*Along;
  double Spacing, Nudge;           ///< of the lines
  double CrossSpacing, OffCorner;  ///< of the lines that these meet, and how far to move off one of them
  CutMark Leaves, EntersNext;
};

/// Adds the cuts of the edge from `from` to `to` with the lines of `axis`, in order along the edge.
/// `drawnFrom`, `drawnTo`: the whole edge that they are a part of.
class EdgeCutter {
public:
  EdgeCutter(const Axis& axis, const CutVertex& drawnFrom, const CutVertex& drawnTo)
      : m_axis(axis), m_drawnFrom(drawnFrom), m_drawnTo(drawnTo) {}

  void Cut(CutVertex from, CutVertex to, std::vector<CutVertex>& out) const {
    const bool ascends = from.*m_axis.Across < to.*m_axis.Across;
    const double least = ascends ? from.*m_axis.Across : to.*m_axis.Across;
    const double most = ascends ? to.*m_axis.Across : from.*m_axis.Across;
    const std::size_t first = out.size();
    for (double line = Floor(least / m_axis.Spacing) + 1; line * m_axis.Spacing < most; ++line) {
      const double at = line * m_axis.Spacing;
      CutVertex leaves = CutVertexAt(from, to, at, ascends ? -m_axis.Nudge : m_axis.Nudge);
      CutVertex enters = CutVertexAt(from, to, at, ascends ? m_axis.Nudge : -m_axis.Nudge);
      leaves.Mark = m_axis.Leaves;
      enters.Mark = m_axis.EntersNext;
      // Lines come from the south or west; an edge that runs the other way meets the last of them first.
      out.push_back(ascends ? leaves : enters);
      out.push_back(ascends ? enters : leaves);
      (ascends ? from : to) = ascends ? enters : leaves;
    }
    if (!ascends) std::reverse(out.begin() + static_cast<std::ptrdiff_t>(first), out.end());
  }

private:
  CutVertex CutVertexAt(const CutVertex& from, const CutVertex& to, double line, double nudge) const {
    const double across = from.*m_axis.Across;
    const double share = (line - across) / (to.*m_axis.Across - across);
    CutVertex cut;
    cut.*m_axis.Across = line + nudge;
    cut.*m_axis.Along = from.*m_axis.Along + (to.*m_axis.Along - from.*m_axis.Along) * share;
    const double fromCorner = DistanceToLine(cut.*m_axis.Along, m_axis.CrossSpacing);
    constexpr double indistinct = 1e-11;  // sums with 180 degrees cannot tell it from the line
    const bool onCorner = fromCorner < indistinct;
    if (onCorner) cut.*m_axis.Along += m_axis.OffCorner;
    // The cut over the other line at the same corner goes with it.
    const bool besideOne = from.AtCorner || to.AtCorner;
    cut.AtCorner = onCorner || (besideOne && fromCorner < 2 * std::fabs(m_axis.OffCorner));
    cut.Crossing = DrawnCrossing(line);
    cut.Alt = AltitudeBetween(from, to, cut.Lat, cut.Lon);
    return cut;
  }

  double DrawnCrossing(double line) const {
    const double across = m_drawnFrom.*m_axis.Across;
    const double share = (line - across) / (m_drawnTo.*m_axis.Across - across);
    return m_drawnFrom.*m_axis.Along + (m_drawnTo.*m_axis.Along - m_drawnFrom.*m_axis.Along) * share;
  }

  const Axis& m_axis;
  const CutVertex& m_drawnFrom;
  const CutVertex& m_drawnTo;
};

}  // namespace

std::vector<CutVertex> SnapRing(const std::vector<PolyPoint>& ring, SnapForm form) {
  std::vector<CutVertex> snapped;
  snapped.reserve(ring.size());
  for (std::size_t i = 0; i < ring.size(); ++i) {
    RequireOnEarth(ring[i], i);
    const LatLon at = SnappedPlace(ring[i], form);
    CutVertex vertex;
    vertex.Lat = at.lat;
    vertex.Lon = at.lon;
    vertex.Alt = ring[i].Alt;
    if (snapped.empty() || !AtOnePlace(vertex, snapped.back())) snapped.push_back(vertex);
  }
  while (snapped.size() > 1 && AtOnePlace(snapped.front(), snapped.back()))
    snapped.pop_back();
  if (snapped.size() < 3) return {};
  OrientPoly(snapped);
  // A nudge can fold the ring at the vertex by which its direction is told; its area cannot be mistaken.
  if (SignedRingArea(snapped) > 0) std::reverse(snapped.begin(), snapped.end());
  return snapped;
}

std::vector<CutVertex> CutAlongLines(const std::vector<CutVertex>& ring, const GridLines& lines,
                                     CornerCuts corners) {
  const bool moveOff = corners == CornerCuts::MoveOff;
  if (CountCrossings(ring, lines) > MostCrossings)
    throw RuntimeError::At("cutting a polygon", "", "",
                           "its edges cross more than " + NumberText(MostCrossings) + " lines of the grid");
  const Axis parallels{&CutVertex::Lat,
                       &CutVertex::Lon,
                       lines.Height,
                       NudgeLat,
                       lines.Width,
                       moveOff ? NudgeLon : 0,
                       CutMark::LeavesOverParallel,
                       CutMark::EntersOverParallel};
  const Axis meridians{&CutVertex::Lon,
                       &CutVertex::Lat,
                       lines.Width,
                       NudgeLon,
                       lines.Height,
                       moveOff ? -NudgeLat : 0,
                       CutMark::LeavesOverMeridian,
                       CutMark::EntersOverMeridian};
  std::vector<CutVertex> cut;
  cut.reserve(ring.size() + ring.size() / 2);
  std::vector<CutVertex> parts;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const CutVertex& from = ring[i];
    const CutVertex& to = ring[i + 1 == ring.size() ? 0 : i + 1];
    parts.assign(1, from);
    EdgeCutter(parallels, from, to).Cut(from, to, parts);
    parts.push_back(to);
    const EdgeCutter overMeridians(meridians, from, to);
    for (std::size_t k = 0; k + 1 < parts.size(); ++k) {
      cut.push_back(parts[k]);
      overMeridians.Cut(parts[k], parts[k + 1], cut);
    }
  }
  return cut;
}

}  // namespace landsmith
