// How long a repaint takes, beside the same picture painted plainly. `Ratio` times two ways in turn, so that
// both meet the same machine; its counters are the milliseconds of each and their quotient:
//
//   Ratio/million_points            below 0.5   the repaint to painting every segment as it stands
//   Ratio/hundredth_in_view         at most 1.5 to a project that holds only that hundredth
//   Ring/spikes_100000              below 200 ms, where the plain fill takes many seconds
#include "core/Numbers.h"
#include "editor/GeometryIndex.h"
#include "editor/Painters.h"
#include "forms/QtSurface.h"

#include <QImage>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cmath>
#include <random>

namespace landsmith {
namespace {

constexpr int Width = 1600, Height = 1000;
constexpr std::size_t MillionLines = 100000, PointsPerLine = 10;
constexpr double SegmentPixels = 3;

class Canvas {
public:
  Canvas() : m_image(Width, Height, QImage::Format_ARGB32_Premultiplied), m_surface(m_image) {
    m_image.fill(Qt::white);
    m_view.Zoom = 1;
    m_view.LatDispCenter = 47;
    m_view.LonDispCenter = 8;
    m_view.ScaleWidth = Width;
    m_view.ScaleHeight = Height;
    UpdateScale(m_view);
    SetDisplayExtent(m_view);
  }

  Surface& Target() { return m_surface; }
  const ViewState& View() const { return m_view; }
  PaintInput Input(const ProjectState& project, const GeometryIndex* index) {
    return {project, m_settings, m_view, m_tool, m_classes, m_classes, m_bitmaps, index};
  }

private:
  QImage m_image;
  QtSurface m_surface;
  AppSettings m_settings;
  ViewState m_view;
  ToolState m_tool;
  ClassTable m_classes;
  std::filesystem::path m_bitmaps;
};

/// Ranges that segments and widths are drawn from, evenly.
struct Roads {
  double shortest = SegmentPixels, longest = SegmentPixels;
  double narrowest = 0.08, widest = 0.08;  ///< pixels
};
constexpr Roads Dense{0.4, 0.4}, Long{20, 20}, Mixed{0, 24}, Wide{0, 24, 1, 40};

/// Lines like those of a road map, each of ten vertices some pixels apart, strewn over `area`.
ProjectState RoadMap(const ViewState& view, const GeoBox& area, std::size_t lines, const Roads& roads) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> part(0, 1), turn(-0.5, 0.5);
  const auto between = [&](double low, double high) { return low + part(random) * (high - low); };
  ProjectState project;
  for (std::size_t i = 0; i < lines; ++i) {
    LineRec line;
    line.Color = static_cast<std::int32_t>(random() & 0xFFFFFF);
    double lon = between(area.WLon, area.ELon), lat = between(area.SLat, area.NLat);
    double heading = part(random) * 2 * Pi;
    const double width = between(roads.narrowest, roads.widest) / view.Scale.PixelsPerMeter;
    for (std::size_t k = 0; k < PointsPerLine; ++k) {
      line.Points.push_back({lon, lat, static_cast<float>(width), false});
      heading += turn(random);
      const double length = between(roads.shortest, roads.longest);
      lon += length * std::cos(heading) / view.Scale.PixelsPerDegLon;
      lat += length * std::sin(heading) / view.Scale.PixelsPerDegLat;
    }
    SetPathBounds(line);
    project.Lines.push_back(std::move(line));
  }
  return project;
}

/// The roads as rings.
ProjectState Lakes(const ViewState& view, const GeoBox& area, std::size_t rings, const Roads& roads) {
  ProjectState project;
  for (const LineRec& line : RoadMap(view, area, rings, roads).Lines) {
    PolyRec poly;
    poly.Color = line.Color;
    for (const LinePoint& point : line.Points)
      poly.Points.push_back({point.Lon, point.Lat, 0, false});
    SetPathBounds(poly);
    project.Polys.push_back(std::move(poly));
  }
  return project;
}

/// A box around the view's centre, `factor` times as large on each side.
GeoBox Around(const ViewState& view, double factor) {
  const double halfLat = (view.LatTop - view.LatBottom) / 2 * factor;
  const double halfLon = (view.LonRight - view.LonLeft) / 2 * factor;
  return {view.LatDispCenter + halfLat, view.LatDispCenter - halfLat, view.LonDispCenter - halfLon,
          view.LonDispCenter + halfLon};
}

PixelPoint Rounded(double x, double y) {
  return {RoundHalfEven(x), RoundHalfEven(y)};
}

/// Every segment as it stands: the quad and the joint before it, nothing looked up and nothing left out.
void PaintPlainLine(Surface& surface, const ViewState& view, const LineRec& line) {
  surface.SetPen(line.Color);
  surface.SetBrush(line.Color);
  std::array<PixelPoint, 4> quad;
  for (std::size_t k = 1; k < line.Points.size(); ++k) {
    const CanvasPoint a = ToCanvas(view, line.Points[k - 1].Lon, line.Points[k - 1].Lat);
    const CanvasPoint b = ToCanvas(view, line.Points[k].Lon, line.Points[k].Lat);
    const double wa = line.Points[k - 1].Wid * view.Scale.PixelsPerMeter / 2;
    const double wb = line.Points[k].Wid * view.Scale.PixelsPerMeter / 2;
    const double length = std::max(std::hypot(b.x - a.x, b.y - a.y), 5.744485294117647e-8);
    const double ux = (b.x - a.x) / length, uy = (b.y - a.y) / length;
    quad[0] = Rounded(a.x - wa * uy, a.y + wa * ux);
    quad[1] = Rounded(a.x + wa * uy, a.y - wa * ux);
    if (k > 1 && 2 * wa > 2) surface.Polygon(quad);
    quad[2] = Rounded(b.x + wb * uy, b.y - wb * ux);
    quad[3] = Rounded(b.x - wb * uy, b.y + wb * ux);
    surface.Polygon(quad);
  }
}

void PaintPlainRing(Surface& surface, const ViewState& view, const PolyRec& poly) {
  std::vector<PixelPoint> ring;
  for (const PolyPoint& point : poly.Points) {
    const CanvasPoint at = ToCanvas(view, point.Lon, point.Lat);
    ring.push_back(Rounded(at.x, at.y));
  }
  surface.SetPen(0);
  surface.SetBrush(poly.Color);
  surface.Polygon(ring);
}

/// After a load or an edit.
void FirstRepaint(benchmark::State& state, double areaFactor) {
  Canvas canvas;
  const ProjectState project =
      RoadMap(canvas.View(), Around(canvas.View(), areaFactor), MillionLines, Roads());
  std::vector<std::uint8_t> drawn;
  for (auto _ : state)
    DisplayLines(canvas.Target(), canvas.Input(project, nullptr), drawn);
}

void RepaintLakes(benchmark::State& state, double areaFactor, std::size_t rings) {
  Canvas canvas;
  const ProjectState project = Lakes(canvas.View(), Around(canvas.View(), areaFactor), rings, Roads());
  const GeometryIndex index(project);
  std::vector<std::uint8_t> drawn;
  for (auto _ : state)
    DisplayPolys(canvas.Target(), canvas.Input(project, &index), drawn);
}

void PlainLakes(benchmark::State& state) {
  Canvas canvas;
  const ProjectState project = Lakes(canvas.View(), Around(canvas.View(), 1), MillionLines, Roads());
  for (auto _ : state) {
    for (const PolyRec& poly : project.Polys)
      PaintPlainRing(canvas.Target(), canvas.View(), poly);
  }
}

/// Each vertex on the other side of its place than the one before; `reach`: of a side, in pixels.
ProjectState Spikes(const ViewState& view, std::size_t vertices, double reach) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> part(-1, 1);
  ProjectState project;
  PolyRec poly;
  poly.Color = 0x80C0FF;
  const double height = std::max(Height / 2 - reach, 0.0);
  for (std::size_t i = 0; i < vertices; ++i) {
    const double side = i % 2 == 0 ? 1 : -1;
    const double along = 2.0 * static_cast<double>(i) / static_cast<double>(vertices) - 1;
    const double x = part(random) * std::min(reach * 2, Width * 2.0);
    const double y = along * height + side * reach * (1 + std::abs(part(random))) / 2;
    poly.Points.push_back({view.LonDispCenter + x / view.Scale.PixelsPerDegLon,
                           view.LatDispCenter + y / view.Scale.PixelsPerDegLat, 0, false});
  }
  SetPathBounds(poly);
  project.Polys.push_back(std::move(poly));
  return project;
}

void Ring(benchmark::State& state, std::size_t vertices, double reach) {
  Canvas canvas;
  const ProjectState project = Spikes(canvas.View(), vertices, reach);
  const GeometryIndex index(project);
  std::vector<std::uint8_t> drawn;
  for (auto _ : state)
    DisplayPolys(canvas.Target(), canvas.Input(project, &index), drawn);
}

void PlainRing(benchmark::State& state, std::size_t vertices, double reach) {
  Canvas canvas;
  const ProjectState project = Spikes(canvas.View(), vertices, reach);
  for (auto _ : state)
    PaintPlainRing(canvas.Target(), canvas.View(), project.Polys.front());
}

/// Paints a road map again and again; the canvas is its own.
class Repainter {
public:
  Repainter(double areaFactor, std::size_t lines, const Roads& roads)
      : m_project(RoadMap(m_canvas.View(), Around(m_canvas.View(), areaFactor), lines, roads)),
        m_index(m_project) {}

  void Paint() { DisplayLines(m_canvas.Target(), m_canvas.Input(m_project, &m_index), m_drawn); }
  void PaintPlainly() {
    for (const LineRec& line : m_project.Lines)
      PaintPlainLine(m_canvas.Target(), m_canvas.View(), line);
  }

private:
  Canvas m_canvas;
  ProjectState m_project;
  GeometryIndex m_index;
  std::vector<std::uint8_t> m_drawn;
};

template <class Work>
double Milliseconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

template <class First, class Second>
void Compare(benchmark::State& state, First first, Second second) {
  double firstSum = 0, secondSum = 0;
  for (auto _ : state) {
    firstSum += Milliseconds(first);
    secondSum += Milliseconds(second);
  }
  using benchmark::Counter;
  state.counters["ms"] = Counter(firstSum, Counter::kAvgIterations);
  state.counters["reference_ms"] = Counter(secondSum, Counter::kAvgIterations);
  state.counters["ratio"] = firstSum / secondSum;
}

void RatioToPlain(benchmark::State& state, const Roads& roads) {
  Repainter million(1, MillionLines, roads);
  Compare(
      state, [&] { million.Paint(); }, [&] { million.PaintPlainly(); });
}

void RatioOfHundredth(benchmark::State& state, const Roads& roads) {
  Repainter whole(10, MillionLines, roads), part(1, MillionLines / 100, roads);
  Compare(
      state, [&] { whole.Paint(); }, [&] { part.Paint(); });
}

void MakeIndex(benchmark::State& state) {
  const Canvas canvas;
  const ProjectState project = RoadMap(canvas.View(), Around(canvas.View(), 1), MillionLines, Roads());
  for (auto _ : state)
    benchmark::DoNotOptimize(GeometryIndex(project));
}

constexpr auto Unit = benchmark::kMillisecond;
BENCHMARK_CAPTURE(RatioToPlain, million_points, Roads())->Name("Ratio/million_points")->Unit(Unit);
BENCHMARK_CAPTURE(RatioToPlain, million_points_dense, Dense)->Name("Ratio/million_points_dense")->Unit(Unit);
BENCHMARK_CAPTURE(RatioToPlain, million_points_long, Long)->Name("Ratio/million_points_long")->Unit(Unit);
BENCHMARK_CAPTURE(RatioToPlain, million_points_mixed, Mixed)->Name("Ratio/million_points_mixed")->Unit(Unit);
BENCHMARK_CAPTURE(RatioToPlain, million_points_wide, Wide)->Name("Ratio/million_points_wide")->Unit(Unit);
BENCHMARK_CAPTURE(RatioOfHundredth, hundredth_in_view, Roads())->Name("Ratio/hundredth_in_view")->Unit(Unit);
BENCHMARK_CAPTURE(RatioOfHundredth, hundredth_in_view_wide, Wide)
    ->Name("Ratio/hundredth_in_view_wide")
    ->Unit(Unit);
BENCHMARK_CAPTURE(FirstRepaint, million_points, 1)->Unit(Unit);
BENCHMARK_CAPTURE(FirstRepaint, hundredth_in_view, 10)->Unit(Unit);
BENCHMARK(PlainLakes)->Unit(Unit);
BENCHMARK_CAPTURE(RepaintLakes, million_points, 1, MillionLines)->Unit(Unit);
BENCHMARK_CAPTURE(RepaintLakes, hundredth_in_view, 10, MillionLines)->Unit(Unit);
BENCHMARK_CAPTURE(RepaintLakes, only_that_hundredth, 1, MillionLines / 100)->Unit(Unit);
BENCHMARK_CAPTURE(Ring, spikes_100000, 100000, 2 * Height)->Unit(Unit);
BENCHMARK_CAPTURE(Ring, short_spikes_100000, 100000, 24)->Unit(Unit);
BENCHMARK_CAPTURE(Ring, few_spikes, 3900, 2 * Height)->Unit(Unit);
BENCHMARK_CAPTURE(PlainRing, short_spikes_100000, 100000, 24)->Unit(Unit);
BENCHMARK_CAPTURE(PlainRing, spikes_100000, 100000, 2 * Height)->Unit(Unit)->Iterations(1);
BENCHMARK(MakeIndex)->Unit(Unit);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
