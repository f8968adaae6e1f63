// What is painted without a painter, for speed, must look as the painter's own work does.
#include "editor/Painters.h"
#include "editor/QuadRaster.h"
#include "editor/RingRaster.h"
#include "forms/QtSurface.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace landsmith {
namespace {

/// Filled in one go by the painter.
void PaintRing(QImage& image, std::span<const PixelPoint> ring, std::int32_t border, std::int32_t fill) {
  QtSurface surface(image);
  surface.SetPen(border, 1, PenStyle::Solid);
  surface.SetBrush(fill, BrushStyle::Solid);
  surface.Polygon(ring);
}

QImage Paper(int width, int height) {
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  return image;
}

int CountDifferent(const QImage& a, const QImage& b) {
  int different = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      different += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
  return different;
}

enum class QuadKind { Any, Stroke, NearlyStroke };

PixelQuad RandomQuad(std::mt19937& random, int size, QuadKind kind) {
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  PixelQuad quad;
  for (PixelPoint& corner : quad)
    corner = {below(size) + 5, below(size) + 5};
  const int apart = kind == QuadKind::NearlyStroke ? 1 : 0;
  if (kind != QuadKind::Any) {
    quad[1] = {quad[0].x + below(2 * apart + 1) - apart, quad[0].y + below(2 * apart + 1) - apart};
    quad[2] = {quad[3].x + below(2 * apart + 1) - apart, quad[3].y + below(2 * apart + 1) - apart};
  }
  return quad;
}

TEST(QuadRasterAndPainter, SetTheSamePixels) {
  std::mt19937 random(5);
  int compared = 0;
  for (const int size : {2, 3, 6, 12, 30, 60}) {
    for (int i = 0; i < 3000; ++i) {
      const PixelQuad quad = RandomQuad(random, size, static_cast<QuadKind>(i % 3));
      std::vector<PixelSpan> spans;
      if (!AppendQuad(quad, spans)) continue;
      ++compared;
      QImage painted = Paper(72, 72), spanned = painted.copy();
      PaintRing(painted, quad, 255, 255);
      QtSurface(spanned).Spans(spans, 255);
      ASSERT_EQ(painted, spanned) << size << ' ' << i;
    }
  }
  EXPECT_GT(compared, 10000);
}

TEST(RingRasterAndPainter, SetTheSamePixelsButForAFewOfTheBorder) {
  constexpr int width = 400, height = 300;
  std::mt19937 random(6);
  for (const unsigned vertices : {3U, 8U, 41U}) {
    std::vector<PixelPoint> ring(vertices);
    for (PixelPoint& at : ring)
      at = {static_cast<int>(random() % (2 * width)) - width / 2,
            static_cast<int>(random() % (2 * height)) - height / 2};
    QImage painted = Paper(width, height), own = painted.copy();
    PaintRing(painted, ring, 0, 255);
    {
      QtSurface surface(own);
      PaintHugeRing(surface, ring, {0, 255, true});
    }
    const int border = static_cast<int>(vertices) * (width + height);
    EXPECT_LT(CountDifferent(painted, own), border / 20) << vertices;
  }
}

struct Roads {
  ProjectState project;
  ViewState view;
  AppSettings settings;
  ToolState tool;
  ClassTable classes;
  std::filesystem::path bitmaps;

  void PaintOn(QImage& image, const ProjectState& lines) const {
    QtSurface surface(image);
    std::vector<std::uint8_t> drawn;
    DisplayLines(surface, {lines, settings, view, tool, classes, classes, bitmaps}, drawn);
  }
};

/// Lines of all widths up to 40 pixels whose vertices are all more than a pixel apart.
Roads MakeRoads(std::size_t lines) {
  Roads roads;
  ViewState& view = roads.view;
  view.ScaleWidth = 800;
  view.ScaleHeight = 600;
  UpdateScale(view);
  SetDisplayExtent(view);
  std::mt19937 random(7);
  std::uniform_real_distribution<double> part(0, 1);
  for (std::size_t i = 0; i < lines; ++i) {
    LineRec line;
    line.Color = static_cast<std::int32_t>(random() & 0xFFFFFF);
    double x = part(random) * 900 - 450, y = part(random) * 700 - 350, heading = part(random) * 7;
    for (int k = 0; k < 10; ++k) {
      const auto width = static_cast<float>(std::pow(part(random), 3) * 40 / view.Scale.PixelsPerMeter);
      line.Points.push_back({x / view.Scale.PixelsPerDegLon, y / view.Scale.PixelsPerDegLat, width, false});
      heading += part(random) * 2 - 1;
      const double length = 1.5 + part(random) * part(random) * 60;
      x += length * std::cos(heading);
      y += length * std::sin(heading);
    }
    SetPathBounds(line);
    roads.project.Lines.push_back(std::move(line));
  }
  return roads;
}

// Few lines go to the painter one by one, many are put together: the picture must not tell which.
TEST(DisplayLinesPicture, IsTheSameForManyLinesAsForTheirParts) {
  const Roads roads = MakeRoads(3000);
  QImage whole = Paper(800, 600), parts = whole.copy();
  roads.PaintOn(whole, roads.project);
  constexpr std::ptrdiff_t linesOfPart = 250;
  const auto& lines = roads.project.Lines;
  for (auto first = lines.begin(); first != lines.end();) {
    const auto behind = first + std::min(linesOfPart, lines.end() - first);
    ProjectState part;
    for (; first != behind; ++first)
      part.Lines.push_back(*first);
    roads.PaintOn(parts, part);
  }
  EXPECT_NE(whole, Paper(800, 600));
  EXPECT_EQ(CountDifferent(whole, parts), 0);
}

}  // namespace
}  // namespace landsmith
