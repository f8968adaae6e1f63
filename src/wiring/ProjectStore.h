// Opening and saving project files, with the questions and messages that belong to it. Used by the window and
// by the batch program alike.
#pragma once

#include "core/Project.h"
#include "core/Settings.h"
#include "platform/Dialogs.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// What the user is told when there is no file, and when it is none of ours.
std::string MissingProjectText(const std::filesystem::path& path);
inline constexpr std::string_view ForeignFileText = "Not a Valid Landsmith File!";

/// Reads a project and makes it ready: folders resolved, working data rebuilt, ProjectFile set, ProjectOpen
/// true, Dirty false. Nothing when the file is missing, is none of ours, is of an older version that is not
/// converted, or is damaged: the user has then been told, and nothing else has changed.
std::optional<ProjectState> OpenProjectFile(const std::filesystem::path& path, const AppSettings& settings,
                                            Dialogs& dialogs);

/// Writes the project. A project folder that is the default one becomes empty in `project` too, as in the
/// file. Throws RuntimeError; the old file is then whole.
void SaveProjectFile(ProjectState& project, const std::filesystem::path& path,
                     const std::filesystem::path& appPath);

}  // namespace landsmith
