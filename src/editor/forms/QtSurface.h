// The Surface of the window and of rendered pictures: a QPainter on a QImage, without antialiasing.
#pragma once

#include "platform/Surface.h"

#include <QImage>

#include <map>
#include <memory>

class QPainter;

namespace landsmith {

class QtSurface final : public Surface {
public:
  /// Paints on `image`, which must outlive the surface. Needs no QApplication as long as Text is not called.
  explicit QtSurface(QImage& image);
  ~QtSurface() override;

  std::int32_t Width() const override;
  std::int32_t Height() const override;
  void SetPen(std::int32_t color, std::int32_t width, PenStyle style) override;
  void SetBrush(std::int32_t color, BrushStyle style) override;
  void Polygon(std::span<const PixelPoint> ring) override;
  void Polyline(std::span<const PixelPoint> points) override;
  void Box(const PixelBox& box) override;
  void Image(const std::filesystem::path& file, const PixelBox& box) override;
  void Text(PixelPoint at, std::string_view text) override;
  std::int32_t Pixel(PixelPoint at) const override;

  /// Fills the whole image, also with a transparent colour.
  void Clear(const QColor& color);

private:
  QImage& m_image;
  std::unique_ptr<QPainter> m_painter;
  std::map<std::filesystem::path, QImage> m_pictures;  ///< decoded once
};

}  // namespace landsmith
