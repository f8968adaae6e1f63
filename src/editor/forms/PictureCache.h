// Picture files, decoded once. A class tile is painted thousands of times in one repaint, and a map of a
// hundred megabytes must not be read again for each mouse move.
#pragma once

#include <QImage>

#include <filesystem>
#include <map>

namespace landsmith {

class PictureCache {
public:
  /// The picture, decoded again when the file has changed since. A null image for a file that cannot be
  /// shown.
  const QImage& Find(const std::filesystem::path& file);

private:
  struct Entry {
    std::filesystem::file_time_type written;
    QImage picture;
  };
  std::map<std::filesystem::path, Entry> m_entries;
};

}  // namespace landsmith
