// Polygons cut along the grid of Areas or of Cells. Each piece lies in one square of the grid and is written
// in the Points of that square; where the polygon leaves the square and comes back, the piece follows the
// square's border. The pieces of one polygon tile it: neighbours share the Points of the cuts between them.
#pragma once

#include "core/GeoTypes.h"
#include "core/Grid.h"
#include "core/Records.h"
#include "vector/AltitudePlane.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

struct PiecePoint {
  std::int32_t X = 0, Y = 0;  ///< eastward and southward: 0..255 in an Area, 4079..12241 in a Cell
  float Alt = 0;              ///< metres; of sloped polygons alone
  bool operator==(const PiecePoint&) const = default;
};

/// One ring, clockwise on the map, with three different points at least.
struct PolyPiece {
  std::int32_t CellX = 0, CellY = 0;
  std::uint8_t AreaX = 0, AreaY = 0;  ///< 0 for a piece of a Cell
  std::size_t First = 0, Count = 0;   ///< its place in ClippedPoly::Points
};

struct ClippedPoly {
  std::vector<PolyPiece> Pieces;  ///< by row of squares from the south, in it from the west
  std::vector<PiecePoint> Points;
  GeoBox Box;                     ///< of the ring on the lattice of Points; meaningless when IsDropped
  bool IsDropped = false;         ///< fewer than 3 vertices are left on the lattice
  std::size_t Squares = 0;        ///< that the polygon touches
  std::size_t MendedSquares = 0;  ///< where the walk from Point to Point failed and the exact one took over

  std::span<const PiecePoint> PointsOf(const PolyPiece& piece) const {
    return std::span(Points).subspan(piece.First, piece.Count);
  }
};

/// Pieces in Areas, with Points of 0 to 255. `slope`: the plane of a sloped polygon, which gives the corners
/// of squares their altitude; null for a level one. The work grows with the vertices and the Areas touched. A
/// ring that crosses itself gives something inside its box. Throws RuntimeError for a vertex that is no place
/// on the grid.
ClippedPoly ClipPolyToAreas(const std::vector<PolyPoint>& ring, const AltitudePlane* slope);

/// Pieces in Cells, with Points of 4080 to 12240; corners of the Cell lie one Point outside, so that
/// neighbouring pieces overlap there. The pieces need not be convex.
ClippedPoly ClipPolyToCells(const std::vector<PolyPoint>& ring);

struct TouchedArea {
  std::int32_t CellX = 0, CellY = 0;
  std::uint8_t AreaX = 0, AreaY = 0;
  bool operator==(const TouchedArea&) const = default;
};

struct TouchedAreas {
  std::vector<TouchedArea> Areas;  ///< by row from the south, in it from the west
  GeoBox Box;
  bool IsDropped = false;
};

/// The Areas that hold a vertex of the ring or of its cuts, sides included, or whose centre lies in the ring.
/// Throws RuntimeError for a vertex that is no place on the grid and for too many Areas.
TouchedAreas ClipPolyToAreasForExclude(const std::vector<PolyPoint>& ring);

}  // namespace landsmith
