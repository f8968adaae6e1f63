// A polygon's ring on the lattice of Points, cut where it crosses the lines of a grid.
#pragma once

#include "core/Records.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace landsmith {

/// What a vertex of a cut ring is.
enum class CutMark : std::uint8_t {
  Vertex,
  EntersOverParallel,
  LeavesOverParallel,
  EntersOverMeridian,
  LeavesOverMeridian
};

constexpr bool Enters(CutMark mark) {
  return mark == CutMark::EntersOverParallel || mark == CutMark::EntersOverMeridian;
}
constexpr bool IsCut(CutMark mark) {
  return mark != CutMark::Vertex;
}
constexpr bool IsOverParallel(CutMark mark) {
  return mark == CutMark::EntersOverParallel || mark == CutMark::LeavesOverParallel;
}

struct CutVertex {
  double Lat = 0, Lon = 0;
  double Crossing = 0;  ///< of a cut: where the edge as it was drawn crosses, along the line, in degrees
  float Alt = 0;
  CutMark Mark = CutMark::Vertex;
  bool AtCorner = false;  ///< a cut where an edge passes through the corner of four squares
};

/// The lines of the grid lie at whole multiples of these, in degrees.
struct GridLines {
  double Height = 0, Width = 0;
};

/// How often the edges of one ring may cross lines: each crossing takes 200 bytes while the ring is cut.
inline constexpr double MostCrossings = 10'000'000;

/// How often the edges of the ring cross lines, a crossing for each edge more or less.
template <class Vertex>
double CountCrossings(const std::vector<Vertex>& ring, const GridLines& lines) {
  double crossings = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Vertex& to = ring[i + 1 == ring.size() ? 0 : i + 1];
    crossings += std::fabs(to.Lat - ring[i].Lat) / lines.Height;
    crossings += std::fabs(to.Lon - ring[i].Lon) / lines.Width;
  }
  return crossings;
}

/// Where vertices go: to Points of their Area, where those on the border of an Area lie a nudge inside, or to
/// Points of their Cell, where only those on the border of the Cell do.
enum class SnapForm { Area, Cell };

/// What becomes of a cut that falls on the corner of four squares: it is moved a nudge off it, to the east or
/// south, so that it lies in one square, or it stays on the sides of all that it touches.
enum class CornerCuts { MoveOff, Stay };

/// Every vertex on its Point; those that then equal the one before go, the last one too when it equals the
/// first. Runs clockwise on the map. Fewer than 3 are returned as none. Throws RuntimeError for a vertex
/// outside of the world.
std::vector<CutVertex> SnapRing(const std::vector<PolyPoint>& ring, SnapForm form);

/// The ring with two vertices more at each crossing of an edge and a line: the one by which it leaves the
/// square, a nudge on this side of the line, and the one by which it enters the next, a nudge beyond. A
/// vertex on a line makes no crossing. First all parallels are cut, then the meridians. The work grows with
/// the vertices and the crossings. Throws RuntimeError for more than MostCrossings.
std::vector<CutVertex> CutAlongLines(const std::vector<CutVertex>& ring, const GridLines& lines,
                                     CornerCuts corners);

}  // namespace landsmith
