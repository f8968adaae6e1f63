// Judges whether pieces tile a polygon. It knows nothing of how they were cut: it halves the ring of whole
// Points by half-planes down to the squares and compares.
//
// The ring is exact. Where it crosses a line of the grid, pieces have the nearest Point of the line instead,
// so a stretch of the ring inside a square may lie up to half a Point beside its place, and the area of the
// square may differ by as much. Everything else is exact: both sides of a line must use the same Points.
#pragma once

#include "support/PieceReader.h"

#include <array>
#include <cmath>
#include <sstream>
#include <tuple>
#include <utility>

namespace landsmith::test {

struct TilingVerdict {
  std::vector<std::string> Faults;
  std::size_t Squares = 0, Covered = 0, Pieces = 0;
};

namespace judging {

struct RealPoint {
  long double x = 0, y = 0;
};
using RealRing = std::vector<RealPoint>;

inline constexpr long double Hair = 1e-6L;
/// How far a border Point lies off its line, in Points, and a little more.
inline constexpr long double OffLine = 0.0011L;
/// Half a Point, and what OffLine and the doubles of a position add.
inline constexpr long double MostShift = 0.51L;

struct SquareRing {
  std::int64_t X = 0, Y = 0;
  RealRing Ring;  ///< from the square's north-west corner; may go to and fro along its sides
};

/// The part of the ring on one side of x = line, or of y = line.
inline RealRing HalfPlane(const RealRing& ring, bool byX, long double line, bool below) {
  RealRing kept;
  const auto beyond = [&](const RealPoint& at) {
    const long double off = (byX ? at.x : at.y) - line;
    return below ? -off : off;
  };
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const RealPoint &a = ring[k], &b = ring[k + 1 == ring.size() ? 0 : k + 1];
    const long double fromA = beyond(a), fromB = beyond(b);
    if (fromA >= 0) kept.push_back(a);
    if ((fromA > 0 && fromB < 0) || (fromA < 0 && fromB > 0)) {
      const long double t = fromA / (fromA - fromB);
      kept.push_back(byX ? RealPoint{line, a.y + t * (b.y - a.y)} : RealPoint{a.x + t * (b.x - a.x), line});
    }
  }
  return kept;
}

struct SquareRange {
  std::int64_t X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< the last ones excluded
};

/// `ring` counts from the corner of square (0, 0).
inline void Halve(const RealRing& ring, const SquareRange& range, std::int64_t side,
                  std::vector<SquareRing>& squares) {
  if (ring.size() < 3) return;
  const std::int64_t width = range.X2 - range.X1, height = range.Y2 - range.Y1;
  if (width == 1 && height == 1) {
    SquareRing& square = squares.emplace_back(SquareRing{range.X1, range.Y1, ring});
    for (RealPoint& at : square.Ring)
      at = {at.x - static_cast<long double>(range.X1 * side),
            at.y - static_cast<long double>(range.Y1 * side)};
    return;
  }
  const bool byX = width >= height;
  const std::int64_t middle = byX ? range.X1 + width / 2 : range.Y1 + height / 2;
  const auto line = static_cast<long double>(middle * side);
  SquareRange first = range, second = range;
  (byX ? first.X2 : first.Y2) = middle;
  (byX ? second.X1 : second.Y1) = middle;
  Halve(HalfPlane(ring, byX, line, true), first, side, squares);
  Halve(HalfPlane(ring, byX, line, false), second, side, squares);
}

inline std::vector<SquareRing> RingsOfSquares(const LatticeRing& ring, std::int64_t side) {
  SquareRange range{ring[0].X, ring[0].Y, ring[0].X, ring[0].Y};
  for (const LatticePoint& at : ring)
    range = {std::min(range.X1, at.X), std::min(range.Y1, at.Y), std::max(range.X2, at.X),
             std::max(range.Y2, at.Y)};
  range = {range.X1 / side, range.Y1 / side, range.X2 / side + 1, range.Y2 / side + 1};
  const std::int64_t left = range.X1, top = range.Y1;
  RealRing real;
  for (const LatticePoint& at : ring)
    real.push_back(
        {static_cast<long double>(at.X - left * side), static_cast<long double>(at.Y - top * side)});
  std::vector<SquareRing> squares;
  Halve(real, {0, 0, range.X2 - left, range.Y2 - top}, side, squares);
  for (SquareRing& square : squares) {
    square.X += left;
    square.Y += top;
  }
  return squares;
}

inline long double TwiceAreaOf(const RealRing& ring) {
  long double twice = 0;
  for (std::size_t k = 2; k < ring.size(); ++k)
    twice += (ring[k - 1].x - ring[0].x) * (ring[k].y - ring[0].y) -
             (ring[k].x - ring[0].x) * (ring[k - 1].y - ring[0].y);
  return twice;
}

/// What half a Point along the sides may change of the area: a stretch that ends on a side sweeps a triangle
/// as wide as the stretch reaches into the square, with that half Point as its base.
inline long double AreaTolerance(const RealRing& ring, std::int64_t side) {
  const auto most = static_cast<long double>(side);
  const auto onSide = [&](long double v) { return v < Hair || v > most - Hair; };
  long double tolerance = 0.02L;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const RealPoint &a = ring[k], &b = ring[k + 1 == ring.size() ? 0 : k + 1];
    const long double dx = std::fabs(b.x - a.x), dy = std::fabs(b.y - a.y);
    if ((dx < Hair && onSide(a.x)) || (dy < Hair && onSide(a.y))) continue;
    long double base = 0;
    for (const RealPoint& end : {a, b})
      base += (onSide(end.x) ? dx + 0.5L : 0) + (onSide(end.y) ? dy + 0.5L : 0);
    if (base > 0) tolerance += base * MostShift / 2 + (dx + dy) * OffLine * 2;
  }
  return tolerance;
}

inline long double DistanceTo(const RealRing& ring, RealPoint at) {
  long double least = 1e18L;
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const RealPoint &a = ring[k], &b = ring[k + 1 == ring.size() ? 0 : k + 1];
    const long double dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    long double t = square > 0 ? ((at.x - a.x) * dx + (at.y - a.y) * dy) / square : 0;
    t = std::clamp(t, 0.0L, 1.0L);
    least = std::min(least, std::hypot(a.x + t * dx - at.x, a.y + t * dy - at.y));
  }
  return least;
}

struct Crossing {
  long double x = 0;
  int covers = 0;  ///< what the count of pieces, less that of the ring, changes by to the east of it
};

template <class Ring>
void AddCrossings(const Ring& ring, long double y, int weight, std::vector<Crossing>& crossings) {
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const RealPoint a = ring[k], b = ring[k + 1 == ring.size() ? 0 : k + 1];
    if ((a.y < y) == (b.y < y)) continue;
    crossings.push_back({a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x), b.y < a.y ? weight : -weight});
  }
}

inline RealRing Real(const LatticeRing& ring) {
  RealRing real;
  for (const LatticePoint& at : ring)
    real.push_back({static_cast<long double>(at.X), static_cast<long double>(at.Y)});
  return real;
}

/// Follows one line of latitude through the square: away from the ring each place lies in as many pieces as
/// the ring goes round it, that is one or none.
inline std::string FaultOnScanLine(const RealRing& exact, const std::vector<RealRing>& pieces,
                                   long double y) {
  std::vector<Crossing> crossings;
  AddCrossings(exact, y, -1, crossings);
  for (const RealRing& piece : pieces)
    AddCrossings(piece, y, 1, crossings);
  std::sort(crossings.begin(), crossings.end(),
            [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
  int excess = 0;
  for (std::size_t k = 0; k + 1 < crossings.size(); ++k) {
    excess += crossings[k].covers;
    const long double from = crossings[k].x, length = crossings[k + 1].x - from;
    if (excess == 0 || length < Hair) continue;
    for (const long double part : {0.25L, 0.5L, 0.75L}) {
      const RealPoint at{from + part * length, y};
      if (DistanceTo(exact, at) <= MostShift + 0.1L) continue;
      std::ostringstream text;
      text << (excess > 0 ? "covered too often" : "not covered") << " at " << at.x << " " << at.y;
      return text.str();
    }
  }
  return {};
}

/// Latitudes worth a look: both ends of the square, beside vertices, and some others.
inline std::vector<long double> ScanLines(const std::vector<RealRing>& pieces, const RealRing& exact,
                                          std::int64_t side) {
  const auto most = static_cast<long double>(side);
  std::vector<long double> lines{0.713L, most - 0.713L, most * 0.377L + 0.213L, most * 0.634L + 0.387L};
  const auto beside = [&](const RealPoint& at) {
    for (const long double off : {-0.813L, 0.791L})
      if (at.y + off > 0 && at.y + off < most) lines.push_back(at.y + off);
  };
  constexpr std::size_t fewVertices = 3;
  for (std::size_t k = 0; k < std::min(exact.size(), fewVertices); ++k)
    beside(exact[k * exact.size() / fewVertices]);
  for (const RealRing& piece : pieces)
    beside(piece[piece.size() / 2]);
  return lines;
}

inline std::string Named(std::int64_t x, std::int64_t y) {
  return "square " + std::to_string(x) + " " + std::to_string(y) + ": ";
}

/// The pieces of one square, their corners moved to its sides.
inline void JudgeSquare(const SquareRing& square, const std::vector<const LatticeRing*>& pieces,
                        std::int64_t side, TilingVerdict& verdict) {
  const long double whole = static_cast<long double>(side) * static_cast<long double>(side);
  const long double exact = TwiceAreaOf(square.Ring) / 2;
  long double found = 0;
  for (const LatticeRing* piece : pieces)
    found += static_cast<long double>(TwiceArea(*piece)) / 2;
  if (std::fabs(exact - whole) < Hair) {
    ++verdict.Covered;
    if (pieces.size() == 1 && std::fabs(found - whole) < Hair) return;
  }
  if (std::fabs(exact - found) > AreaTolerance(square.Ring, side)) {
    std::ostringstream text;
    text << Named(square.X, square.Y) << "area " << found << " where the ring has " << exact << ", "
         << AreaTolerance(square.Ring, side) << " may be lost";
    verdict.Faults.push_back(text.str());
  }
  std::vector<RealRing> real;
  for (const LatticeRing* piece : pieces)
    real.push_back(Real(*piece));
  for (const long double y : ScanLines(real, square.Ring, side)) {
    const std::string fault = FaultOnScanLine(square.Ring, real, y);
    if (!fault.empty()) {
      verdict.Faults.push_back(Named(square.X, square.Y) + fault);
      break;
    }
  }
}

/// A directed stretch of a grid line, or one of it that is not judged.
struct LineStretch {
  bool IsMeridian = false;
  std::int64_t Line = 0;
  std::int64_t From = 0, To = 0;
};

struct LineBook {
  std::vector<LineStretch> Pieces, Ring, Doubtful;
};

inline void EnterPiece(const ReadPiece& piece, const LatticeRing& points, std::int64_t side, LineBook& book) {
  for (std::size_t k = 0; k < points.size(); ++k) {
    const LatticePoint a = points[k], b = points[k + 1 == points.size() ? 0 : k + 1];
    const LatticePoint corner{piece.SquareX * side, piece.SquareY * side};
    if (a.X == b.X && (a.X == 0 || a.X == side))
      book.Pieces.push_back({true, piece.SquareX + (a.X == 0 ? 0 : 1), corner.Y + a.Y, corner.Y + b.Y});
    if (a.Y == b.Y && (a.Y == 0 || a.Y == side))
      book.Pieces.push_back({false, piece.SquareY + (a.Y == 0 ? 0 : 1), corner.X + a.X, corner.X + b.X});
  }
}

/// The Points that a place on the ring may be rounded to.
struct Rounded {
  long double t = 0;
  std::int64_t X1 = 0, X2 = 0, Y1 = 0, Y2 = 0;
};

inline std::pair<std::int64_t, std::int64_t> RoundedWithin(long double at, long double doubt) {
  return {std::llround(at - doubt), std::llround(at + doubt)};
}

/// The vertex `a` and the cuts of the edge to `b`, then `b`.
inline std::vector<Rounded> CutsOfEdge(LatticePoint a, LatticePoint b, std::int64_t side) {
  std::vector<Rounded> cuts{{0, a.X, a.X, a.Y, a.Y}, {1, b.X, b.X, b.Y, b.Y}};
  const auto dx = static_cast<long double>(b.X - a.X), dy = static_cast<long double>(b.Y - a.Y);
  for (std::int64_t line = std::min(a.X, b.X) / side + 1; line * side < std::max(a.X, b.X); ++line) {
    const long double t = static_cast<long double>(line * side - a.X) / dx;
    const auto [y1, y2] =
        RoundedWithin(static_cast<long double>(a.Y) + t * dy, OffLine * (2 + std::fabs(dy / dx)));
    cuts.push_back({t, line * side, line * side, y1, y2});
  }
  for (std::int64_t line = std::min(a.Y, b.Y) / side + 1; line * side < std::max(a.Y, b.Y); ++line) {
    const long double t = static_cast<long double>(line * side - a.Y) / dy;
    const auto [x1, x2] =
        RoundedWithin(static_cast<long double>(a.X) + t * dx, OffLine * (2 + std::fabs(dx / dy)));
    cuts.push_back({t, x1, x2, line * side, line * side});
  }
  std::stable_sort(cuts.begin(), cuts.end(), [](const Rounded& p, const Rounded& q) { return p.t < q.t; });
  return cuts;
}

/// A stretch whose ends come to lie on one line belongs to the line.
inline void EnterStretch(const Rounded& a, const Rounded& b, std::int64_t side, LineBook& book) {
  const auto enter = [&](bool isMeridian, std::array<std::int64_t, 4> across,
                         std::array<std::int64_t, 4> along) {
    const auto [least, most] = std::minmax_element(across.begin(), across.end());
    const std::int64_t line = *most / side;
    if (line * side < *least) return;
    const bool isSure = *least == *most && along[0] == along[1] && along[2] == along[3];
    const auto [from, to] = std::minmax_element(along.begin(), along.end());
    if (isSure)
      book.Ring.push_back({isMeridian, line, along[0], along[2]});
    else
      book.Doubtful.push_back({isMeridian, line, *from, *to});
  };
  enter(true, {a.X1, a.X2, b.X1, b.X2}, {a.Y1, a.Y2, b.Y1, b.Y2});
  enter(false, {a.Y1, a.Y2, b.Y1, b.Y2}, {a.X1, a.X2, b.X1, b.X2});
}

/// A vertex on a line is kept a hair beside it, in one of the squares; a flat edge from there to the other
/// side crosses the line some Points away.
inline void EnterVertexOnLine(LatticePoint at, LatticePoint neighbour, std::int64_t side, LineBook& book) {
  const auto dx = static_cast<long double>(neighbour.X - at.X),
             dy = static_cast<long double>(neighbour.Y - at.Y);
  const auto reach = [](long double along, long double across) {
    return std::llround(std::min(std::fabs(along), OffLine * (2 + std::fabs(along / across))));
  };
  if (at.Y % side == 0 && dy != 0 && reach(dx, dy) > 0)
    book.Doubtful.push_back(
        {false, at.Y / side, at.X - (dx < 0 ? reach(dx, dy) : 0), at.X + (dx > 0 ? reach(dx, dy) : 0)});
  if (at.X % side == 0 && dx != 0 && reach(dy, dx) > 0)
    book.Doubtful.push_back(
        {true, at.X / side, at.Y - (dy < 0 ? reach(dy, dx) : 0), at.Y + (dy > 0 ? reach(dy, dx) : 0)});
}

inline void EnterRing(const LatticeRing& ring, std::int64_t side, LineBook& book) {
  for (std::size_t k = 0; k < ring.size(); ++k) {
    const LatticePoint a = ring[k], b = ring[k + 1 == ring.size() ? 0 : k + 1];
    const std::vector<Rounded> cuts = CutsOfEdge(a, b, side);
    for (std::size_t c = 0; c + 1 < cuts.size(); ++c)
      EnterStretch(cuts[c], cuts[c + 1], side, book);
    EnterVertexOnLine(a, b, side, book);
    EnterVertexOnLine(b, a, side, book);
  }
}

struct LineEvent {
  bool IsMeridian = false;
  std::int64_t Line = 0, At = 0;
  int Balance = 0, Doubt = 0;
};

/// Along each line the sides of the pieces on one side cancel those on the other, but for the ring's own
/// edges.
inline void JudgeLines(const LineBook& book, TilingVerdict& verdict) {
  std::vector<LineEvent> events;
  const auto add = [&](const std::vector<LineStretch>& stretches, int balance, int doubt) {
    for (const LineStretch& s : stretches) {
      events.push_back({s.IsMeridian, s.Line, s.From, balance, doubt});
      events.push_back({s.IsMeridian, s.Line, s.To, -balance, -doubt});
    }
  };
  add(book.Pieces, 1, 0);
  add(book.Ring, -1, 0);
  add(book.Doubtful, 0, 1);
  const auto key = [](const LineEvent& e) { return std::tuple(e.IsMeridian, e.Line, e.At); };
  std::sort(events.begin(), events.end(),
            [&](const LineEvent& a, const LineEvent& b) { return key(a) < key(b); });
  int balance = 0, doubt = 0;
  for (std::size_t k = 0; k + 1 < events.size(); ++k) {
    const LineEvent &e = events[k], &next = events[k + 1];
    balance += e.Balance;
    doubt += e.Doubt;
    if (balance == 0 || doubt > 0 || key(e) == key(next)) continue;
    std::ostringstream text;
    text << (e.IsMeridian ? "meridian " : "parallel ") << e.Line << ": Points " << e.At << " to " << next.At
         << " belong to pieces of one side alone";
    verdict.Faults.push_back(text.str());
    return;
  }
}

inline bool HasThreePoints(LatticeRing points) {
  std::sort(points.begin(), points.end());
  points.erase(std::unique(points.begin(), points.end()), points.end());
  return points.size() >= 3;
}

}  // namespace judging

/// `ring`: clockwise, no edges that cross. `side`: of a square, in Points. Corners of pieces that lie one
/// Point outside their square, as terrain has them, count as lying in it.
inline TilingVerdict JudgeTiling(const LatticeRing& ring, const std::vector<ReadPiece>& pieces,
                                 std::int64_t side) {
  using namespace judging;
  TilingVerdict verdict;
  verdict.Pieces = pieces.size();
  std::vector<LatticeRing> rings;
  std::map<std::pair<std::int64_t, std::int64_t>, std::vector<const LatticeRing*>> bySquare;
  LineBook book;
  rings.reserve(pieces.size());
  for (const ReadPiece& piece : pieces) {
    LatticeRing& points = rings.emplace_back(piece.Points);
    const std::string name = Named(piece.SquareX, piece.SquareY);
    if (!HasThreePoints(points)) verdict.Faults.push_back(name + "fewer than three different points");
    for (LatticePoint& at : points) {
      const auto onSide = [&](std::int64_t v) { return v == -1 ? 0 : v == side + 1 ? side : v; };
      if (side == PointsPerCell) at = {onSide(at.X), onSide(at.Y)};
      if (at.X < 0 || at.Y < 0 || at.X > side || at.Y > side)
        verdict.Faults.push_back(name + "a point outside the square");
    }
    bySquare[{piece.SquareX, piece.SquareY}].push_back(&points);
    EnterPiece(piece, points, side, book);
  }
  for (const SquareRing& square : RingsOfSquares(ring, side)) {
    ++verdict.Squares;
    const auto found = bySquare.extract({square.X, square.Y});
    JudgeSquare(square, found ? found.mapped() : std::vector<const LatticeRing*>{}, side, verdict);
  }
  for (const auto& [square, found] : bySquare)
    if (square.first >= PointsPerCell * 768 / side ||
        std::any_of(found.begin(), found.end(),
                    [](const LatticeRing* piece) { return TwiceArea(*piece) != 0; }))
      verdict.Faults.push_back(Named(square.first, square.second) + "pieces where the ring has none");
  EnterRing(ring, side, book);
  JudgeLines(book, verdict);
  return verdict;
}

/// No vertex turns to the left, and the ring goes round once.
inline bool IsConvex(const ReadPiece& piece) {
  const LatticeRing& ring = piece.Points;
  const std::size_t n = ring.size();
  int reversals = 0;
  int last = 0;
  for (std::size_t k = 0; k < 2 * n; ++k) {
    const LatticePoint a = ring[k % n], b = ring[(k + 1) % n], c = ring[(k + 2) % n];
    if (Turn(a, b, c) < 0) return false;
    const int direction = (b.X > a.X) - (b.X < a.X);
    if (direction != 0 && last != 0 && direction != last && k >= n) ++reversals;
    if (direction != 0) last = direction;
  }
  return reversals <= 2;
}

/// Of a mask's pieces, which must run clockwise besides. A piece may be without area.
inline std::vector<std::string> FaultsOfMask(const LatticeRing& ring, const std::vector<ReadPiece>& pieces) {
  std::vector<std::string> faults = JudgeTiling(ring, pieces, PointsPerArea).Faults;
  for (const ReadPiece& piece : pieces)
    if (TwiceArea(piece.Points) < 0)
      faults.push_back(judging::Named(piece.SquareX, piece.SquareY) + "against the clock");
  return faults;
}

/// Of terrain, whose pieces must be convex besides.
inline std::vector<std::string> FaultsOfTerrain(const LatticeRing& ring,
                                                const std::vector<ReadPiece>& pieces) {
  std::vector<std::string> faults = JudgeTiling(ring, pieces, PointsPerCell).Faults;
  for (const ReadPiece& piece : pieces)
    if (!IsConvex(piece)) faults.push_back(judging::Named(piece.SquareX, piece.SquareY) + "not convex");
  return faults;
}

}  // namespace landsmith::test
