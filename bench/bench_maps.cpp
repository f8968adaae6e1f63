// How long a map of 10,000 by 10,000 pixels takes: once to read, then for each repaint. The counters of
// `Repaint` are milliseconds of the repaint and of a plain drawing of the whole picture into the same place,
// and the quotient of the two, timed in turn so that both meet the same machine:
//
//   Repaint/whole_map        below 0.5   the map as wide as the canvas is high
//   Repaint/mesh_whole_map   below 0.5   the same with exact colours
//   Repaint/half_size        below 0.5   two pixels of the picture to one of the canvas
//   Repaint/three_quarters, Repaint/enlarged   about 1
//   Repaint/pixel_to_pixel   below 3     the plain drawing is a copy of memory: less than a millisecond
#include "editor/MapView.h"
#include "editor/Painters.h"
#include "forms/QtSurface.h"
#include "platform/Paths.h"

#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <string>

namespace landsmith {
namespace {

constexpr int Side = 10000, Width = 1600, Height = 1000;

void PutNumber(std::string& bytes, std::size_t at, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i)
    bytes[at + i] = static_cast<char>(value >> (8 * i));
}

/// Slopes and stripes in 24 bits; made once, gone at the end.
class LargeBitmap {
public:
  LargeBitmap() : m_file(std::filesystem::temp_directory_path() / "landsmith_bench_map.bmp") {
    constexpr std::size_t head = 54, row = Side * 3;
    std::string bytes(head + row * Side, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    PutNumber(bytes, 2, static_cast<std::uint32_t>(bytes.size()));
    PutNumber(bytes, 10, head);
    PutNumber(bytes, 14, 40);
    PutNumber(bytes, 18, Side);
    PutNumber(bytes, 22, Side);
    bytes[26] = 1;
    bytes[28] = 24;
    for (std::size_t i = 0; i < row * Side; ++i)
      bytes[head + i] = static_cast<char>((i / 97) ^ (i / row));
    WriteWholeFile(m_file, bytes);
  }
  ~LargeBitmap() {
    std::error_code ignored;
    std::filesystem::remove(m_file, ignored);
  }
  LargeBitmap(const LargeBitmap&) = delete;
  LargeBitmap& operator=(const LargeBitmap&) = delete;
  const std::filesystem::path& File() const { return m_file; }

private:
  std::filesystem::path m_file;
};

const LargeBitmap& TheBitmap() {
  static const LargeBitmap bitmap;
  return bitmap;
}

/// The decoded picture, shared by the repaints.
const std::shared_ptr<PictureCache>& ThePictures() {
  static const auto pictures = std::make_shared<PictureCache>();
  pictures->Find(TheBitmap().File());
  return pictures;
}

double Milliseconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - since).count();
}

void Decode(benchmark::State& state) {
  TheBitmap();
  for (auto _ : state) {
    PictureCache fresh;
    benchmark::DoNotOptimize(fresh.Find(TheBitmap().File()).Bytes());
  }
}

void Halvings(benchmark::State& state) {
  const QImage& full = ThePictures()->Find(TheBitmap().File()).Full();
  for (auto _ : state) {
    const Picture fresh(full);
    benchmark::DoNotOptimize(fresh.Halved(4).width());
  }
}

/// A map one degree a side under the middle of a canvas; `scale`: pixels of the canvas to one of the picture.
struct MapOnCanvas {
  ProjectState project;
  AppSettings settings;
  ViewState view;
  ToolState tool;
  ClassTable classes;
  std::filesystem::path bitmaps;

  MapOnCanvas(double scale, const char* mapView) {
    settings.BorderON = false;
    MapRec map;
    map.Level[0] = {Side, Side, 0.5, -0.5, -0.5, 0.5};
    project.Maps.push_back(map);
    view.MapView = mapView;
    view.Pictures.Files = {TheBitmap().File()};
    view.ScaleWidth = Width;
    view.ScaleHeight = Height;
    view.Zoom = scale * Side * 0.010986328125 / 8;
    UpdateScale(view);
    SetDisplayExtent(view);
  }
  QRectF Target() const {
    const double side = view.Scale.PixelsPerDegLat;
    return {(Width - side) / 2, (Height - side) / 2, side, side};
  }
};

void Repaint(benchmark::State& state, double scale, const char* mapView) {
  const MapOnCanvas scene(scale, mapView);
  QImage image(Width, Height, QImage::Format_RGB32), plainImage = image;
  image.fill(Qt::white);
  QtSurface surface(image, ThePictures());
  const PaintInput in{scene.project, scene.settings, scene.view,   scene.tool,
                      scene.classes, scene.classes,  scene.bitmaps};
  const QImage& full = ThePictures()->Find(TheBitmap().File()).Full();
  DisplayMaps(surface, in);
  double ours = 0, plain = 0;
  for (auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    DisplayMaps(surface, in);
    ours += Milliseconds(start);
    const auto plainStart = std::chrono::steady_clock::now();
    QPainter painter(&plainImage);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1);
    painter.drawImage(scene.Target(), full);
    painter.end();
    plain += Milliseconds(plainStart);
  }
  const auto rounds = static_cast<double>(state.iterations());
  state.counters["ours_ms"] = ours / rounds;
  state.counters["plain_ms"] = plain / rounds;
  state.counters["ratio"] = ours / plain;
}

BENCHMARK(Decode)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(Halvings)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_CAPTURE(Repaint, whole_map, 0.1, "Summer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Repaint, mesh_whole_map, 0.1, "Mesh")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Repaint, half_size, 0.5, "Summer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Repaint, three_quarters, 0.75, "Summer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Repaint, pixel_to_pixel, 1.0, "Summer")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Repaint, enlarged, 8.0, "Summer")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace landsmith

BENCHMARK_MAIN();
