#include "wiring/ProjectStore.h"

#include "core/ProjectFile.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "wiring/AfterLoad.h"

#include <string>
#include <system_error>

namespace landsmith {
namespace {

void Refuse(Dialogs& dialogs, std::string_view text) {
  dialogs.Message(MessageKind::Error, text);
}

/// A file of an older version is kept as it is, whatever the answer.
void AskAboutOlderFile(const std::filesystem::path& path, ProjectFormat format, Dialogs& dialogs) {
  const std::string version = FormatName(format);
  const std::string question = "This file is in the " + version + " format!\n" +
                               "Convert to the new LS205 format and\n" + "create a bakup with name " +
                               PathText(path.stem()) + "_OLD.LSP ?";
  if (!dialogs.Ask(QuestionKind::YesNo, question)) return;
  Refuse(dialogs, PathText(path) + "\n\nFiles in the " + version +
                      " format cannot be converted by this version. The file has not been changed.");
}

ProjectState ReadyProject(std::string_view bytes, const std::filesystem::path& path,
                          const AppSettings& settings) {
  ProjectState project = ReadProject(bytes, PathText(path));
  ResolveProjectFolders(project, settings);
  RebuildLoadedProject(project);
  project.ProjectFile = PathText(path);
  project.ProjectOpen = true;
  project.Dirty = false;
  return project;
}

}  // namespace

std::string MissingProjectText(const std::filesystem::path& path) {
  return PathText(path) + "\n\ndoes not exist !";
}

std::optional<ProjectState> OpenProjectFile(const std::filesystem::path& path, const AppSettings& settings,
                                            Dialogs& dialogs) {
  std::error_code unreadable;
  if (!std::filesystem::exists(path, unreadable)) {
    Refuse(dialogs, MissingProjectText(path));
    return {};
  }
  try {
    const std::string bytes = ReadWholeFile(path);
    const ProjectFormat format = FormatOfProject(bytes);
    if (format == ProjectFormat::Current) return ReadyProject(bytes, path, settings);
    if (format == ProjectFormat::Unknown)
      Refuse(dialogs, ForeignFileText);
    else
      AskAboutOlderFile(path, format, dialogs);
  } catch (const RuntimeError& failure) {
    Refuse(dialogs, failure.what());
  }
  return {};
}

void SaveProjectFile(ProjectState& project, const std::filesystem::path& path,
                     const std::filesystem::path& appPath) {
  const std::string defaultFolder = AppFolderText(appPath, "Scenery");
  WriteWholeFile(path, WriteProject(project, defaultFolder));
  for (std::string* folder : {&project.BGL1ProjectFolder, &project.BGL2ProjectFolder})
    if (*folder == defaultFolder) folder->clear();
}

}  // namespace landsmith
