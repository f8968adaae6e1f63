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
  surface.SetBrush(Green, BrushStyle::Solid);
  surface.SetPen(Red, 1, PenStyle::Solid);
  surface.Box({2, 1, 6, 4});
  surface.Box({1, 6, 2, 7});  // one pixel is all frame
  surface.SetPen(Red, 1, PenStyle::None);
  surface.Box({6, 9, 2, 8});   // corners given the other way round, no frame
  surface.Box({2, 9, 2, 12});  // nothing inside
  const char* const rows[] = {"........", "..rrrr..", "..rggr..", "..rrrr..", "........",
                              "........", ".r......", "........", "..gggg..", "........"};
  for (int y = 0; y < 10; ++y)
    EXPECT_EQ(Row(y, 8), rows[y]) << y;
}

TEST_F(QtSurfaceTest, APolygonThatRunsOverItselfLeavesAHole) {
  surface.SetPen(Green, 1, PenStyle::None);
  surface.SetBrush(Green, BrushStyle::Solid);
  const std::array<PixelPoint, 10> ring{
      {{0, 0}, {30, 0}, {30, 30}, {0, 30}, {0, 0}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}}};
  surface.Polygon(ring);
  EXPECT_EQ(surface.Pixel({5, 15}), Green);
  EXPECT_EQ(surface.Pixel({15, 15}), White);
  EXPECT_EQ(surface.Pixel({35, 15}), White);
  EXPECT_EQ(surface.Pixel({-1, 15}), White) << "outside";
  EXPECT_EQ(surface.Pixel({0, 40}), White) << "outside";
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

/// With a picture of two pixels, the left one red and the right one blue.
class QtSurfacePicture : public QtSurfaceTest {
protected:
  QtSurfacePicture() {
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(1, 0, Qt::blue);
    Save(picture);
  }
  void Save(const QImage& picture) const { picture.save(QString::fromStdString(file.string())); }
  /// Row 0 with the picture in this box.
  std::string Shown(const PixelBox& box) {
    surface.Image(file, box);
    return Row(0, 8);
  }

  test::TempFolder folder;
  std::filesystem::path file = folder / "two.bmp";
};

TEST_F(QtSurfacePicture, FillsItsBoxAtAnyZoom) {
  const struct {
    const char* name;
    PixelBox box;
    const char* row;
  } rows[] = {
      {"natural size", {3, 0, 3, 0}, "...rb..."},
      {"enlarged", {1, 0, 7, 2}, ".rrrbbb."},
      {"far larger than the surface, its middle at 2", {-1000000, 0, 1000004, 10}, "rrbbbbbb"},
      {"left half off the surface", {-3, 0, 3, 2}, "bbb....."},
  };
  for (const auto& row : rows) {
    surface.Clear(Qt::white);
    EXPECT_EQ(Shown(row.box), row.row) << row.name;
  }
}

TEST_F(QtSurfacePicture, IsShownAsItsFileIsNow) {
  surface.Image(folder / "missing.bmp", {0, 0, 4, 4});
  EXPECT_EQ(Row(0, 4), "....");
  EXPECT_EQ(Shown({0, 0, 0, 0}), "rb......");
  const auto later = std::filesystem::last_write_time(file) + std::chrono::seconds(2);
  // Another size within the clock's tick is another file too.
  for (const auto& [width, row] : {std::pair(2, "gg......"), std::pair(3, "ggg.....")}) {
    QImage green(width, 1, QImage::Format_RGB32);
    green.fill(Qt::green);
    Save(green);
    std::filesystem::last_write_time(file, later);
    EXPECT_EQ(Shown({0, 0, 0, 0}), row);
  }
}

TEST_F(QtSurfacePicture, PartGoesWhereItBelongs) {
  const struct {
    const char* name;
    PixelBox source;
    FloatBox target;
    const char* row;
  } rows[] = {
      {"whole", {0, 0, 2, 1}, {1, 0, 4, 2}, ".rrbb..."},
      {"second pixel", {1, 0, 2, 1}, {1, 0, 4, 2}, ".bbbb..."},
      {"beyond the picture", {1, 0, 4, 1}, {-1, 0, 9, 2}, "bb......"},
      {"a picture that begins later", {-1, 0, 2, 1}, {0, 0, 6, 2}, "..rrbb.."},
      {"middles of pixels count", {0, 0, 2, 1}, {0.4F, 0, 3, 2}, "rrb....."},
      {"nothing of it", {2, 0, 4, 1}, {0, 0, 4, 2}, "........"},
  };
  for (const auto& row : rows) {
    surface.Clear(Qt::white);
    surface.ImagePart(file, row.source, row.target, PictureQuality::Smooth);
    EXPECT_EQ(Row(0, 8), row.row) << row.name;
  }
}

// Columns of red and blue in turn, of 8 and of 24 bits, so large that the 8 stay 8.
TEST_F(QtSurfaceTest, SmallerPicturesAreMeansOrExact) {
  const test::TempFolder folder;
  for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_Indexed8}) {
    QImage picture(1601, 1001, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        picture.setPixel(x, y, x % 2 == 0 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
    const std::filesystem::path file = folder / ("stripes" + std::to_string(format) + ".bmp");
    picture.convertToFormat(format).save(QString::fromStdString(file.string()));
    surface.Clear(Qt::white);
    surface.ImagePart(file, {0, 0, 1600, 1000}, {2, 2, 32, 20}, PictureQuality::Exact);
    // The middle of pixel k lies in column 25 + 50 k, a blue one.
    EXPECT_EQ(Row(10, 36), ".." + std::string(32, 'b') + "..") << format;
    surface.ImagePart(file, {0, 0, 1600, 1000}, {2, 2, 32, 20}, PictureQuality::Smooth);
    for (const PixelPoint at : {PixelPoint{3, 3}, PixelPoint{18, 12}, PixelPoint{32, 20}}) {
      const ColorParts mean = SplitColor(surface.Pixel(at));
      EXPECT_NEAR(mean.R, 128, 1) << format;
      EXPECT_EQ(mean.G, 0) << format;
      EXPECT_NEAR(mean.B, 128, 1) << format;
    }
  }
}

TEST_F(QtSurfaceTest, TransparentPixelsLetThroughAndHaveNoColour) {
  const test::TempFolder folder;
  QImage picture(2, 1, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  picture.setPixelColor(0, 0, Qt::red);
  const std::filesystem::path file = folder / "half.png";
  picture.save(QString::fromStdString(file.string()));
  surface.ImagePart(file, {0, 0, 2, 1}, {0, 0, 4, 4}, PictureQuality::Exact);
  EXPECT_EQ(Row(0, 6), "rr....");
  surface.ReplaceColor(Red, Blue);
  EXPECT_EQ(Row(0, 6), "bb....");

  QImage overlay(2, 1, QImage::Format_ARGB32_Premultiplied);
  QtSurface on(overlay);
  on.Clear(Qt::transparent);
  on.SetPen(0, 1, PenStyle::Solid);
  on.Box({0, 0, 1, 1});
  on.ReplaceColor(0, Green);
  EXPECT_EQ(overlay.pixel(0, 0), qRgb(0, 255, 0));
  EXPECT_EQ(overlay.pixel(1, 0), 0U);
}

TEST(QtSurfaceScaled, DrawsLogicalPixelsAsBlocks) {
  QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(2);
  QtSurface surface(image);
  surface.Clear(Qt::transparent);
  surface.SetPen(Red, 1, PenStyle::None);
  surface.SetBrush(Green, BrushStyle::Solid);
  surface.Box({1, 1, 3, 3});
  surface.Spans(std::array<PixelSpan, 1>{{{5, 1, 3}}}, Blue);
  EXPECT_EQ(image.pixelColor(1, 2).alpha(), 0);
  EXPECT_EQ(FromQColor(image.pixelColor(2, 5)), Green);
  EXPECT_EQ(image.pixelColor(6, 5).alpha(), 0);
  EXPECT_EQ(FromQColor(image.pixelColor(5, 11)), Blue);
  EXPECT_EQ(image.pixelColor(5, 12).alpha(), 0);
  EXPECT_EQ(surface.Pixel({2, 5}), Blue);
}

}  // namespace
}  // namespace landsmith
