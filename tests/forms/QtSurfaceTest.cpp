#include "core/Color.h"
#include "forms/QtSurface.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace landsmith {
namespace {

constexpr std::int32_t Red = Rgb(255, 0, 0), Green = Rgb(0, 255, 0), Blue = Rgb(0, 0, 255),
                       White = Rgb(255, 255, 255);

class QtSurfaceTest : public testing::Test {
protected:
  QtSurfaceTest() : image(40, 40, QImage::Format_RGB32), surface(image) { surface.Clear(Qt::white); }

  /// The colours of a row, one letter a pixel.
  std::string Row(int y, int width) const {
    std::string letters;
    for (int x = 0; x < width; ++x) {
      const std::int32_t color = surface.Pixel({x, y});
      letters += color == White ? '.' : color == Red ? 'r' : color == Green ? 'g' : color == Blue ? 'b' : '?';
    }
    return letters;
  }

  QImage image;
  QtSurface surface;
};

TEST_F(QtSurfaceTest, ABoxIsFramedOnItsOutermostPixels) {
  surface.SetPen(Red, 1, PenStyle::Solid);
  surface.SetBrush(Green, BrushStyle::Solid);
  surface.Box({2, 1, 6, 4});
  EXPECT_EQ(Row(0, 8), "........");
  EXPECT_EQ(Row(1, 8), "..rrrr..");
  EXPECT_EQ(Row(2, 8), "..rggr..");
  EXPECT_EQ(Row(3, 8), "..rrrr..");
  EXPECT_EQ(Row(4, 8), "........");
}

TEST_F(QtSurfaceTest, BoxesOfOtherShapes) {
  surface.SetBrush(Green, BrushStyle::Solid);
  surface.SetPen(Red, 1, PenStyle::None);
  surface.Box({6, 2, 2, 1});  // corners given the other way round, no frame
  surface.Box({2, 3, 2, 9});  // nothing inside
  surface.SetPen(Red, 1, PenStyle::Solid);
  surface.Box({1, 5, 2, 6});  // one pixel is all frame
  EXPECT_EQ(Row(1, 8), "..gggg..");
  EXPECT_EQ(Row(2, 8), "........");
  EXPECT_EQ(Row(4, 8), "........");
  EXPECT_EQ(Row(5, 8), ".r......");
}

TEST_F(QtSurfaceTest, APolygonThatRunsOverItselfLeavesAHole) {
  surface.SetPen(Green, 1, PenStyle::None);
  surface.SetBrush(Green, BrushStyle::Solid);
  const std::array<PixelPoint, 10> ring{
      {{0, 0}, {30, 0}, {30, 30}, {0, 30}, {0, 0}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}}};
  surface.Polygon(ring);
  EXPECT_EQ(surface.Pixel({5, 15}), Green);
  EXPECT_EQ(surface.Pixel({15, 15}), White);
  EXPECT_EQ(surface.Pixel({25, 15}), Green);
  EXPECT_EQ(surface.Pixel({35, 15}), White);
}

TEST_F(QtSurfaceTest, APolygonIsClosedAndHasNoBlendedEdge) {
  surface.SetPen(Red, 1, PenStyle::Solid);
  surface.SetBrush(Green, BrushStyle::Solid);
  const std::array<PixelPoint, 3> triangle{{{3, 2}, {33, 9}, {7, 36}}};
  surface.Polygon(triangle);
  for (const PixelPoint& corner : triangle)
    EXPECT_EQ(surface.Pixel(corner), Red);
  EXPECT_EQ(surface.Pixel({5, 19}), Red);  // middle of the edge that closes it
  for (int y = 0; y < 40; ++y)
    EXPECT_EQ(Row(y, 40).find('?'), std::string::npos) << "row " << y;
}

TEST_F(QtSurfaceTest, SpansAreCutToTheSurface) {
  surface.SetPen(Red, 1, PenStyle::Solid);
  const std::vector<PixelSpan> spans{{-1, 0, 40}, {1, -5, 3}, {2, 38, 99}, {3, 4, 4}, {3, 7, 5}, {40, 0, 40}};
  surface.Spans(spans, Blue);
  EXPECT_EQ(Row(0, 5), ".....");
  EXPECT_EQ(Row(1, 5), "bbb..");
  EXPECT_EQ(Row(2, 40), std::string(38, '.') + "bb");
  EXPECT_EQ(Row(3, 40), std::string(40, '.'));
  surface.Polyline(std::array<PixelPoint, 2>{{{0, 5}, {3, 5}}});
  EXPECT_EQ(surface.Pixel({1, 5}), Red) << "the pen is as it was";
}

TEST_F(QtSurfaceTest, PixelsOutsideAreWhite) {
  surface.Clear(Qt::black);
  EXPECT_EQ(surface.Pixel({-1, 0}), White);
  EXPECT_EQ(surface.Pixel({0, 40}), White);
  EXPECT_EQ(surface.Pixel({39, 39}), 0);
}

/// A picture of two pixels, the left one red and the right one blue.
std::filesystem::path RedAndBlue(const test::TempFolder& folder) {
  QImage picture(2, 1, QImage::Format_RGB32);
  picture.setPixelColor(0, 0, Qt::red);
  picture.setPixelColor(1, 0, Qt::blue);
  const std::filesystem::path file = folder / "two.bmp";
  picture.save(QString::fromStdString(file.string()));
  return file;
}

struct StretchRow {
  const char* name;
  PixelBox box;
  const char* row;  ///< row 0 of the surface
};

TEST_F(QtSurfaceTest, AnImageFillsItsBoxAtAnyZoom) {
  const test::TempFolder folder;
  const std::filesystem::path file = RedAndBlue(folder);
  const std::array rows{
      StretchRow{"natural size", {3, 0, 3, 0}, "...rb..."},
      StretchRow{"enlarged", {1, 0, 7, 2}, ".rrrbbb."},
      StretchRow{"far larger than the surface, its middle at 2", {-1000000, 0, 1000004, 10}, "rrbbbbbb"},
      StretchRow{"left half off the surface", {-3, 0, 3, 2}, "bbb....."},
  };
  for (const StretchRow& row : rows) {
    surface.Clear(Qt::white);
    surface.Image(file, row.box);
    EXPECT_EQ(Row(0, 8), row.row) << row.name;
  }
}

TEST_F(QtSurfaceTest, APictureIsShownAsItsFileIsNow) {
  const test::TempFolder folder;
  const std::filesystem::path file = RedAndBlue(folder);
  surface.Image(folder / "missing.bmp", {0, 0, 4, 4});
  EXPECT_EQ(Row(0, 4), "....");
  surface.Image(file, {0, 0, 0, 0});
  EXPECT_EQ(Row(0, 4), "rb..");

  QImage green(2, 1, QImage::Format_RGB32);
  green.fill(Qt::green);
  green.save(QString::fromStdString(file.string()));
  std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::seconds(2));
  surface.Image(file, {0, 0, 0, 0});
  EXPECT_EQ(Row(0, 4), "gg..");
}

TEST(QtSurfaceScaled, DrawsLogicalPixelsAsBlocks) {
  QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(2);
  QtSurface surface(image);
  surface.Clear(Qt::transparent);
  EXPECT_EQ(surface.Width(), 10);
  EXPECT_EQ(surface.Height(), 10);

  surface.SetPen(Red, 1, PenStyle::None);
  surface.SetBrush(Green, BrushStyle::Solid);
  surface.Box({1, 1, 3, 3});
  surface.Spans(std::array<PixelSpan, 1>{{{5, 1, 3}}}, Blue);
  EXPECT_EQ(image.pixelColor(1, 2).alpha(), 0);
  EXPECT_EQ(FromQColor(image.pixelColor(2, 2)), Green);
  EXPECT_EQ(FromQColor(image.pixelColor(5, 5)), Green);
  EXPECT_EQ(image.pixelColor(6, 5).alpha(), 0);
  EXPECT_EQ(FromQColor(image.pixelColor(5, 11)), Blue);
  EXPECT_EQ(image.pixelColor(5, 12).alpha(), 0);
  EXPECT_EQ(surface.Pixel({2, 5}), Blue);
}

}  // namespace
}  // namespace landsmith
