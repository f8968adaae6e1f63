#include "forms/TexBitmap.h"

#include "forms/QtText.h"
#include "platform/Paths.h"

namespace landsmith {

std::vector<std::filesystem::path> TexFolders(const Session& session) {
  std::vector<std::filesystem::path> folders{MapPath(TextureFolder(session.project))};
  if (!session.settings.PolyTexPath.empty()) folders.push_back(MapPath(session.settings.PolyTexPath));
  return folders;
}

std::optional<std::filesystem::path> FindTexBitmap(const Session& session, const std::string& name) {
  if (name.empty()) return {};
  std::vector<std::filesystem::path> folders = TexFolders(session);
  folders.push_back(session.folders.FSPath / "Texture");
  for (const std::filesystem::path& folder : folders) {
    std::filesystem::path file = MapPathIn(folder, name);
    if (std::filesystem::is_regular_file(file)) return file;
  }
  return {};
}

QPixmap LoadTexBitmap(TexturePreview& preview, const std::filesystem::path& file) {
  QPixmap plain(PathToQString(file));
  return plain.isNull() ? preview.Load(file) : plain;
}

std::string CopyBitmapMessage(const std::string& name) {
  return name + " should be copied to the PolyTex Folder!";
}

std::string WrongBitmapMessage() {
  return "Wrong bitmap file format or missing MWGFX DLLs!\nPlease check this site:\n"
         "https://doc.qt.io/qt-6/qtimageformats-index.html";
}

}  // namespace landsmith
