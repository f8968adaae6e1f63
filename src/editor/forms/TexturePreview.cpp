#include "forms/TexturePreview.h"

#include "core/Text.h"
#include "forms/QtText.h"
#include "platform/Paths.h"

#include <system_error>

namespace landsmith {

namespace {

constexpr std::string_view NoPicture = "na.bmp";
constexpr std::string_view ConvertCommand = "imagetool.exe -nogui -batch -e bmp -nomip bmps\\temp.bmp";

QPixmap LoadPixmap(const std::filesystem::path& file) {
  return QPixmap(PathToQString(file));
}

}  // namespace

bool TexturePreview::ConvertToTemp(const std::filesystem::path& file, const std::filesystem::path& temp) {
  if (m_toolMissing) return false;
  std::error_code failed;
  std::filesystem::copy_file(file, temp, std::filesystem::copy_options::overwrite_existing, failed);
  if (failed) return false;
  // The copy of a write-protected file would refuse the converter.
  std::filesystem::permissions(temp, std::filesystem::perms::owner_write, std::filesystem::perm_options::add,
                               failed);
  NoProgress quiet;
  const int exitCode = m_session.tools.RunAndWait(ConvertCommand, m_session.folders.Tools(), quiet);
  m_toolMissing = exitCode == ToolMissing;
  return exitCode == 0;
}

QPixmap TexturePreview::Load(const std::filesystem::path& file) {
  if (EqualsIgnoringCase(PathText(file.filename()), NoPicture)) return LoadPixmap(file);
  const std::filesystem::path temp = m_session.folders.Bitmaps() / "temp.bmp";
  return ConvertToTemp(file, temp) ? LoadPixmap(temp) : QPixmap();
}

QPixmap TexturePreview::LoadFromCatalog(const std::string& name) {
  const auto file = FindInFolder(m_session.folders.Bitmaps(), name);
  return file ? Load(*file) : QPixmap();
}

}  // namespace landsmith
