// Which squares of a grid a cut ring visits, and how much of each the ring encloses.
#pragma once

#include "compile/CutRing.h"
#include "core/Grid.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace landsmith {

/// The grid of Areas or of Cells, counted eastward and southward from the north-west corner of the world.
enum class SquareGrid { Areas, Cells };

/// On each side of a Cell; and Cells in the world.
inline constexpr std::int32_t AreasPerCell = 32, WorldColumns = 768, WorldRows = 512;

constexpr std::int32_t PointsPerSide(SquareGrid grid) {
  return grid == SquareGrid::Areas ? 255 : 8160;
}
constexpr GridLines LinesOf(SquareGrid grid) {
  return grid == SquareGrid::Areas ? GridLines{AreaHeight, AreaWidth} : GridLines{CellHeight, CellWidth};
}

/// That one polygon may cover. So many Areas are 60 by 60 Cells, half a continent and a gigabyte of text.
inline constexpr std::size_t MostSquares = 4'000'000;
/// Throws RuntimeError when a polygon covers more.
void RequireSquares(std::size_t squares);

/// A vertex of a cut ring in Points from the north-west corner of its square.
struct SquarePoint {
  std::int32_t X = 0, Y = 0;
  float Alt = 0;
  CutMark Mark = CutMark::Vertex;
  bool AtCorner = false;  ///< as in CutVertex
  double Border = 0;      ///< of a cut: where it lies on the border, unrounded, clockwise from the corner
};

struct SquareIndex {
  std::int32_t Col = 0, Row = 0;
  bool operator==(const SquareIndex&) const = default;
};

/// Vertices of a ring that follow each other inside one square; `First + Count` may pass the end of the ring.
struct SquareRun {
  SquareIndex Square;
  std::size_t First = 0, Count = 0;
};

/// One square that the ring touches.
struct VisitedSquare {
  SquareIndex Square;
  std::size_t FirstRun = 0, RunCount = 0;  ///< no run: it is enclosed as a whole
  /// Twice the area that the ring encloses in the square, in Points, counted with the ring's direction;
  /// exact.
  std::int64_t EnclosedArea2 = 0;
};

struct RingInSquares {
  std::vector<SquarePoint> Points;     ///< in ring order
  std::vector<SquareRun> Runs;         ///< by square, in ring order within it
  std::vector<VisitedSquare> Squares;  ///< by row from the south, in it from the west
};

/// `ring`: snapped, cut along the lines of `grid`, clockwise. Throws RuntimeError when it encloses more
/// squares than a file could hold. The work grows with the vertices, the squares, and a sort of the runs.
RingInSquares PlaceInSquares(const std::vector<CutVertex>& ring, SquareGrid grid);

}  // namespace landsmith
