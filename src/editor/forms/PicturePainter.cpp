#include "forms/PicturePainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace landsmith {

namespace {

/// For each pixel of the image, from `first` on, the pixel of the picture under its middle.
struct Samples {
  int first = 0;
  std::vector<int> source;
};

/// One axis of a nearest stretch. Worked out in doubles: at a high zoom a map is far wider than the canvas.
Samples SampleAxis(double sourceLow, double sourceHigh, int sourcePixels, double targetLow, double targetHigh,
                   int imagePixels) {
  Samples samples;
  const double perTarget = (sourceHigh - sourceLow) / (targetHigh - targetLow);
  const double low = std::max(sourceLow, 0.0);
  const double high = std::min(sourceHigh, static_cast<double>(sourcePixels));
  const auto held = [&](double at) {
    return static_cast<int>(std::clamp(at, 0.0, static_cast<double>(imagePixels)));
  };
  samples.first = held(std::floor(targetLow + (low - sourceLow) / perTarget));
  const int last = held(std::ceil(targetLow + (high - sourceLow) / perTarget));
  for (int at = samples.first; at < last; ++at) {
    const double place = std::floor(sourceLow + (at + 0.5 - targetLow) * perTarget);
    if (place >= low && place < high)
      samples.source.push_back(static_cast<int>(place));
    else if (samples.source.empty())
      samples.first = at + 1;
  }
  return samples;
}

QRgb Over(QRgb color, QRgb below) {
  const int alpha = qAlpha(color);
  if (alpha == 255) return color;
  const auto mixed = [rest = 255 - alpha](int upper, int lower) {
    return std::min(upper + (lower * rest + 127) / 255, 255);
  };
  return qRgba(mixed(qRed(color), qRed(below)), mixed(qGreen(color), qGreen(below)),
               mixed(qBlue(color), qBlue(below)), mixed(alpha, qAlpha(below)));
}

/// `put(pixel, row, column)` sets a pixel of the image from a row of the picture.
template <class Put>
void SampleRows(QImage& image, const QImage& picture, const Samples& x, const Samples& y, Put put) {
  int at = y.first;
  for (const int sourceRow : y.source) {
    const uchar* row = picture.constScanLine(sourceRow);
    auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(at++)) + x.first;
    for (const int column : x.source)
      put(*pixel++, row, column);
  }
}

/// Pixel for pixel.
void CopyRows(QImage& image, const QImage& picture, const Samples& x, const Samples& y) {
  int at = y.first;
  for (const int sourceRow : y.source) {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(sourceRow)) + x.source.front();
    auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(at++)) + x.first;
    std::transform(row, row + x.source.size(), pixel, [](QRgb color) { return 0xFF000000 | color; });
  }
}

bool IsOneToOne(const Samples& samples) {
  const auto& source = samples.source;
  return !source.empty() && source.back() - source.front() == static_cast<int>(source.size()) - 1 &&
         std::adjacent_find(source.begin(), source.end()) == source.end();
}

void PaintNearest(QImage& image, const QImage& picture, const Samples& x, const Samples& y) {
  if (picture.format() == QImage::Format_Indexed8) {
    const QList<QRgb> table = FullColorTable(picture);
    SampleRows(image, picture, x, y, [colors = table.constData()](QRgb& pixel, const uchar* row, int column) {
      pixel = 0xFF000000 | colors[row[column]];
    });
  } else if (picture.hasAlphaChannel()) {
    SampleRows(image, picture, x, y, [](QRgb& pixel, const uchar* row, int column) {
      pixel = Over(reinterpret_cast<const QRgb*>(row)[column], pixel);
    });
  } else if (IsOneToOne(x)) {
    CopyRows(image, picture, x, y);
  } else {
    SampleRows(image, picture, x, y, [](QRgb& pixel, const uchar* row, int column) {
      pixel = 0xFF000000 | reinterpret_cast<const QRgb*>(row)[column];
    });
  }
}

/// The part of the picture that falls on the image, with a pixel more around, in whole pixels.
QRectF InView(const QRectF& source, const QRectF& target, const QSizeF& image, const QSize& picture) {
  const double perX = source.width() / target.width(), perY = source.height() / target.height();
  const QPointF low(source.left() - target.left() * perX, source.top() - target.top() * perY);
  const QRectF seen(low, QSizeF(image.width() * perX, image.height() * perY));
  const QRect whole = seen.intersected(source).adjusted(-1, -1, 1, 1).toAlignedRect();
  return QRectF(whole.intersected(QRect(QPoint(0, 0), picture))).intersected(source);
}

/// From the copy that is at most twice as large as it appears.
void PaintSmooth(QPainter& painter, const Picture& picture, const QRectF& source, const QRectF& target,
                 const QSizeF& image, double scale) {
  const QRectF part = InView(source, target, image, picture.Full().size());
  if (part.isEmpty()) return;
  const double perX = target.width() / source.width(), perY = target.height() / source.height();
  const QRectF place(target.left() + (part.left() - source.left()) * perX,
                     target.top() + (part.top() - source.top()) * perY, part.width() * perX,
                     part.height() * perY);
  const int times = std::max(0, static_cast<int>(std::floor(-std::log2(scale) + 1e-9)));
  const double shrink = std::ldexp(1.0, -times);
  const QRectF from(part.topLeft() * shrink, part.size() * shrink);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QImage& copy = picture.Halved(times);
  if (copy.format() != QImage::Format_Indexed8) {
    painter.drawImage(place, copy, from);
    return;
  }
  const QRect cut = from.toAlignedRect().intersected(copy.rect());
  painter.drawImage(place, copy.copy(cut).convertToFormat(QImage::Format_RGB32),
                    from.translated(-cut.topLeft()));
}

}  // namespace

void PaintPicture(QImage& image, QPainter& painter, const Picture& picture, const QRectF& source,
                  const QRectF& target, PictureQuality quality) {
  if (picture.IsNull() || source.isEmpty() || target.isEmpty()) return;
  const double ratio = image.devicePixelRatio();
  const double scale = ratio * std::max(target.width() / source.width(), target.height() / source.height());
  if (quality == PictureQuality::Smooth && scale < 1)
    return PaintSmooth(painter, picture, source, target, image.deviceIndependentSize(), scale);
  const QImage& full = picture.Full();
  PaintNearest(image, full,
               SampleAxis(source.left(), source.right(), full.width(), target.left() * ratio,
                          target.right() * ratio, image.width()),
               SampleAxis(source.top(), source.bottom(), full.height(), target.top() * ratio,
                          target.bottom() * ratio, image.height()));
}

}  // namespace landsmith
