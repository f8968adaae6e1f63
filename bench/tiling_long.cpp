// Cuts many random polygons, reads the pieces back and judges whether they tile: the test of the same name
// for as long as one likes.
//
//     tiling_long [COUNT [FIRST_SEED]]      100,000 polygons on Areas and as many on Cells without arguments
//
// Prints the seeds that fail with the least ring that still does, and how many squares the exact walk mended.
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

using Judge = std::function<std::vector<std::string>(const std::vector<PolyPoint>&, TilingVerdict&)>;

std::vector<std::string> JudgeAreas(const std::vector<PolyPoint>& points, TilingVerdict& verdict) {
  const std::vector<ReadPiece> pieces = LakePieces(points);
  verdict = JudgeTiling(SnappedRing(points), pieces, PointsPerArea);
  std::vector<std::string> faults = verdict.Faults;
  for (const ReadPiece& piece : pieces)
    if (!IsClockwise(piece)) faults.push_back("a piece without area or against the clock");
  return faults;
}

std::vector<std::string> JudgeCells(const std::vector<PolyPoint>& points, TilingVerdict& verdict) {
  const std::vector<ReadPiece> pieces = CellPieces(ClipPolyToCells(points));
  verdict = JudgeTiling(SnappedRing(points), pieces, PointsPerCell);
  std::vector<std::string> faults = verdict.Faults;
  for (const ReadPiece& piece : pieces)
    if (!IsClockwise(piece)) faults.push_back("a piece without area or against the clock");
  return faults;
}

std::vector<std::string> FaultsOf(const Judge& judge, const std::vector<PolyPoint>& points,
                                  TilingVerdict& verdict) {
  try {
    return judge(points, verdict);
  } catch (const std::exception& error) {
    return {std::string("thrown: ") + error.what()};
  }
}

/// Leaves out vertices as long as the ring stays simple and still fails.
std::vector<PolyPoint> LeastFailure(const Judge& judge, std::vector<PolyPoint> points) {
  TilingVerdict unused;
  for (bool again = true; again;) {
    again = false;
    for (std::size_t k = 0; k < points.size() && points.size() > 3; ++k) {
      std::vector<PolyPoint> fewer = points;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(k));
      if (!IsSimple(SnappedRing(fewer)) || FaultsOf(judge, fewer, unused).empty()) continue;
      points = std::move(fewer);
      again = true;
      --k;
    }
  }
  return points;
}

void PrintFailure(const Judge& judge, std::uint64_t seed, const RandomPoly& poly) {
  const std::vector<PolyPoint> least = LeastFailure(judge, poly.Points);
  TilingVerdict unused;
  std::printf("seed %llu, kind %d:\n", static_cast<unsigned long long>(seed), static_cast<int>(poly.Kind));
  for (const std::string& fault : FaultsOf(judge, least, unused))
    std::printf("  %s\n", fault.c_str());
  for (const PolyPoint& at : least)
    std::printf("  %.17g, %.17g\n", at.Lat, at.Lon);
}

/// The number of polygons that fail.
int Run(const char* name, std::int64_t unit, const Judge& judge, std::uint64_t first, std::uint64_t count) {
  const auto start = std::chrono::steady_clock::now();
  int failures = 0;
  std::size_t squares = 0, visited = 0, mended = 0, pieces = 0;
  std::array<int, RingKinds> ofKind{}, failedOfKind{};
  for (std::uint64_t seed = first; seed < first + count; ++seed) {
    const RandomPoly poly = MakeRandomPoly(seed, unit);
    TilingVerdict verdict;
    const auto kind = static_cast<std::size_t>(poly.Kind);
    ++ofKind[kind];
    if (!FaultsOf(judge, poly.Points, verdict).empty()) {
      ++failedOfKind[kind];
      if (++failures <= 20) PrintFailure(judge, seed, poly);
    }
    const ClippedPoly clipped =
        unit == PointsPerArea ? ClipPolyToAreas(poly.Points, nullptr) : ClipPolyToCells(poly.Points);
    squares += verdict.Squares;
    pieces += verdict.Pieces;
    visited += clipped.Squares;
    mended += clipped.MendedSquares;
  }
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  std::printf(
      "%s: %llu polygons, %zu squares judged, %zu pieces; the exact walk mended %zu of %zu squares "
      "(%.3f %%); %d polygons failed; %.1f s\n",
      name, static_cast<unsigned long long>(count), squares, pieces, mended, visited,
      visited == 0 ? 0.0 : 100.0 * static_cast<double>(mended) / static_cast<double>(visited), failures,
      seconds.count());
  for (std::size_t kind = 0; kind < ofKind.size(); ++kind)
    std::printf("  kind %zu: %d of %d failed\n", kind, failedOfKind[kind], ofKind[kind]);
  return failures;
}

}  // namespace
}  // namespace landsmith::test

int main(int argc, char** argv) {
  using namespace landsmith::test;
  const std::uint64_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 100000;
  const std::uint64_t first = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1;
  const int failures = Run("Areas", PointsPerArea, JudgeAreas, first, count) +
                       Run("Cells", PointsPerCell, JudgeCells, first, count);
  return failures == 0 ? 0 : 1;
}
