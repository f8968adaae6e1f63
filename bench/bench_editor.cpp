// How long a repaint takes, beside the same picture painted plainly, so that the ratios are seen in one run:
//
//   Repaint/million_points          below half of  Plain/million_points
//   Repaint/hundredth_in_view       at most 1.5 times  Repaint/only_that_hundredth
//   Ring/spikes_100000              below 200 ms, where the plain fill takes many seconds
#include "core/Numbers.h"
#include "editor/GeometryIndex.h"
#include "editor/Painters.h"
#include "forms/QtSurface.h"

#include <QImage>

#include <benchmark/benchmark.h>

#include <array>
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

/// Lines like those of a road map, each of ten vertices some pixels apart, strewn over `area`.
ProjectState RoadMap(const ViewState& view, const GeoBox& area, std::size_t lines, double segmentPixels) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> part(0, 1), turn(-0.5, 0.5);
  ProjectState project;
  for (std::size_t i = 0; i < lines; ++i) {
    LineRec line;
    line.Color = static_cast<std::int32_t>(random() & 0xFFFFFF);
    double lon = area.WLon + part(random) * (area.ELon - area.WLon);
    double lat = area.SLat + part(random) * (area.NLat - area.SLat);
    double heading = part(random) * 2 * Pi;
    for (std::size_t k = 0; k < PointsPerLine; ++k) {
      line.Points.push_back({lon, lat, 12, false});
      heading += turn(random);
      lon += segmentPixels * std::cos(heading) / view.Scale.PixelsPerDegLon;
      lat += segmentPixels * std::sin(heading) / view.Scale.PixelsPerDegLat;
    }
    SetPathBounds(line);
    project.Lines.push_back(std::move(line));
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

void Repaint(benchmark::State& state, double areaFactor, std::size_t lines, double segmentPixels) {
  Canvas canvas;
  const ProjectState project =
      RoadMap(canvas.View(), Around(canvas.View(), areaFactor), lines, segmentPixels);
  const GeometryIndex index(project);
  std::vector<std::uint8_t> drawn;
  for (auto _ : state)
    DisplayLines(canvas.Target(), canvas.Input(project, &index), drawn);
}

void Plain(benchmark::State& state, double segmentPixels) {
  Canvas canvas;
  const ProjectState project = RoadMap(canvas.View(), Around(canvas.View(), 1), MillionLines, segmentPixels);
  for (auto _ : state) {
    for (const LineRec& line : project.Lines)
      PaintPlainLine(canvas.Target(), canvas.View(), line);
  }
}

/// Each vertex far out on the other side of the view from the one before.
ProjectState Spikes(const ViewState& view, std::size_t vertices) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> part(-1, 1);
  ProjectState project;
  PolyRec poly;
  poly.Color = 0x80C0FF;
  for (std::size_t i = 0; i < vertices; ++i) {
    const double side = i % 2 == 0 ? 1 : -1;
    const double x = part(random) * Width * 2, y = side * Height * (1 + std::abs(part(random)));
    poly.Points.push_back({view.LonDispCenter + x / view.Scale.PixelsPerDegLon,
                           view.LatDispCenter + y / view.Scale.PixelsPerDegLat, 0, false});
  }
  SetPathBounds(poly);
  project.Polys.push_back(std::move(poly));
  return project;
}

void Ring(benchmark::State& state, std::size_t vertices) {
  Canvas canvas;
  const ProjectState project = Spikes(canvas.View(), vertices);
  const GeometryIndex index(project);
  std::vector<std::uint8_t> drawn;
  for (auto _ : state)
    DisplayPolys(canvas.Target(), canvas.Input(project, &index), drawn);
}

void PlainRing(benchmark::State& state, std::size_t vertices) {
  Canvas canvas;
  const ProjectState project = Spikes(canvas.View(), vertices);
  const PolyRec& poly = project.Polys.front();
  for (auto _ : state) {
    std::vector<PixelPoint> ring;
    for (const PolyPoint& point : poly.Points) {
      const CanvasPoint at = ToCanvas(canvas.View(), point.Lon, point.Lat);
      ring.push_back(Rounded(at.x, at.y));
    }
    canvas.Target().SetPen(0);
    canvas.Target().SetBrush(poly.Color);
    canvas.Target().Polygon(ring);
  }
}

void MakeIndex(benchmark::State& state) {
  const Canvas canvas;
  const ProjectState project = RoadMap(canvas.View(), Around(canvas.View(), 1), MillionLines, SegmentPixels);
  for (auto _ : state)
    benchmark::DoNotOptimize(GeometryIndex(project));
}

constexpr auto Unit = benchmark::kMillisecond;
BENCHMARK_CAPTURE(Plain, million_points, SegmentPixels)->Unit(Unit);
BENCHMARK_CAPTURE(Repaint, million_points, 1, MillionLines, SegmentPixels)->Unit(Unit);
BENCHMARK_CAPTURE(Plain, million_points_dense, 0.4)->Unit(Unit);
BENCHMARK_CAPTURE(Repaint, million_points_dense, 1, MillionLines, 0.4)->Unit(Unit);
BENCHMARK_CAPTURE(Plain, million_points_long, 20)->Unit(Unit);
BENCHMARK_CAPTURE(Repaint, million_points_long, 1, MillionLines, 20)->Unit(Unit);
BENCHMARK_CAPTURE(Repaint, hundredth_in_view, 10, MillionLines, SegmentPixels)->Unit(Unit);
BENCHMARK_CAPTURE(Repaint, only_that_hundredth, 1, MillionLines / 100, SegmentPixels)->Unit(Unit);
BENCHMARK_CAPTURE(Ring, spikes_100000, 100000)->Unit(Unit);
BENCHMARK_CAPTURE(PlainRing, spikes_100000, 100000)->Unit(Unit)->Iterations(1);
BENCHMARK(MakeIndex)->Unit(Unit);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
