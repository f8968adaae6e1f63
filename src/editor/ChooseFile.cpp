#include "editor/ChooseFile.h"

#include "platform/Paths.h"

namespace landsmith {

std::optional<std::filesystem::path> ChooseToOpen(Session& session, std::string_view filter,
                                                  std::string_view title, std::string AppSettings::*slot) {
  FileRequest request;
  request.Title = title;
  request.Filter = std::string(filter) + "|All Files|*.*";
  if (!(session.settings.*slot).empty()) request.Folder = MapPath(session.settings.*slot);
  auto path = session.dialogs.ChooseFileToOpen(request);
  if (path) {
    session.settings.*slot = PathText(path->parent_path());
    SaveRecentFolders(session.folders.IniPath(), session.settings);
  }
  return path;
}

}  // namespace landsmith
