#include "compile/PolyClip.h"

#include "compile/BorderWalk.h"
#include "compile/CutRing.h"
#include "compile/RingSquares.h"

#include <algorithm>
#include <utility>

namespace landsmith {
namespace {

/// With more passages through one square than this the plain walk, whose time can grow with their cube, is
/// not tried; the exact one sorts them.
constexpr std::size_t MostWalkedPassages = 200;

/// How the squares of one grid are written.
struct GridRules {
  SquareGrid Grid;
  std::int32_t Side;
  std::int32_t Origin;    ///< what a Point on the west or north side is written as
  std::int32_t Overhang;  ///< how far corners lie outside
  bool DropSpikes;
};

constexpr GridRules AreaRules{SquareGrid::Areas, PointsPerSide(SquareGrid::Areas), 0, 0, true};
constexpr GridRules CellRules{SquareGrid::Cells, PointsPerSide(SquareGrid::Cells), CellPointMin, 1, false};

class Clipper {
public:
  Clipper(const GridRules& rules, const AltitudePlane* slope) : m_rules(rules), m_slope(slope) {}

  ClippedPoly Clip(const std::vector<CutVertex>& snapped) {
    m_placed =
        PlaceInSquares(CutAlongLines(snapped, LinesOf(m_rules.Grid), CornerCuts::MoveOff), m_rules.Grid);
    m_clipped.Squares = m_placed.Squares.size();
    m_clipped.Pieces.reserve(m_placed.Squares.size() + 1);
    m_clipped.Points.reserve(m_placed.Points.size() + m_placed.Squares.size() * 4);
    for (const VisitedSquare& square : m_placed.Squares)
      AddSquare(square);
    return std::move(m_clipped);
  }

private:
  void AddSquare(const VisitedSquare& square) {
    if (!IsInWorld(square.Square)) return;
    if (square.RunCount == 0) {
      AddPiece(square.Square, WholeSquare());
      return;
    }
    ListPoints(square);
    if (m_placed.Runs.size() == 1) {
      AddWholeRing(square.Square);
      return;
    }
    std::vector<ClosedRing> rings;
    if (!TryPlainWalk(square, rings)) {
      ++m_clipped.MendedSquares;
      rings = WalkExactly(m_list, m_rules.Side, square.EnclosedArea2);
      if (rings.empty() && square.EnclosedArea2 > RoundArea2()) rings.push_back(WholeSquare());
    }
    for (const ClosedRing& ring : rings)
      AddPiece(square.Square, ring);
  }

  /// Vertices at 180 degrees east and at the south pole lie in squares that no file can name. The ring has no
  /// area there.
  bool IsInWorld(SquareIndex square) const {
    const std::int32_t perCell = m_rules.Grid == SquareGrid::Areas ? AreasPerCell : 1;
    return square.Col < WorldColumns * perCell && square.Row < WorldRows * perCell;
  }

  void ListPoints(const VisitedSquare& square) {
    m_list.clear();
    for (std::size_t r = square.FirstRun; r < square.FirstRun + square.RunCount; ++r) {
      const SquareRun& run = m_placed.Runs[r];
      const std::size_t count = m_placed.Points.size();
      for (std::size_t k = 0; k < run.Count; ++k)
        m_list.push_back(m_placed.Points[run.First + k < count ? run.First + k : run.First + k - count]);
    }
  }

  void AddWholeRing(SquareIndex square) {
    ClosedRing ring;
    for (const SquarePoint& point : m_list)
      ring.push_back({point.X, point.Y, point.Alt, -1});
    AddPiece(square, ring);
  }

  /// True when the pieces are what the ring encloses in the square.
  bool TryPlainWalk(const VisitedSquare& square, std::vector<ClosedRing>& rings) const {
    const auto isAtCorner = [](const SquarePoint& point) { return point.AtCorner; };
    if (square.RunCount > MostWalkedPassages || std::any_of(m_list.begin(), m_list.end(), isAtCorner))
      return false;
    if (m_list.size() >= 2) rings = WalkPoints(m_list, m_rules.Side, m_rules.DropSpikes);
    if (rings.empty() && square.EnclosedArea2 > RoundArea2() / 2) rings.push_back(WholeSquare());
    std::int64_t area2 = 0;
    for (const ClosedRing& ring : rings) {
      const std::int64_t own = RingArea2(ring);
      if (own < 0) return false;
      area2 += own;
    }
    return area2 == square.EnclosedArea2;
  }

  std::int64_t RoundArea2() const { return 2 * std::int64_t{m_rules.Side} * m_rules.Side; }

  ClosedRing WholeSquare() const {
    return {SquareCorner(0, m_rules.Side), SquareCorner(1, m_rules.Side), SquareCorner(2, m_rules.Side),
            SquareCorner(3, m_rules.Side)};
  }

  void AddPiece(SquareIndex square, const ClosedRing& ring) {
    if (!HasThreePoints(ring)) return;
    PolyPiece piece;
    if (m_rules.Grid == SquareGrid::Areas) {
      piece.CellX = square.Col / AreasPerCell;
      piece.CellY = square.Row / AreasPerCell;
      piece.AreaX = static_cast<std::uint8_t>(square.Col % AreasPerCell);
      piece.AreaY = static_cast<std::uint8_t>(square.Row % AreasPerCell);
    } else {
      piece.CellX = square.Col;
      piece.CellY = square.Row;
    }
    piece.First = m_clipped.Points.size();
    piece.Count = ring.size();
    for (const WalkedPoint& point : ring)
      m_clipped.Points.push_back(Written(square, point));
    m_clipped.Pieces.push_back(piece);
  }

  /// As they are written: a corner that lies outside is another point than a cut on it.
  bool HasThreePoints(const ClosedRing& ring) const {
    const auto differs = [this](const WalkedPoint& from) {
      return [this, &from](const WalkedPoint& point) {
        return point.X != from.X || point.Y != from.Y ||
               (m_rules.Overhang > 0 && (point.Corner < 0) != (from.Corner < 0));
      };
    };
    if (ring.size() < 3) return false;
    const auto second = std::find_if(ring.begin(), ring.end(), differs(ring.front()));
    return second != ring.end() && std::any_of(second, ring.end(), [&](const WalkedPoint& point) {
             return differs(ring.front())(point) && differs(*second)(point);
           });
  }

  PiecePoint Written(SquareIndex square, const WalkedPoint& point) const {
    PiecePoint written{point.X + m_rules.Origin, point.Y + m_rules.Origin, point.Alt};
    if (point.Corner < 0) return written;
    written.X += point.X == 0 ? -m_rules.Overhang : m_rules.Overhang;
    written.Y += point.Y == 0 ? -m_rules.Overhang : m_rules.Overhang;
    if (m_slope != nullptr) written.Alt = m_slope->AltitudeAt(PlaceOfCorner(square, point));
    return written;
  }

  LatLon PlaceOfCorner(SquareIndex square, const WalkedPoint& corner) const {
    const GridLines lines = LinesOf(m_rules.Grid);
    return {90 - (square.Row + (corner.Y == 0 ? 0 : 1)) * lines.Height,
            (square.Col + (corner.X == 0 ? 0 : 1)) * lines.Width - 180};
  }

  const GridRules& m_rules;
  const AltitudePlane* m_slope;
  RingInSquares m_placed;
  ClippedPoly m_clipped;
  std::vector<SquarePoint> m_list;  ///< the ring's vertices inside the present square
};

ClippedPoly Clip(const std::vector<PolyPoint>& ring, SnapForm form, const GridRules& rules,
                 const AltitudePlane* slope) {
  const std::vector<CutVertex> snapped = SnapRing(ring, form);
  ClippedPoly clipped;
  if (snapped.empty()) {
    clipped.IsDropped = true;
    return clipped;
  }
  clipped = Clipper(rules, slope).Clip(snapped);
  for (const CutVertex& vertex : snapped)
    clipped.Box.Add(vertex.Lat, vertex.Lon);
  return clipped;
}

}  // namespace

ClippedPoly ClipPolyToAreas(const std::vector<PolyPoint>& ring, const AltitudePlane* slope) {
  return Clip(ring, SnapForm::Area, AreaRules, slope);
}

ClippedPoly ClipPolyToCells(const std::vector<PolyPoint>& ring) {
  return Clip(ring, SnapForm::Cell, CellRules, nullptr);
}

}  // namespace landsmith
