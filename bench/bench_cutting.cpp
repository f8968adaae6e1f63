// Cutting polygons on the grid: from the ring to the written source text, beside the quickest public way to
// clip a ring to many squares, which is GEOS's clipByRect on ever smaller halves, and beside bare half-plane
// cuts, which leave edges to and fro and are no pieces that one could write. All three run in turn within
// each measurement, so that they share whatever else the machine does.
#include "compile/LwmPolys.h"
#include "compile/PolyClip.h"
#include "compile/VtpPolys.h"
#include "support/CutPolys.h"
#include "support/PolyGenerators.h"

#include <benchmark/benchmark.h>
#include <geos_c.h>

#include <array>
#include <chrono>
#include <cmath>
#include <map>

namespace landsmith {
namespace {

using test::CoastLikeRing;

struct SquareRange {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;  ///< numbers of lines from the grid's origin
  bool IsOne() const { return X2 - X1 == 1 && Y2 - Y1 == 1; }
  std::array<SquareRange, 2> Halves() const {
    if (X2 - X1 >= Y2 - Y1) {
      const double middle = std::floor((X1 + X2) / 2);
      return {{{X1, Y1, middle, Y2}, {middle, Y1, X2, Y2}}};
    }
    const double middle = std::floor((Y1 + Y2) / 2);
    return {{{X1, Y1, X2, middle}, {X1, middle, X2, Y2}}};
  }
};

/// In Areas from the grid's origin, as both of the others want it.
std::vector<LatLon> InAreas(const std::vector<PolyPoint>& ring) {
  std::vector<LatLon> places;
  for (const PolyPoint& at : ring)
    places.push_back({(90 - at.Lat) / AreaHeight, (at.Lon + 180) / AreaWidth});
  return places;
}

SquareRange RangeOf(const std::vector<LatLon>& ring) {
  SquareRange range{1e9, 1e9, 0, 0};
  for (const LatLon& at : ring)
    range = {std::min(range.X1, std::floor(at.lon)), std::min(range.Y1, std::floor(at.lat)),
             std::max(range.X2, std::floor(at.lon) + 1), std::max(range.Y2, std::floor(at.lat) + 1)};
  return range;
}

class Geos {
public:
  Geos() : m_handle(GEOS_init_r()) {}
  ~Geos() { GEOS_finish_r(m_handle); }
  Geos(const Geos&) = delete;
  Geos& operator=(const Geos&) = delete;

  GEOSGeometry* Polygon(const std::vector<LatLon>& ring) const {
    const auto count = static_cast<unsigned>(ring.size());
    GEOSCoordSequence* sequence = GEOSCoordSeq_create_r(m_handle, count + 1, 2);
    for (unsigned k = 0; k <= count; ++k) {
      const LatLon& at = ring[k == count ? 0 : k];
      GEOSCoordSeq_setXY_r(m_handle, sequence, k, at.lon, at.lat);
    }
    return GEOSGeom_createPolygon_r(m_handle, GEOSGeom_createLinearRing_r(m_handle, sequence), nullptr, 0);
  }
  void Destroy(GEOSGeometry* geometry) const { GEOSGeom_destroy_r(m_handle, geometry); }

  /// The number of squares that hold something of the geometry.
  std::size_t Halve(const GEOSGeometry* geometry, const SquareRange& range) const {
    if (range.IsOne()) return 1;
    std::size_t squares = 0;
    for (const SquareRange& half : range.Halves()) {
      GEOSGeometry* part = GEOSClipByRect_r(m_handle, geometry, half.X1, half.Y1, half.X2, half.Y2);
      if (part == nullptr) continue;
      if (GEOSisEmpty_r(m_handle, part) == 0) squares += Halve(part, half);
      Destroy(part);
    }
    return squares;
  }

private:
  GEOSContextHandle_t m_handle;
};

void KeepHalf(const std::vector<LatLon>& ring, double LatLon::*across, double line, double side,
              std::vector<LatLon>& kept) {
  const double LatLon::*along = across == &LatLon::lat ? &LatLon::lon : &LatLon::lat;
  const LatLon* from = &ring.back();
  double fromOff = (from->*across - line) * side;
  for (const LatLon& to : ring) {
    const double toOff = (to.*across - line) * side;
    if ((fromOff < 0) != (toOff < 0)) {
      const double t = fromOff / (fromOff - toOff);
      LatLon cut;
      cut.*(across == &LatLon::lat ? &LatLon::lat : &LatLon::lon) = line;
      cut.*(across == &LatLon::lat ? &LatLon::lon : &LatLon::lat) =
          from->*along + (to.*along - from->*along) * t;
      kept.push_back(cut);
    }
    if (toOff >= 0) kept.push_back(to);
    from = &to;
    fromOff = toOff;
  }
}

/// The number of vertices in all squares.
std::size_t HalveBarely(const std::vector<LatLon>& ring, const SquareRange& range) {
  if (ring.size() < 3) return 0;
  if (range.IsOne()) return ring.size();
  std::size_t vertices = 0;
  const auto halves = range.Halves();
  const bool byX = halves[0].X2 != range.X2;
  for (const double side : {-1.0, 1.0}) {
    std::vector<LatLon> kept;
    kept.reserve(ring.size() / 2 + 8);
    KeepHalf(ring, byX ? &LatLon::lon : &LatLon::lat, byX ? halves[0].X2 : halves[0].Y2, side, kept);
    vertices += HalveBarely(kept, halves[side < 0 ? 0 : 1]);
  }
  return vertices;
}

/// Made once: it is the coast that takes long, not the cutting.
const std::vector<PolyPoint>& Coast(std::int64_t vertices, std::int64_t areas) {
  static std::map<std::pair<std::int64_t, std::int64_t>, std::vector<PolyPoint>> made;
  auto& ring = made[{vertices, areas}];
  if (ring.empty()) ring = CoastLikeRing(static_cast<std::size_t>(vertices), static_cast<double>(areas));
  return ring;
}

template <class Work>
double SecondsOf(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// `geos_ms`, `bare_ms`: the other two in the same turns; `faster`: how many times faster than GEOS.
void BM_RingToText(benchmark::State& state) {
  const auto& ring = Coast(state.range(0), state.range(1));
  const ProjectState project = test::ProjectOf(test::SelectedPoly(ring, "LWM//Water//0//0//1//1//"));
  const std::vector<LatLon> inAreas = InAreas(ring);
  const SquareRange range = RangeOf(inAreas);
  const Geos geos;
  GEOSGeometry* polygon = geos.Polygon(inAreas);
  double ours = 0, theirs = 0, bare = 0;
  std::size_t bytes = 0, geosSquares = 0;
  for ([[maybe_unused]] const auto& turn : state) {
    const double seconds = SecondsOf([&] {
      const LwmSources sources = LwmPolySources(project, LwmPolyChoice::FlatAndSloped);
      bytes = sources.Flat ? sources.Flat->size() : 0;
    });
    theirs += SecondsOf([&] { geosSquares = geos.Halve(polygon, range); });
    bare += SecondsOf([&] { benchmark::DoNotOptimize(HalveBarely(inAreas, range)); });
    ours += seconds;
    state.SetIterationTime(seconds);
  }
  geos.Destroy(polygon);
  const ClippedPoly clipped = ClipPolyToAreas(ring, nullptr);
  const auto turns = static_cast<double>(state.iterations());
  state.counters["geos_ms"] = theirs / turns * 1000;
  state.counters["bare_ms"] = bare / turns * 1000;
  state.counters["faster"] = theirs / ours;
  state.counters["squares"] = static_cast<double>(clipped.Squares);
  state.counters["geos_squares"] = static_cast<double>(geosSquares);
  state.counters["mended"] = static_cast<double>(clipped.MendedSquares);
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_RingToText)
    ->Args({100'000, 30})
    ->Args({100'000, 300})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(1);

/// `each`: the time for each vertex and Area touched; the same for all if the work is linear in them.
void BM_Linear(benchmark::State& state) {
  const ProjectState project =
      test::ProjectOf(test::SelectedPoly(Coast(state.range(0), state.range(1)), "LWM//Water//0//0//1//1//"));
  for ([[maybe_unused]] const auto& turn : state)
    benchmark::DoNotOptimize(LwmPolySources(project, LwmPolyChoice::FlatAndSloped));
  const ClippedPoly clipped = ClipPolyToAreas(project.Polys[0].Points, nullptr);
  const double work = static_cast<double>(state.range(0)) + static_cast<double>(clipped.Squares);
  state.counters["squares"] = static_cast<double>(clipped.Squares);
  state.counters["mended"] = static_cast<double>(clipped.MendedSquares);
  state.counters["each"] =
      benchmark::Counter(work, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_Linear)
    ->ArgsProduct({{10'000, 30'000, 100'000, 300'000}, {30, 100, 300}})
    ->Unit(benchmark::kMillisecond);

void BM_RingToTerrain(benchmark::State& state) {
  const ProjectState project =
      test::ProjectOf(test::SelectedPoly(Coast(state.range(0), state.range(1)), "VTP//4//2001//"));
  const AppSettings settings;
  for ([[maybe_unused]] const auto& turn : state)
    benchmark::DoNotOptimize(VtpPolySource(project, settings));
  const ClippedPoly clipped = ClipPolyToCells(project.Polys[0].Points);
  state.counters["squares"] = static_cast<double>(clipped.Squares);
  state.counters["mended"] = static_cast<double>(clipped.MendedSquares);
  state.counters["each"] =
      benchmark::Counter(static_cast<double>(state.range(0)),
                         benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_RingToTerrain)
    ->ArgsProduct({{1'000, 10'000, 100'000}, {30, 300}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
