#include "compile/BorderWalk.h"
#include "compile/CutRing.h"
#include "compile/PolyClip.h"
#include "compile/RingSquares.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace landsmith::test {
namespace {

using Places = std::vector<std::pair<double, double>>;

// Vertices in Points from the north-west corner of one Area, which is also the corner of its Cell.
constexpr std::int32_t CellCol = 400, CellRow = 150;

std::vector<PolyPoint> Ring(const Places& places) {
  std::vector<PolyPoint> ring;
  for (const auto& [x, y] : places) {
    PolyPoint point;
    point.Lon = CellCol * CellWidth + x / 255 * AreaWidth - 180;
    point.Lat = 90 - (CellRow * CellHeight + y / 255 * AreaHeight);
    ring.push_back(point);
  }
  return ring;
}

std::string Text(const ClippedPoly& clipped) {
  std::string text;
  for (const PolyPiece& piece : clipped.Pieces) {
    text += std::to_string((piece.CellX - CellCol) * 32 + piece.AreaX) + "," +
            std::to_string((piece.CellY - CellRow) * 32 + piece.AreaY) + ":";
    for (const PiecePoint& point : clipped.PointsOf(piece))
      text += " " + std::to_string(point.X) + "," + std::to_string(point.Y);
    text += "\n";
  }
  return text;
}

// What the pieces must be was found with a pencil: each ring is followed through its squares.
TEST(PolyClip, AreaPieces) {
  const struct {
    const char* What;
    Places Vertices;
    const char* Pieces;
  } cases[] = {
      {"one Area, drawn counter-clockwise: reversed",
       {{10, 10}, {10, 200}, {200, 100}},
       "0,0: 200,100 10,200 10,10\n"},
      {"over the east side",
       {{100, 100}, {355, 100}, {355, 200}, {100, 200}},
       "0,0: 255,200 100,200 100,100 255,100\n1,0: 0,100 100,100 100,200 0,200\n"},
      {"around an Area without a vertex in it",
       {{-100, -100}, {355, -100}, {355, 355}, {-100, 355}},
       "-1,1: 255,100 155,100 155,0 255,0\n0,1: 255,100 0,100 0,0 255,0\n1,1: 100,0 100,100 0,100 0,0\n"
       "-1,0: 155,255 155,0 255,0 255,255\n0,0: 0,0 255,0 255,255 0,255\n1,0: 100,0 100,255 0,255 0,0\n"
       "-1,-1: 155,255 155,155 255,155 255,255\n0,-1: 0,155 255,155 255,255 0,255\n"
       "1,-1: 0,155 100,155 100,255 0,255\n"},
      {"two fingers over the side come out as two rings",
       {{100, 100}, {300, 120}, {120, 140}, {310, 160}, {120, 200}},
       "0,0: 255,125 120,140 255,154 255,172 120,200 100,100 255,115\n"
       "1,0: 0,115 45,120 0,125\n1,0: 0,154 55,160 0,172\n"},
      {"a tip on the east side", {{100, 100}, {255, 150}, {100, 200}}, "0,0: 255,150 100,200 100,100\n"},
      {"an edge through a corner",
       {{100, 100}, {410, 100}, {410, 410}},
       "1,1: 155,0 155,155 0,0\n0,0: 255,255 100,100 255,100\n1,0: 0,100 155,100 155,255 0,255\n"},
      {"corners on lines lie in the next Areas, where they have no area",
       {{0, 0}, {254, 0}, {255, 254}, {0, 255}},
       "0,0: 255,254 0,255 0,0 254,0\n"},
      {"less than three Points", {{10, 10}, {10.2, 10.1}, {200, 100}}, ""},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.What);
    const ClippedPoly clipped = ClipPolyToAreas(Ring(each.Vertices), nullptr);
    EXPECT_EQ(clipped.IsDropped, std::string(each.Pieces).empty());
    EXPECT_EQ(Text(clipped), each.Pieces);
  }
}

TEST(PolyClip, CellPiecesOverlapAtCornersByAPoint) {
  const ClippedPoly covered = ClipPolyToCells(Ring({{-100, -100}, {8260, -100}, {8260, 8260}, {-100, 8260}}));
  EXPECT_NE(Text(covered).find("0,0: 4079,4079 12241,4079 12241,12241 4079,12241\n"), std::string::npos);
  EXPECT_EQ(covered.Pieces.size(), 9U);
  EXPECT_EQ(Text(ClipPolyToCells(Ring({{4000, 2000}, {8160, 4000}, {4000, 6000}}))),
            "0,0: 12240,8080 8080,10080 8080,6080\n");
}

TEST(PolyClip, CornersOfASlopeLieOnItsPlane) {
  std::vector<PolyPoint> ring = Ring({{-255, 100}, {510, 100}, {510, 900}, {-255, 900}});
  for (PolyPoint& point : ring)
    point.Alt = point.Lon < ring[1].Lon ? 0.0F : 300.0F;
  const auto plane = PlaneThrough({ring[0].Lat, ring[0].Lon}, {ring[0].Lat, ring[1].Lon}, 0, 300);
  const ClippedPoly clipped = ClipPolyToAreas(ring, &*plane);
  for (const PolyPiece& piece : clipped.Pieces) {
    for (const PiecePoint& point : clipped.PointsOf(piece)) {
      const double east = (piece.CellX - CellCol) * 8160 + piece.AreaX * 255 + point.X + 255;
      EXPECT_NEAR(static_cast<double>(point.Alt), east * 300 / 765, 0.01) << Text(clipped);
    }
  }
}

TEST(PolyClip, BothWalksAgreeOnCleanSquares) {
  std::mt19937 random(3);
  std::uniform_real_distribution<double> share(0.2, 1), angle(0, 0.2);
  int compared = 0;
  for (int round = 0; round < 200; ++round) {
    Places star;
    for (double turn = angle(random); turn < 6.28; turn += 0.02 + angle(random)) {
      const double reach = 700 * share(random);
      star.emplace_back(131.7 + reach * std::cos(turn), 97.3 + reach * std::sin(turn));
    }
    const RingInSquares placed = PlaceInSquares(
        CutAlongLines(SnapRing(Ring(star), SnapForm::Area), LinesOf(SquareGrid::Areas), CornerCuts::MoveOff),
        SquareGrid::Areas);
    for (const VisitedSquare& square : placed.Squares) {
      std::vector<SquarePoint> list;
      for (std::size_t r = square.FirstRun; r < square.FirstRun + square.RunCount; ++r)
        for (std::size_t k = 0; k < placed.Runs[r].Count; ++k)
          list.push_back(placed.Points[(placed.Runs[r].First + k) % placed.Points.size()]);
      std::vector<std::string> both;
      std::set<std::pair<std::int32_t, std::int32_t>> cuts;
      bool clean = !list.empty();
      for (const SquarePoint& point : list)
        clean = clean && (!IsCut(point.Mark) || cuts.emplace(point.X, point.Y).second);
      for (const auto& rings : {WalkPoints(list, 255, false), WalkExactly(list, 255, square.EnclosedArea2)}) {
        std::string text;
        std::int64_t area2 = 0;
        for (const ClosedRing& ring : rings) {
          area2 += RingArea2(ring);
          clean = clean && RingArea2(ring) > 0;
          for (std::size_t k = 0; k < ring.size(); ++k) {
            const WalkedPoint& next = ring[(k + 1) % ring.size()];
            clean = clean && (ring[k].X != next.X || ring[k].Y != next.Y);
            text += std::to_string(ring[k].X) + "," + std::to_string(ring[k].Y) + " ";
          }
          text += "\n";
        }
        clean = clean && area2 == square.EnclosedArea2;
        both.push_back(text);
      }
      if (!clean) continue;
      ++compared;
      EXPECT_EQ(both[0], both[1]);
    }
  }
  EXPECT_GT(compared, 3000);
}

TEST(PolyClip, PlacesOffTheEarthAreNamed) {
  for (const auto& [lat, lon] : {std::pair(91.0, 0.0), std::pair(0.0, 181.0),
                                 std::pair(std::numeric_limits<double>::quiet_NaN(), 0.0)}) {
    std::vector<PolyPoint> ring = Ring({{0, 0}, {10, 0}, {10, 10}});
    ring[1].Lat = lat;
    ring[1].Lon = lon;
    try {
      ClipPolyToAreas(ring, nullptr);
      ADD_FAILURE() << "not refused";
    } catch (const RuntimeError& failure) {
      EXPECT_NE(std::string(failure.what()).find("vertex 2"), std::string::npos);
    }
  }
}

// The slow way: every Area of the box asks every vertex and every edge.
std::vector<TouchedArea> SlowTouch(const std::vector<PolyPoint>& polygon) {
  const auto ring =
      CutAlongLines(SnapRing(polygon, SnapForm::Cell), {AreaHeight, AreaWidth}, CornerCuts::Stay);
  GeoBox box;
  for (const CutVertex& vertex : SnapRing(polygon, SnapForm::Cell))
    box.Add(vertex.Lat, vertex.Lon);
  std::vector<TouchedArea> touched;
  for (double row = std::floor(box.SLat / AreaHeight); row <= std::floor(box.NLat / AreaHeight); ++row)
    for (double col = std::floor(box.WLon / AreaWidth); col <= std::floor(box.ELon / AreaWidth); ++col) {
      const double lat = (row + 0.5) * AreaHeight, lon = (col + 0.5) * AreaWidth;
      bool inside = false;
      bool held = false;
      for (std::size_t k = 0; k < ring.size(); ++k) {
        const CutVertex& a = ring[k];
        const CutVertex& b = ring[(k + 1) % ring.size()];
        held = held || (row * AreaHeight <= a.Lat && a.Lat <= (row + 1) * AreaHeight &&
                        col * AreaWidth <= a.Lon && a.Lon <= (col + 1) * AreaWidth);
        if ((a.Lat > lat) != (b.Lat > lat) && lon > a.Lon + (b.Lon - a.Lon) * (lat - a.Lat) / (b.Lat - a.Lat))
          inside = !inside;
      }
      if (!inside && !held) continue;
      const GridPosition at = ComputeGridPosition(lat, lon);
      touched.push_back(
          {at.CellX, at.CellY, static_cast<std::uint8_t>(at.AreaX), static_cast<std::uint8_t>(at.AreaY)});
    }
  return touched;
}

TEST(PolyClip, AreasTouched) {
  std::mt19937 random(11);
  std::uniform_int_distribution<int> point(-700, 700), line(-3, 3), kind(0, 2);
  for (int round = 0; round < 400; ++round) {
    Places ring;
    for (int k = 0; k < 3 + round % 9; ++k)
      ring.emplace_back(kind(random) == 0 ? line(random) * 255 : point(random),
                        kind(random) == 0 ? line(random) * 255 : point(random));
    const auto polygon = Ring(ring);
    EXPECT_EQ(ClipPolyToAreasForExclude(polygon).Areas, SlowTouch(polygon)) << round;
  }
}

}  // namespace
}  // namespace landsmith::test
