// Picture files, decoded once. A class tile is painted thousands of times in one repaint, and a map of a
// hundred megabytes must not be read again for each mouse move.
#pragma once

#include <QImage>
#include <QList>

#include <cstdint>
#include <filesystem>
#include <map>
#include <span>
#include <vector>

namespace landsmith {

/// A picture and, made when they are first asked for, its copies at a half, a quarter, ... of its size.
class Picture {
public:
  Picture() = default;
  explicit Picture(QImage full) : m_full(std::move(full)) {}

  bool IsNull() const { return m_full.isNull(); }
  /// RGB32, ARGB32_Premultiplied where it is transparent somewhere, or Indexed8 for a large picture that is
  /// stored so: a map of 8 bits takes a quarter of the memory.
  const QImage& Full() const { return m_full; }
  /// Each pixel the mean of four, `times` over; 0 is the picture itself. A side of an odd length is rounded
  /// up, so that pixel (x, y) of the copy stands for (2x, 2y) of the one before.
  const QImage& Halved(int times) const;
  std::uint64_t Bytes() const;

private:
  QImage m_full;
  mutable std::vector<QImage> m_halves;
};

/// The colours of an Indexed8 picture for all 256 values; those that it does not name are black.
QList<QRgb> FullColorTable(const QImage& picture);

class PictureCache {
public:
  /// The picture, decoded again when the file's time or size has changed since. A null picture for a file
  /// that cannot be shown. The reference holds until another file is asked for.
  const Picture& Find(const std::filesystem::path& file);
  /// The same for a file that will be shown, its smaller copies with it; false when it cannot be.
  bool Load(const std::filesystem::path& file);
  /// Gives back the memory of pictures beyond a gigabyte, those first that were not asked for longest; never
  /// of those that are shown.
  void Keep(std::span<const std::filesystem::path> shown);

private:
  struct Entry {
    std::filesystem::file_time_type written;
    std::uintmax_t size = 0;
    std::uint64_t lastUse = 0;
    Picture picture;
  };
  std::map<std::filesystem::path, Entry> m_entries;
  std::uint64_t m_uses = 0;
};

}  // namespace landsmith
