#include "forms/PictureCache.h"

#include "forms/QtText.h"
#include "platform/Paths.h"

#include <QImageReader>

#include <algorithm>
#include <numeric>
#include <system_error>

namespace landsmith {

namespace {

/// Maps of whole countries are larger than what the reader accepts by itself.
constexpr int MaxPictureMegabytes = 2048;
constexpr int SmallestCopy = 500;  ///< pixels; a copy of this size is made in no time
constexpr std::uint64_t KeptBytes = 1ULL << 30;
/// From this number of pixels on 8 bits stay 8 bits; smaller pictures are painted sooner from 32.
constexpr qsizetype LargePicture = 1 << 20;

QImage::Format FormatFor(const QImage& picture) {
  if (picture.hasAlphaChannel()) return QImage::Format_ARGB32_Premultiplied;
  const bool is8Bit =
      picture.format() == QImage::Format_Indexed8 || picture.format() == QImage::Format_Grayscale8;
  const qsizetype pixels = static_cast<qsizetype>(picture.width()) * picture.height();
  return is8Bit && pixels >= LargePicture ? QImage::Format_Indexed8 : QImage::Format_RGB32;
}

QImage Decode(const std::filesystem::path& file) {
  QImageReader::setAllocationLimit(MaxPictureMegabytes);
  QImageReader reader(PathToQString(file));
  reader.setDecideFormatFromContent(true);
  QImage picture = reader.read();
  if (picture.isNull()) return {};
  picture.convertTo(FormatFor(picture));
  picture.setDevicePixelRatio(1);
  return picture;
}

/// The mean of four pixels, each channel for itself.
QRgb Mean(QRgb a, QRgb b, QRgb c, QRgb d) {
  constexpr QRgb even = 0x00FF00FF, half = 0x00020002;
  const QRgb low = ((a & even) + (b & even) + (c & even) + (d & even) + half) >> 2;
  const QRgb high = (((a >> 8) & even) + ((b >> 8) & even) + ((c >> 8) & even) + ((d >> 8) & even) + half)
                    << 6;
  return (low & even) | (high & ~even);
}

/// `color(row, column)`: pixels of `picture`.
template <class Color>
QImage HalfOf(const QImage& picture, QImage::Format format, Color color) {
  QImage half((picture.width() + 1) / 2, (picture.height() + 1) / 2, format);
  const int lastColumn = picture.width() - 1, lastRow = picture.height() - 1, pairs = picture.width() / 2;
  for (int y = 0; y < half.height(); ++y) {
    const uchar* upper = picture.constScanLine(2 * y);
    const uchar* lower = picture.constScanLine(std::min(2 * y + 1, lastRow));
    auto* row = reinterpret_cast<QRgb*>(half.scanLine(y));
    const auto mean = [&](int left, int right) {
      return Mean(color(upper, left), color(upper, right), color(lower, left), color(lower, right));
    };
    for (int x = 0; x < pairs; ++x)
      row[x] = mean(2 * x, 2 * x + 1);
    if (pairs < half.width()) row[pairs] = mean(lastColumn, lastColumn);
  }
  return half;
}

QImage HalfOf(const QImage& picture) {
  if (picture.format() != QImage::Format_Indexed8)
    return HalfOf(picture, picture.format(),
                  [](const uchar* row, int x) { return reinterpret_cast<const QRgb*>(row)[x]; });
  const QList<QRgb> table = FullColorTable(picture);
  return HalfOf(picture, QImage::Format_RGB32,
                [colors = table.constData()](const uchar* row, int x) { return colors[row[x]]; });
}

}  // namespace

QList<QRgb> FullColorTable(const QImage& picture) {
  QList<QRgb> table = picture.colorTable();
  table.resize(256, qRgb(0, 0, 0));
  return table;
}

const QImage& Picture::Halved(int times) const {
  if (times <= 0) return m_full;
  while (m_halves.size() < static_cast<std::size_t>(times))
    m_halves.push_back(HalfOf(m_halves.empty() ? m_full : m_halves.back()));
  return m_halves[static_cast<std::size_t>(times) - 1];
}

std::uint64_t Picture::Bytes() const {
  const auto add = [](std::uint64_t sum, const QImage& image) {
    return sum + static_cast<std::uint64_t>(image.sizeInBytes());
  };
  return std::accumulate(m_halves.begin(), m_halves.end(), add(0, m_full), add);
}

const Picture& PictureCache::Find(const std::filesystem::path& file) {
  std::error_code missing, sizeless;
  const auto written = std::filesystem::last_write_time(file, missing);
  const std::uintmax_t size = std::filesystem::file_size(file, sizeless);
  Entry& entry = m_entries[file];
  const bool known = entry.lastUse > 0 && entry.written == written && entry.size == size;
  entry.lastUse = ++m_uses;
  if (known) return entry.picture;
  entry.picture = Picture();                                               // gone before the next one comes
  entry.picture = Picture(missing || sizeless ? QImage() : Decode(file));  // a pipe would never end
  entry.written = written;
  entry.size = size;
  return entry.picture;
}

bool PictureCache::Load(const std::filesystem::path& file) {
  const Picture& picture = Find(file);
  int times = 0;
  while (std::max(picture.Full().width(), picture.Full().height()) >> times > SmallestCopy)
    ++times;
  picture.Halved(times);
  return !picture.IsNull();
}

void PictureCache::Keep(std::span<const std::filesystem::path> shown) {
  std::uint64_t bytes = 0;
  std::vector<std::map<std::filesystem::path, Entry>::iterator> others;
  for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry) {
    bytes += entry->second.picture.Bytes();
    if (std::find(shown.begin(), shown.end(), entry->first) == shown.end()) others.push_back(entry);
  }
  std::sort(others.begin(), others.end(),
            [](const auto& a, const auto& b) { return a->second.lastUse < b->second.lastUse; });
  for (const auto& entry : others) {
    if (bytes <= KeptBytes) return;
    bytes -= entry->second.picture.Bytes();
    m_entries.erase(entry);
  }
}

}  // namespace landsmith
