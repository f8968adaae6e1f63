// What the painters draw on: pens, brushes, polygons, boxes, images. One implementation over Qt serves the
// window and the pictures of the batch program; tests record the calls.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

namespace landsmith {

/// A pixel of the canvas, from its top left corner, x to the right, y down.
struct PixelPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const PixelPoint&) const = default;
};

/// Left and top inside, right and bottom outside.
struct PixelBox {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
  bool operator==(const PixelBox&) const = default;
};

/// Pixels of one row: left inside, right outside.
struct PixelSpan {
  std::int32_t y = 0;
  std::int32_t left = 0;
  std::int32_t right = 0;
  bool operator==(const PixelSpan&) const = default;
};

/// Pixels of the canvas, also between them.
struct FloatBox {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  bool operator==(const FloatBox&) const = default;
};

/// Smooth: where pixels of the picture are lost, their mean is shown. Exact: every colour shown is one of the
/// picture's, for pictures whose colours mean something.
enum class PictureQuality { Smooth, Exact };

enum class PenStyle { Solid, Dot, None };
enum class BrushStyle { Solid, DiagonalCross, None };

/// Colours are 0x00BBGGRR. Coordinates may lie outside the surface. Nothing is antialiased.
class Surface {
public:
  virtual ~Surface() = default;

  virtual std::int32_t Width() const = 0;
  virtual std::int32_t Height() const = 0;

  virtual void SetPen(std::int32_t color, std::int32_t width = 1, PenStyle style = PenStyle::Solid) = 0;
  virtual void SetBrush(std::int32_t color, BrushStyle style = BrushStyle::Solid) = 0;

  /// Outline in the pen, inside in the brush, alternate (odd-even) filling.
  virtual void Polygon(std::span<const PixelPoint> ring) = 0;
  virtual void Polyline(std::span<const PixelPoint> points) = 0;
  /// Sets the pixels of each span to `color`; neither pen nor brush counts, and both stay as they are. Spans
  /// may lie outside the surface and may overlap.
  virtual void Spans(std::span<const PixelSpan> spans, std::int32_t color) = 0;
  /// A box filled with the brush and framed with the pen; the frame lies on the outermost pixels.
  virtual void Box(const PixelBox& box) = 0;
  /// Paints a bitmap file scaled to `box`; a box without size paints it at its natural size from its top
  /// left corner. A file that cannot be shown paints nothing.
  virtual void Image(const std::filesystem::path& file, const PixelBox& box) = 0;
  /// Stretches a part of a bitmap file, in its own pixels, over `target`. What lies outside the picture or
  /// outside the surface is left out, the rest stays in its place. Enlarged pixels stay square.
  virtual void ImagePart(const std::filesystem::path& file, const PixelBox& source, const FloatBox& target,
                         PictureQuality quality) = 0;
  /// Gives all pixels of one colour another one, over the whole surface. Transparent ones have no colour.
  virtual void ReplaceColor(std::int32_t from, std::int32_t to) = 0;
  /// A text in the pen's colour, its top left corner at `at`. UTF-8.
  virtual void Text(PixelPoint at, std::string_view text) = 0;
  /// The colour of one pixel as painted so far; white outside.
  virtual std::int32_t Pixel(PixelPoint at) const = 0;
};

}  // namespace landsmith
