#include "editor/Session.h"

#include "core/RecentFiles.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace landsmith {

namespace {

void WarnOfMissingBitmaps(Session& session) {
  if (FindInFolder(session.folders.Bitmaps(), "001B2SU1.BMP")) return;
  session.dialogs.Message(MessageKind::Info,
                          "You must wait until Landsmith copies some bitmaps! The next\n"
                          "time Landsmith runs in this computer it will start faster!");
}

void RequireSimulator(Session& session, const std::filesystem::path& shippedData) {
  const auto found = FindSimulator(session.settings.FSPath, shippedData, session.folders.SimulatorIsStandIn);
  if (!found) {
    const std::string text = "FS2004 does not exist in this computer!";
    session.dialogs.Message(MessageKind::Error, text);
    throw RuntimeError(text);
  }
  session.folders.FSPath = *found;
}

/// The setting is a 1-based number that an author may have typed.
std::size_t DefaultTexture(std::int32_t number, const TextureCatalog& catalog) {
  if (catalog.empty()) return 0;
  const auto last = static_cast<std::int32_t>(catalog.size());
  return static_cast<std::size_t>(std::clamp(number, 1, last) - 1);
}

std::filesystem::path Catalogue(const Session& session, const char* name) {
  const std::filesystem::path tools = session.folders.Tools();
  return FindInFolder(tools, name).value_or(tools / name);
}

void LoadCatalogues(Session& session) {
  session.lands = ReadClassTable(Catalogue(session, "lands.txt"), ClassKind::Land);
  session.waters = ReadClassTable(Catalogue(session, "waters.txt"), ClassKind::Water);
  session.polyTextures = ReadTextureCatalog(Catalogue(session, "polys.txt"));
  session.lineTextures = ReadTextureCatalog(Catalogue(session, "lines.txt"));
  session.currentPolyTexture = DefaultTexture(session.settings.DefPoC, session.polyTextures);
  session.currentLineTexture = DefaultTexture(session.settings.DefLinC, session.lineTextures);
}

}  // namespace

void StartSession(Session& session, const std::filesystem::path& shippedData) {
  FillProgramFolder(session.folders.AppPath, shippedData);
  const std::filesystem::path ini = session.folders.IniPath();
  session.recent = LoadRecentFiles(ini);
  session.settings = LoadSettings(ini, session.folders.AppPath);

  session.project = EmptyProject(session.settings);
  TakeViewFrom(session.view, session.project);

  WarnOfMissingBitmaps(session);
  RequireSimulator(session, shippedData);
  LoadCatalogues(session);
  std::filesystem::create_directories(session.folders.Work());
}

}  // namespace landsmith
