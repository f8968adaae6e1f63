#include "forms/QtSurface.h"

#include "core/Color.h"
#include "forms/PicturePainter.h"

#include <QPen>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

using QtPoints = QVarLengthArray<QPoint, 64>;

QtPoints ToQPoints(std::span<const PixelPoint> points) {
  QtPoints result;
  result.reserve(static_cast<qsizetype>(points.size()));
  for (const PixelPoint& point : points)
    result.append(QPoint(point.x, point.y));
  return result;
}

}  // namespace

QColor ToQColor(std::int32_t color) {
  const ColorParts parts = SplitColor(color);
  return QColor(parts.R, parts.G, parts.B);
}

std::int32_t FromQColor(const QColor& color) {
  return Rgb(color.red(), color.green(), color.blue());
}

QtSurface::QtSurface(QImage& image, std::shared_ptr<PictureCache> pictures)
    : m_image(image),
      m_pictures(pictures ? std::move(pictures) : std::make_shared<PictureCache>()),
      m_painter(&image) {
  SetPen(0, 1, PenStyle::Solid);
}

std::int32_t QtSurface::Width() const {
  return m_image.deviceIndependentSize().toSize().width();
}

std::int32_t QtSurface::Height() const {
  return m_image.deviceIndependentSize().toSize().height();
}

void QtSurface::SetPen(std::int32_t color, std::int32_t width, PenStyle style) {
  if (style == PenStyle::None) {
    m_painter.setPen(Qt::NoPen);
    return;
  }
  QPen pen(ToQColor(color), width * m_image.devicePixelRatio(), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  pen.setCosmetic(true);
  if (style == PenStyle::Dot) pen.setDashPattern({3, 3});
  m_painter.setPen(pen);
}

void QtSurface::SetBrush(std::int32_t color, BrushStyle style) {
  switch (style) {
    case BrushStyle::Solid:
      m_painter.setBrush(ToQColor(color));
      break;
    case BrushStyle::DiagonalCross:
      m_painter.setBrush(QBrush(ToQColor(color), Qt::DiagCrossPattern));
      break;
    case BrushStyle::None:
      m_painter.setBrush(Qt::NoBrush);
      break;
  }
}

void QtSurface::Polygon(std::span<const PixelPoint> ring) {
  const QtPoints points = ToQPoints(ring);
  m_painter.drawPolygon(points.data(), static_cast<int>(points.size()), Qt::OddEvenFill);
}

void QtSurface::Polyline(std::span<const PixelPoint> points) {
  const QtPoints converted = ToQPoints(points);
  m_painter.drawPolyline(converted.data(), static_cast<int>(converted.size()));
}

void QtSurface::Spans(std::span<const PixelSpan> spans, std::int32_t color) {
  const QRgb value = ToQColor(color).rgb();
  const double ratio = m_image.devicePixelRatio();
  const auto device = [ratio](std::int32_t at, int limit) {
    return static_cast<int>(std::clamp(std::floor(at * ratio), 0.0, static_cast<double>(limit)));
  };
  for (const PixelSpan& span : spans) {
    const int left = device(span.left, m_image.width());
    const int right = device(span.right, m_image.width());
    if (right <= left || span.y < 0) continue;
    const int bottom = device(span.y + 1, m_image.height());
    for (int y = device(span.y, m_image.height()); y < bottom; ++y) {
      auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
      std::fill(row + left, row + right, value);
    }
  }
}

void QtSurface::Box(const PixelBox& box) {
  const QRect area(QPoint(std::min(box.left, box.right), std::min(box.top, box.bottom)),
                   QPoint(std::max(box.left, box.right) - 1, std::max(box.top, box.bottom) - 1));
  if (area.isEmpty()) return;
  if (m_painter.pen().style() == Qt::NoPen)
    m_painter.fillRect(area, m_painter.brush());
  else if (area.width() == 1 || area.height() == 1)  // all frame
    m_painter.fillRect(area, m_painter.pen().color());
  else
    m_painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void QtSurface::Image(const std::filesystem::path& file, const PixelBox& box) {
  const Picture& picture = m_pictures->Find(file);
  if (picture.IsNull()) return;
  if (box.right <= box.left || box.bottom <= box.top) {
    m_painter.drawImage(QPoint(box.left, box.top), picture.Full());
    return;
  }
  const QRectF target(QPointF(box.left, box.top), QPointF(box.right, box.bottom));
  PaintPicture(m_image, m_painter, picture, picture.Full().rect(), target, PictureQuality::Smooth);
}

void QtSurface::ImagePart(const std::filesystem::path& file, const PixelBox& source, const FloatBox& target,
                          PictureQuality quality) {
  const QRectF part(QPointF(source.left, source.top), QPointF(source.right, source.bottom));
  PaintPicture(m_image, m_painter, m_pictures->Find(file), part,
               QRectF(target.left, target.top, target.width, target.height), quality);
}

void QtSurface::ReplaceColor(std::int32_t from, std::int32_t to) {
  const QRgb searched = ToQColor(from).rgb(), put = ToQColor(to).rgb();
  const QRgb opaque = m_image.hasAlphaChannel() ? 0 : 0xFF000000;  // the fourth byte then says nothing
  for (int y = 0; y < m_image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(m_image.scanLine(y));
    for (int x = 0; x < m_image.width(); ++x)
      if ((row[x] | opaque) == searched) row[x] = put;
  }
}

void QtSurface::Text(PixelPoint at, std::string_view text) {
  const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  m_painter.drawText(QRect(at.x, at.y, Width(), Height()), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                     shown);
}

std::int32_t QtSurface::Pixel(PixelPoint at) const {
  const double ratio = m_image.devicePixelRatio();
  const QPoint place(static_cast<int>(at.x * ratio), static_cast<int>(at.y * ratio));
  return m_image.valid(place) ? FromQColor(m_image.pixelColor(place)) : Rgb(255, 255, 255);
}

void QtSurface::Clear(const QColor& color) {
  m_painter.setCompositionMode(QPainter::CompositionMode_Source);
  m_painter.fillRect(QRect(0, 0, Width() + 1, Height() + 1), color);
  m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

}  // namespace landsmith
