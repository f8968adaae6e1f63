// Pictures of simulator textures. Their bitmaps are compressed; the tool community's converter makes plain
// ones of them.
#pragma once

#include "editor/Session.h"

#include <QPixmap>

#include <filesystem>

namespace landsmith {

class TexturePreview {
public:
  explicit TexturePreview(Session& session) : m_session(session) {}

  /// The picture of a texture file: copied to tools\bmps\temp.bmp, converted there, loaded. A file named
  /// "na.bmp" is plain and loaded as it stands. An empty picture when the file is missing, or cannot be
  /// copied, converted or read. A missing converter is told once.
  QPixmap Load(const std::filesystem::path& file);

  /// The picture of a catalogue entry, from tools\bmps.
  QPixmap LoadFromCatalog(const std::string& name);

private:
  bool ConvertToTemp(const std::filesystem::path& file, const std::filesystem::path& temp);

  Session& m_session;
  bool m_toolMissing = false;
};

}  // namespace landsmith
