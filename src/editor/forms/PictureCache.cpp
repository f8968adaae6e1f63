#include "forms/PictureCache.h"

#include "forms/QtText.h"
#include "platform/Paths.h"

#include <QImageReader>

#include <system_error>

namespace landsmith {

namespace {

/// Maps of whole countries are larger than what the reader accepts by itself.
constexpr int MaxPictureMegabytes = 2048;

QImage Decode(const std::filesystem::path& file) {
  QImageReader::setAllocationLimit(MaxPictureMegabytes);
  QImageReader reader(PathToQString(file));
  reader.setDecideFormatFromContent(true);
  const QImage picture = reader.read();
  if (picture.isNull()) return {};
  return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                           : QImage::Format_RGB32);
}

}  // namespace

const QImage& PictureCache::Find(const std::filesystem::path& file) {
  std::error_code missing;
  const auto written = std::filesystem::last_write_time(file, missing);
  const auto known = m_entries.find(file);
  if (known != m_entries.end() && known->second.written == written) return known->second.picture;
  Entry& entry = m_entries[file];
  entry = {written, missing ? QImage() : Decode(file)};
  return entry.picture;
}

}  // namespace landsmith
