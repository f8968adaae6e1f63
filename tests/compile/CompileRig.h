// A compile run in a temporary program folder, with tools that do what a test tells them.
#pragma once

#include "compile/CompileContext.h"
#include "support/RecordingTools.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <filesystem>

namespace landsmith::test {

struct CompileRig {
  TempFolder folder;
  ProjectState project;
  AppSettings settings;
  ProgramFolders folders{folder / "app", folder / "fs", false};
  RecordingTools tools;
  ScriptedDialogs dialogs;
  NoProgress progress;
  CompileReport report;
  CompileOptions options;

  CompileRig() {
    std::filesystem::create_directories(folders.Tools());
    std::filesystem::create_directories(folder / "out");
    project.Name = "My Project";
    project.BGL1ProjectFolder = (folder / "out").string();
  }

  CompileContext Context() { return {project, settings, folders, tools, dialogs, progress, options, report}; }
};

}  // namespace landsmith::test
