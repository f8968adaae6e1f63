#include "core/Settings.h"
#include "import/BlnFile.h"
#include "platform/Paths.h"
#include "support/CutPolys.h"
#include "support/PolyGenerators.h"
#include "support/TilingJudge.h"
#include "vector/PolyOperations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace landsmith::test {
namespace {

using testing::IsEmpty;
using testing::Not;

std::vector<std::string> FaultsOfLake(const std::vector<PolyPoint>& points) {
  return FaultsOfMask(SnappedRing(points), LakePieces(points));
}

std::vector<PolyPoint> At(const LatticeRing& ring, LatticePoint corner) {
  std::vector<PolyPoint> points;
  for (const LatticePoint& at : ring)
    points.push_back({static_cast<double>(corner.X + at.X) * StepLon - 180,
                      90 - static_cast<double>(corner.Y + at.Y) * StepLat, 0, false});
  return points;
}

/// Rings that a walk from one rounded cut to the next gets wrong, in Points from a corner of the grid.
struct RingRow {
  const char* name;
  LatticeRing ring;
};
const RingRow HardRings[] = {
    {"a tip on a line", {{100, 100}, {255, 150}, {100, 200}}},
    {"an edge through a corner", {{100, 100}, {410, 100}, {410, 410}}},
    {"two corners, and one point beside the others", {{0, 0}, {254, 0}, {255, 254}, {0, 255}}},
    {"a whole square", {{0, 0}, {255, 0}, {255, 255}, {0, 255}}},
    {"a square around a corner", {{-255, -255}, {255, -255}, {255, 255}, {-255, 255}}},
    {"a step within a point of a line", {{0, 0}, {510, 0}, {510, 254}, {256, 256}, {255, 510}, {0, 510}}},
    {"cuts that round to a corner", {{-30, 70}, {70, -29}, {300, 300}}},
    {"tips from both sides of a line", {{-100, 0}, {0, 100}, {100, 0}, {100, 200}, {1, 101}, {-100, 200}}},
};

TEST(HardRings, AreTiledByAreas) {
  for (const RingRow& row : HardRings)
    EXPECT_THAT(FaultsOfLake(At(row.ring, {405 * PointsPerCell, 120 * PointsPerCell})), IsEmpty())
        << row.name;
}

TEST(HardRings, AreTiledByCells) {
  for (RingRow row : HardRings) {
    for (LatticePoint& at : row.ring)
      at = {at.X * 32, at.Y * 32};
    const auto points = At(row.ring, {405 * PointsPerCell, 120 * PointsPerCell});
    EXPECT_THAT(FaultsOfTerrain(SnappedRing(points), TerrainPieces(points)), IsEmpty()) << row.name;
  }
}

// bench/tiling_long does the same with as many polygons as one likes.
TEST(RandomPolys, AreTiledByMasks) {
  for (std::uint64_t seed = 1; seed <= 3000; ++seed)
    ASSERT_THAT(FaultsOfLake(MakeRandomPoly(seed, PointsPerArea).Points), IsEmpty()) << "seed " << seed;
}

TEST(RandomPolys, AreTiledByConvexTerrain) {
  for (std::uint64_t seed = 1; seed <= 1500; ++seed) {
    const RandomPoly poly = MakeRandomPoly(seed, PointsPerCell);
    ASSERT_THAT(FaultsOfTerrain(poly.Snapped, TerrainPieces(poly.Points)), IsEmpty()) << "seed " << seed;
  }
}

/// Slopes along the polygon's longest diameter, so that both ends of the slope are vertices.
PolyRec Slope(const std::vector<PolyPoint>& points) {
  PolyRec poly = SelectedPoly(points, "LWM//Land//0//0//1//1//");
  double longest = -1;
  std::size_t high = 0, low = 0;
  const double metresEast = MetersPerDegreeLon(points[0].Lat);
  for (std::size_t i = 0; i < points.size(); ++i)
    for (std::size_t j = 0; j < i; ++j) {
      const double metres = std::hypot((points[i].Lon - points[j].Lon) * metresEast,
                                       (points[i].Lat - points[j].Lat) * MetersPerDegreeLat);
      if (metres > longest) std::tie(longest, high, low) = std::tuple(metres, i, j);
    }
  SetPolyPlane(poly, high, low, 350, 100);
  UpdateLWMType(poly);
  return poly;
}

/// The worst difference between a written height and the slope, in 255th of its rise. It counts from the
/// height rounded down, and from a place that may be a Point away.
double WorstHeight(const PolyRec& poly, const std::vector<ReadPiece>& pieces) {
  const auto byAlt = [](const PolyPoint& a, const PolyPoint& b) { return a.Alt < b.Alt; };
  const auto [low, high] = std::minmax_element(poly.Points.begin(), poly.Points.end(), byAlt);
  const double metresEast = MetersPerDegreeLon((low->Lat + high->Lat) / 2);
  const double riseEast = (high->Lon - low->Lon) * metresEast,
               riseNorth = (high->Lat - low->Lat) * MetersPerDegreeLat;
  const double length = std::hypot(riseEast, riseNorth);
  const double aPoint = std::hypot(StepLon * metresEast, StepLat * MetersPerDegreeLat) / length * 255;
  double worst = 0;
  for (const ReadPiece& piece : pieces)
    for (std::size_t k = 0; k < piece.Points.size(); ++k) {
      const auto x = static_cast<double>(piece.SquareX * PointsPerArea + piece.Points[k].X);
      const auto y = static_cast<double>(piece.SquareY * PointsPerArea + piece.Points[k].Y);
      const double east = (x * StepLon - 180 - low->Lon) * metresEast;
      const double north = (90 - y * StepLat - low->Lat) * MetersPerDegreeLat;
      const double part = (east * riseEast + north * riseNorth) / (length * length) * 255;
      const double written = static_cast<double>(piece.Heights[k]) + 0.5;
      worst = std::max(worst, std::fabs(std::clamp(part, 0.0, 255.0) - written) - 0.51 - aPoint);
    }
  return worst;
}

TEST(RandomPolys, KeepTheirSlope) {
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    const RandomPoly random = MakeRandomPoly(seed, PointsPerArea);
    if (random.Points.size() > 300) continue;
    const PolyRec poly = Slope(random.Points);
    const LwmSources sources = LwmPolySources(ProjectOf(poly), LwmPolyChoice::FlatAndSloped);
    ASSERT_TRUE(sources.Sloped && !sources.Flat) << "seed " << seed;
    const std::vector<ReadPiece> pieces = ReadMaskPieces(*sources.Sloped);
    ASSERT_THAT(FaultsOfMask(random.Snapped, pieces), IsEmpty()) << "seed " << seed;
    ASSERT_LE(WorstHeight(poly, pieces), 0) << "seed " << seed;
  }
}

TEST(RingsThatCrossThemselves, GiveSomethingInTheirBox) {
  for (std::uint64_t seed = 1; seed <= 300; ++seed) {
    Chance chance(seed);
    LatticeRing ring;
    for (std::int64_t k = chance.Between(4, 40); k > 0; --k)
      ring.push_back({chance.Between(0, 5) * chance.Between(100, 255),
                      chance.Between(0, 5) * 255 + chance.Between(-1, 1)});
    const std::vector<PolyPoint> points = At(ring, {405 * PointsPerCell, 120 * PointsPerCell});
    const LatticeRing snapped = SnappedRing(points);
    const auto byX = std::minmax_element(snapped.begin(), snapped.end());
    const auto byY = std::minmax_element(snapped.begin(), snapped.end(),
                                         [](LatticePoint a, LatticePoint b) { return a.Y < b.Y; });
    for (const ReadPiece& piece : LakePieces(points))
      for (const LatticePoint& at : piece.Points) {
        const std::int64_t x = piece.SquareX * PointsPerArea + at.X, y = piece.SquareY * PointsPerArea + at.Y;
        ASSERT_TRUE(x >= byX.first->X && x <= byX.second->X && y >= byY.first->Y && y <= byY.second->Y)
            << "seed " << seed;
      }
  }
}

class Coasts : public testing::TestWithParam<const char*> {};

TEST_P(Coasts, AreTiledByWaterAndByLand) {
  ProjectState project;
  ImportBLN(std::filesystem::path(LANDSMITH_SOURCE_DIR) / "tests/compile/coasts" / GetParam(), project,
            AppSettings{});
  ASSERT_FALSE(project.Polys.empty());
  for (PolyRec poly : project.Polys)
    for (const char* type : {"LWM//Water//0//0//1//1//", "LWM//Land//12.5//12.5//1//1//"}) {
      const LatticeRing ring = SnappedRing(poly.Points);
      poly.Type = type;
      poly.Selected = true;
      const LwmSources sources = LwmPolySources(ProjectOf(poly), LwmPolyChoice::FlatAndSloped);
      ASSERT_TRUE(sources.Flat.has_value());
      EXPECT_THAT(FaultsOfMask(ring, ReadMaskPieces(*sources.Flat)), IsEmpty()) << poly.Name << type;
      EXPECT_THAT(FaultsOfTerrain(ring, TerrainPieces(poly.Points)), IsEmpty()) << poly.Name;
    }
}

INSTANTIATE_TEST_SUITE_P(OfNature, Coasts, testing::Values("kodiak.bln", "small_islands.bln"));

/// What a compiler may do wrong to the pieces of a polygon over six Areas.
struct DamageRow {
  const char* name;
  std::function<void(std::vector<ReadPiece>&)> damage;
};

TEST(TheJudge, SeesEachDamage) {
  const LatticeRing ring{{100, 100}, {700, 120}, {690, 300}, {300, 290}, {280, 500}, {90, 480}};
  const LatticePoint corner{405 * PointsPerCell, 120 * PointsPerCell};
  LatticeRing moved = ring;
  for (LatticePoint& at : moved)
    at = {at.X + corner.X, at.Y + corner.Y};
  const auto pieces = LakePieces(At(ring, corner));
  ASSERT_EQ(pieces.size(), 6U);
  ASSERT_THAT(FaultsOfMask(moved, pieces), IsEmpty());
  const auto pointOnSide = [](ReadPiece& piece) -> LatticePoint& {
    return *std::find_if(piece.Points.begin(), piece.Points.end(),
                         [](LatticePoint at) { return at.X == 255 && at.Y != 0 && at.Y != 255; });
  };
  const auto cornerOf = [](ReadPiece& piece) {
    return std::find(piece.Points.begin(), piece.Points.end(), LatticePoint{255, 255});
  };
  const auto withCorner = [&](std::vector<ReadPiece>& all) -> ReadPiece& {
    return *std::find_if(all.begin(), all.end(),
                         [&](ReadPiece& piece) { return cornerOf(piece) != piece.Points.end(); });
  };
  const DamageRow rows[] = {
      {"a piece lost", [](auto& all) { all.erase(all.begin() + 2); }},
      {"a piece twice", [](auto& all) { all.push_back(all[3]); }},
      {"a corner cut off", [&](auto& all) { withCorner(all).Points.erase(cornerOf(withCorner(all))); }},
      {"a corner too much",
       [](auto& all) {
         all.front().Points.push_back({0, 0});
       }},
      {"a cut a Point away on one side", [&](auto& all) { ++pointOnSide(withCorner(all)).Y; }},
      {"a vertex two Points away",
       [&](auto& all) {
         for (ReadPiece& piece : all)
           for (LatticePoint& at : piece.Points)
             if (at == LatticePoint{100, 100}) at = {98, 98};
       }},
      {"a piece in the next square", [](auto& all) { ++all.back().SquareX; }},
      {"a piece the other way round",
       [](auto& all) { std::reverse(all[1].Points.begin(), all[1].Points.end()); }},
      {"a piece instead of the whole square",
       [&](auto& all) {
         withCorner(all).Points = {{0, 0}, {255, 0}, {255, 255}, {0, 255}};
       }},
      {"a piece of two points", [](auto& all) {
         all.push_back(all[0]);
         all.back().Points = {{0, 10}, {0, 12}, {0, 10}};
       }}};
  for (const DamageRow& row : rows) {
    auto damaged = pieces;
    row.damage(damaged);
    EXPECT_THAT(FaultsOfMask(moved, damaged), Not(IsEmpty())) << row.name;
  }
}

}  // namespace
}  // namespace landsmith::test
