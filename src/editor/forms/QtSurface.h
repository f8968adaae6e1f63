// The Surface of the window and of rendered pictures: a QPainter on a QImage, without antialiasing.
#pragma once

#include "forms/PictureCache.h"
#include "platform/Surface.h"

#include <QImage>
#include <QPainter>

#include <memory>

namespace landsmith {

class QtSurface final : public Surface {
public:
  /// Paints on `image`, which must outlive the surface. Needs no QApplication as long as Text is not called.
  /// An image with a device pixel ratio is measured and addressed in device-independent pixels. Surfaces
  /// that show the same picture files may share `pictures`; without one the surface keeps its own.
  explicit QtSurface(QImage& image, std::shared_ptr<PictureCache> pictures = nullptr);

  std::int32_t Width() const override;
  std::int32_t Height() const override;
  void SetPen(std::int32_t color, std::int32_t width, PenStyle style) override;
  void SetBrush(std::int32_t color, BrushStyle style) override;
  void Polygon(std::span<const PixelPoint> ring) override;
  void Polyline(std::span<const PixelPoint> points) override;
  void Spans(std::span<const PixelSpan> spans, std::int32_t color) override;
  void Box(const PixelBox& box) override;
  void Image(const std::filesystem::path& file, const PixelBox& box) override;
  void ImagePart(const std::filesystem::path& file, const PixelBox& source, const FloatBox& target,
                 PictureQuality quality) override;
  void ReplaceColor(std::int32_t from, std::int32_t to) override;
  void Text(PixelPoint at, std::string_view text) override;
  std::int32_t Pixel(PixelPoint at) const override;

  /// Fills the whole image, also with a transparent colour.
  void Clear(const QColor& color);

private:
  QImage& m_image;
  std::shared_ptr<PictureCache> m_pictures;
  QPainter m_painter;
};

/// Colours of the records, 0x00BBGGRR, in Qt's form and back.
QColor ToQColor(std::int32_t color);
std::int32_t FromQColor(const QColor& color);

}  // namespace landsmith
