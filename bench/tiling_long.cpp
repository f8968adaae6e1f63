// Cuts many random polygons, reads the pieces back and judges whether they tile: the test of the same name
// for as long as one likes.
//
//     tiling_long [COUNT [FIRST_SEED]]      100,000 polygons as masks and as many as terrain without
//     arguments
//
// Prints the seeds that fail with the least ring that still does, and how many squares the exact walk mended.
#include "compile/PolyClip.h"
#include "support/CutPolys.h"
#include "support/PolyGenerators.h"
#include "support/TilingJudge.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>

namespace landsmith::test {
namespace {

using Judge = std::function<std::vector<std::string>(const std::vector<PolyPoint>&)>;

std::vector<std::string> JudgeMask(const std::vector<PolyPoint>& points) {
  return FaultsOfMask(SnappedRing(points), LakePieces(points));
}

std::vector<std::string> JudgeTerrain(const std::vector<PolyPoint>& points) {
  return FaultsOfTerrain(SnappedRing(points), TerrainPieces(points));
}

std::vector<std::string> FaultsOf(const Judge& judge, const std::vector<PolyPoint>& points) {
  try {
    return judge(points);
  } catch (const std::exception& error) {
    return {std::string("thrown: ") + error.what()};
  }
}

/// Leaves out vertices as long as the ring stays simple and still fails.
std::vector<PolyPoint> LeastFailure(const Judge& judge, std::vector<PolyPoint> points) {
  for (bool again = true; again;) {
    again = false;
    for (std::size_t k = 0; k < points.size() && points.size() > 3; ++k) {
      std::vector<PolyPoint> fewer = points;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(k));
      if (!IsSimple(SnappedRing(fewer)) || FaultsOf(judge, fewer).empty()) continue;
      points = std::move(fewer);
      again = true;
      --k;
    }
  }
  return points;
}

void PrintFailure(const Judge& judge, std::uint64_t seed, const RandomPoly& poly) {
  const std::vector<PolyPoint> least = LeastFailure(judge, poly.Points);
  std::printf("seed %llu, kind %d:\n", static_cast<unsigned long long>(seed), static_cast<int>(poly.Kind));
  for (const std::string& fault : FaultsOf(judge, least))
    std::printf("  %s\n", fault.c_str());
  for (const PolyPoint& at : least)
    std::printf("  %.17g, %.17g\n", at.Lat, at.Lon);
  std::fflush(stdout);
}

constexpr int MostPrinted = 100;

/// The number of polygons that fail.
int Run(const char* name, std::int64_t unit, const Judge& judge, std::uint64_t first, std::uint64_t count) {
  const auto start = std::chrono::steady_clock::now();
  int failures = 0;
  std::size_t squares = 0, mended = 0;
  std::array<int, RingKinds> ofKind{}, failedOfKind{};
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    const RandomPoly poly = MakeRandomPoly(seed, unit);
    const auto kind = static_cast<std::size_t>(poly.Kind);
    ++ofKind[kind];
    if (!FaultsOf(judge, poly.Points).empty()) {
      ++failedOfKind[kind];
      if (++failures <= MostPrinted) PrintFailure(judge, seed, poly);
    }
    const ClippedPoly clipped =
        unit == PointsPerArea ? ClipPolyToAreas(poly.Points, nullptr) : ClipPolyToCells(poly.Points);
    squares += clipped.Squares;
    mended += clipped.MendedSquares;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf(
      "%s: %llu polygons, %zu squares, %zu of them (%.2f %%) mended by the exact walk; %d polygons "
      "failed; %.1f s\n",
      name, static_cast<unsigned long long>(count), squares, mended,
      100.0 * static_cast<double>(mended) / static_cast<double>(squares), failures, seconds.count());
  for (std::size_t kind = 0; kind < ofKind.size(); ++kind)
    if (failedOfKind[kind] > 0)
      std::printf("  kind %zu: %d of %d failed\n", kind, failedOfKind[kind], ofKind[kind]);
  std::fflush(stdout);
  return failures;
}

}  // namespace
}  // namespace landsmith::test

int main(int argc, char** argv) {
  using namespace landsmith::test;
  const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100000;
  const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  const int failures = Run("Masks", PointsPerArea, JudgeMask, first, count) +
                       Run("Terrain", PointsPerCell, JudgeTerrain, first, count);
  return failures == 0 ? 0 : 1;
}
