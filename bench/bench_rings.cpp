// How fast a ring falls apart into triangles and into convex parts. The searches look for the first piece
// anew after each cut; the time must grow with the vertices all the same, whatever the shape.
#include "vector/ConvexParts.h"
#include "vector/Triangulation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace landsmith {
namespace {

using Ring = std::vector<LatLon>;

constexpr double Radius = 4000;
constexpr double Full = 2 * std::numbers::pi;

LatLon OnCircle(double turn, double radius) {
  return {radius * std::cos(Full * turn), radius * std::sin(Full * turn)};
}

/// Edges broken at their middles, again and again.
Ring Coast(std::size_t vertices) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> bend(-0.15, 0.15);
  Ring ring;
  for (int k = 0; k < 12; ++k)
    ring.push_back(OnCircle(k / 12.0, Radius));
  while (ring.size() < vertices) {
    Ring finer;
    const std::size_t missing = vertices - ring.size();
    for (std::size_t k = 0; k < ring.size(); ++k) {
      const LatLon& a = ring[k];
      const LatLon& b = ring[(k + 1) % ring.size()];
      const double aside = bend(random);
      finer.push_back(a);
      if (k < missing)
        finer.push_back(
            {(a.lat + b.lat) / 2 + aside * (b.lon - a.lon), (a.lon + b.lon) / 2 - aside * (b.lat - a.lat)});
    }
    ring = std::move(finer);
  }
  return ring;
}

Ring Comb(std::size_t vertices) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> depth(0, Radius);
  Ring ring{{-Radius, Radius}, {-Radius, -Radius}};
  const double step = 2 * Radius / static_cast<double>(vertices);
  for (std::size_t k = 0; ring.size() < vertices; ++k)
    ring.push_back({k % 2 == 0 ? Radius : -depth(random) / 2, -Radius + step * static_cast<double>(k)});
  return ring;
}

Ring Star(std::size_t vertices) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> radius(0.05 * Radius, Radius);
  Ring ring;
  for (std::size_t k = 0; k < vertices; ++k)
    ring.push_back(OnCircle(static_cast<double>(k) / static_cast<double>(vertices), radius(random)));
  return ring;
}

/// Twenty times round, a road's width thick.
Ring Spiral(std::size_t vertices) {
  const std::size_t half = vertices / 2;
  Ring ring;
  Ring back;
  for (std::size_t k = 0; k < half; ++k) {
    const double way = static_cast<double>(k) / static_cast<double>(half);
    ring.push_back(OnCircle(20 * way, Radius * (0.05 + 0.9 * way)));
    back.push_back(OnCircle(20 * way, Radius * (0.07 + 0.9 * way)));
  }
  std::reverse(ring.begin(), ring.end());
  ring.insert(ring.end(), back.begin(), back.end());
  return ring;
}

using Shape = Ring (*)(std::size_t vertices);

void BM_Triangles(benchmark::State& state, Shape shape) {
  const Ring ring = shape(static_cast<std::size_t>(state.range(0)));
  bool fault = false;
  for (auto _ : state) {
    const Triangulation result = TriangulateRing(ring);
    fault = result.HasFault;
    benchmark::DoNotOptimize(result.Triangles.data());
  }
  if (fault) state.SkipWithError("the ring is not sound");
  state.counters["vertices"] = static_cast<double>(ring.size());
}

/// Within one Cell, on its points.
void BM_ConvexParts(benchmark::State& state, Shape shape) {
  std::vector<CellPoint> ring;
  for (const LatLon& at : shape(static_cast<std::size_t>(state.range(0))))
    ring.push_back({static_cast<std::int32_t>(std::lround(8160 + at.lon)),
                    static_cast<std::int32_t>(std::lround(8160 - at.lat))});
  ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
  std::size_t parts = 0;
  for (auto _ : state) {
    parts = DecomposeConvex(ring).size();
    benchmark::DoNotOptimize(parts);
  }
  state.counters["vertices"] = static_cast<double>(ring.size());
  state.counters["parts"] = static_cast<double>(parts);
}

#define RINGS(function, name) \
  BENCHMARK_CAPTURE(function, name, name)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)
RINGS(BM_Triangles, Coast);
RINGS(BM_Triangles, Comb);
RINGS(BM_Triangles, Star);
RINGS(BM_Triangles, Spiral);
RINGS(BM_ConvexParts, Coast);
RINGS(BM_ConvexParts, Comb);
RINGS(BM_ConvexParts, Star);
RINGS(BM_ConvexParts, Spiral);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
