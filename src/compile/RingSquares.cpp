#include "compile/RingSquares.h"

#include "core/Grid.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <string>
#include <tuple>

namespace landsmith {
namespace {

struct PlacedVertex {
  SquareIndex Square;
  SquarePoint Point;
};

/// In Points along the side from its north or west end: where the edge crosses it, but not farther than half
/// a Point from where the cut stands. Edges that run along a line cross it anywhere.
double AlongSide(double degrees, double step, std::int32_t point, std::int32_t side) {
  const double along = std::clamp(degrees / step, point - 0.5, point + 0.5);
  return std::clamp(along, 0.0, static_cast<double>(side));
}

/// Clockwise from the north-west corner: 0 to N on the north side, to 2 N on the east side and so on. The cut
/// stays on its side however it was moved.
double BorderPlace(const CutVertex& vertex, const PlacedVertex& at, SquareGrid grid) {
  const GridLines lines = LinesOf(grid);
  const std::int32_t side = PointsPerSide(grid);
  if (IsOverParallel(vertex.Mark)) {
    const double x =
        AlongSide(vertex.Crossing + 180 - at.Square.Col * lines.Width, StepLon, at.Point.X, side);
    return at.Point.Y == 0 ? x : 3 * side - x;
  }
  const double y = AlongSide(90 - vertex.Crossing - at.Square.Row * lines.Height, StepLat, at.Point.Y, side);
  return at.Point.X == 0 ? 4 * side - y : side + y;
}

PlacedVertex Placed(const CutVertex& vertex, SquareGrid grid) {
  PlacedVertex placed;
  if (grid == SquareGrid::Areas) {
    const GridPosition at = ComputeGridPosition(vertex.Lat, vertex.Lon);
    placed.Square = {at.CellX * AreasPerCell + at.AreaX, at.CellY * AreasPerCell + at.AreaY};
    placed.Point.X = at.PointX;
    placed.Point.Y = at.PointY;
  } else {
    const CellIndex cell = CellOfPosition(vertex.Lat, vertex.Lon);
    const CellPoint at = CellPointOfPosition(vertex.Lat, vertex.Lon, cell);
    placed.Square = {cell.CellX, cell.CellY};
    placed.Point.X = at.X - CellPointMin;
    placed.Point.Y = at.Y - CellPointMin;
  }
  placed.Point.Alt = vertex.Alt;
  placed.Point.Mark = vertex.Mark;
  placed.Point.AtCorner = vertex.AtCorner;
  if (IsCut(vertex.Mark)) placed.Point.Border = BorderPlace(vertex, placed, grid);
  return placed;
}

/// In ring order; the run that holds the ring's first vertex comes last when it began before it.
std::vector<SquareRun> FindRuns(const std::vector<SquareIndex>& squares) {
  const std::size_t count = squares.size();
  std::size_t begin = 0;
  while (begin < count && squares[begin] == squares[begin == 0 ? count - 1 : begin - 1])
    ++begin;
  if (begin == count) return {{squares.front(), 0, count}};
  std::vector<SquareRun> runs;
  for (std::size_t k = 0; k < count; ++k) {
    const std::size_t i = begin + k < count ? begin + k : begin + k - count;
    if (runs.empty() || runs.back().Square != squares[i])
      runs.push_back({squares[i], i, 1});
    else
      ++runs.back().Count;
  }
  return runs;
}

void SortBySquare(std::vector<SquareRun>& runs) {
  std::sort(runs.begin(), runs.end(), [](const SquareRun& a, const SquareRun& b) {
    return std::tie(b.Square.Row, a.Square.Col, a.First) < std::tie(a.Square.Row, b.Square.Col, b.First);
  });
}

/// What the edges inside one square add to the sums of its row: how far they run southward, and twice the
/// area between them and the square's west side.
struct EdgeSums {
  std::int64_t Southward = 0, WestArea2 = 0;
};

EdgeSums SumsOfRun(const std::vector<SquarePoint>& points, const SquareRun& run, bool closed) {
  EdgeSums sums;
  const std::size_t edges = closed ? run.Count : run.Count - 1;
  std::size_t i = run.First;
  for (std::size_t k = 0; k < edges; ++k) {
    const SquarePoint& from = points[i];
    i = i + 1 == points.size() ? 0 : i + 1;
    const std::int64_t southward = points[i].Y - from.Y;
    sums.Southward += southward;
    sums.WestArea2 += (from.X + points[i].X) * southward;
  }
  return sums;
}

/// Goes through the rows from the south and in each from the west. What lies between two squares with runs is
/// enclosed where the edges to its west run northward more often than southward.
class RowSweep {
public:
  RowSweep(RingInSquares& placed, SquareGrid grid) : m_placed(placed), m_side(PointsPerSide(grid)) {}

  void Run() {
    const std::vector<SquareRun>& runs = m_placed.Runs;
    for (std::size_t first = 0; first < runs.size();) {
      std::size_t last = first;
      while (last < runs.size() && runs[last].Square == runs[first].Square)
        ++last;
      AddEnclosedBefore(runs[first].Square);
      AddVisited(first, last - first);
      first = last;
    }
  }

private:
  void AddEnclosedBefore(SquareIndex square) {
    const bool sameRow = !m_placed.Squares.empty() && m_placed.Squares.back().Square.Row == square.Row;
    if (!sameRow) {
      m_southward = 0;
      return;
    }
    const std::int64_t winding = -m_southward / m_side;
    if (winding % 2 == 0) return;  // the even-odd rule, for rings that cross themselves
    const SquareIndex from = m_placed.Squares.back().Square;
    const auto between = static_cast<std::size_t>(square.Col - from.Col - 1);
    RequireSquares(m_placed.Squares.size() + between);
    for (std::int32_t col = from.Col + 1; col < square.Col; ++col)
      m_placed.Squares.push_back({{col, square.Row}, 0, 0, 2 * m_side * m_side});
  }

  void AddVisited(std::size_t first, std::size_t count) {
    const bool closed = m_placed.Runs.size() == 1;
    EdgeSums sums;
    for (std::size_t k = first; k < first + count; ++k) {
      const EdgeSums run = SumsOfRun(m_placed.Points, m_placed.Runs[k], closed);
      sums.Southward += run.Southward;
      sums.WestArea2 += run.WestArea2;
    }
    // Each edge hides from the west what lies to its east: the sums to the west and its own strip.
    const std::int64_t enclosed = sums.WestArea2 - 2 * m_side * (m_southward + sums.Southward);
    m_placed.Squares.push_back({m_placed.Runs[first].Square, first, count, enclosed});
    m_southward += sums.Southward;
  }

  RingInSquares& m_placed;
  std::int64_t m_side;
  std::int64_t m_southward = 0;  ///< of all edges of the row so far
};

}  // namespace

void RequireSquares(std::size_t squares) {
  if (squares > MostSquares)
    throw RuntimeError::At("cutting a polygon", "", "",
                           "it covers more than " + std::to_string(MostSquares) + " squares of the grid");
}

RingInSquares PlaceInSquares(const std::vector<CutVertex>& ring, SquareGrid grid) {
  RingInSquares placed;
  placed.Points.reserve(ring.size());
  std::vector<SquareIndex> squares;
  squares.reserve(ring.size());
  for (const CutVertex& vertex : ring) {
    const PlacedVertex at = Placed(vertex, grid);
    placed.Points.push_back(at.Point);
    squares.push_back(at.Square);
  }
  placed.Runs = FindRuns(squares);
  SortBySquare(placed.Runs);
  RowSweep(placed, grid).Run();
  return placed;
}

}  // namespace landsmith
