// How fast lines become source text. The rate per point must hold from small projects to large ones.
#include "compile/VtpLines.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <utility>

namespace landsmith {
namespace {

/// A road of `points` vertices, some 150 metres apart.
LineRec Wander(std::mt19937& random, LatLon start, int points) {
  std::uniform_real_distribution<double> turn(-0.4, 0.4);
  LineRec line;
  line.Selected = true;
  line.Type = "VTP//" + std::to_string(random() % 4 + 4) + "//" + std::to_string(random() % 40 + 1200) + "//";
  double heading = turn(random) * 8;
  LatLon at = start;
  for (int i = 0; i < points; ++i) {
    line.Points.push_back({at.lon, at.lat, static_cast<float>(8 + i % 5), false});
    heading += turn(random);
    at.lat += 0.0014 * std::cos(heading);
    at.lon += 0.002 * std::sin(heading);
  }
  return line;
}

void Compile(benchmark::State& state, const ProjectState& project, std::int64_t points) {
  const AppSettings settings;
  std::size_t bytes = 0;
  for (auto _ : state) {
    const auto source = VtpLineSource(project, settings);
    bytes = source->size();
    benchmark::DoNotOptimize(bytes);
  }
  state.SetItemsProcessed(state.iterations() * points);
  state.counters["bytes"] = static_cast<double>(bytes);
}

/// Lines of 10 points, spread over an area that grows with them as a country's roads do.
void BM_Lines(benchmark::State& state) {
  const auto lines = static_cast<int>(state.range(0));
  std::mt19937 random(9);
  const double side = 0.02 * std::sqrt(lines);
  std::uniform_real_distribution<double> offset(-side / 2, side / 2);
  ProjectState project;
  for (int i = 0; i < lines; ++i)
    project.Lines.push_back(Wander(random, {47 + offset(random), 8 + offset(random)}, 10));
  Compile(state, project, std::int64_t{lines} * 10);
}
BENCHMARK(BM_Lines)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->MinTime(1);

/// One line to and fro over a thousand Cells and more, some 40 vertices in each it comes through.
void BM_OneLongLine(benchmark::State& state) {
  const auto points = static_cast<int>(state.range(0));
  LineRec line;
  line.Selected = true;
  line.Type = "VTP//7//1280//";
  for (int i = 0; i < points; ++i)
    line.Points.push_back({60 * std::sin(i * 0.000123), 30 * std::sin(i * 0.0004), 8, false});
  ProjectState project;
  project.Lines.push_back(std::move(line));
  Compile(state, project, points);
}
BENCHMARK(BM_OneLongLine)->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond)->MinTime(1);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
