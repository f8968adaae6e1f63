// A compile run in a temporary program folder, with a tool runner that does what a test tells it.
#pragma once

#include "compile/CompileContext.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace landsmith::test {

class ScriptedTools final : public ToolRunner {
public:
  struct Call {
    std::string command;
    std::filesystem::path folder;
  };
  std::vector<Call> calls;
  std::function<int(const Call&)> answer = [](const Call&) { return 0; };

  int RunAndWait(std::string_view commandLine, const std::filesystem::path& workingFolder,
                 Progress&) override {
    calls.push_back({std::string(commandLine), workingFolder});
    return answer(calls.back());
  }
  bool Start(std::string_view, const std::filesystem::path&) override { return false; }
  void OpenDocument(std::string_view) override {}
};

struct CompileRig {
  TempFolder folder;
  ProjectState project;
  AppSettings settings;
  ProgramFolders folders{folder / "app", folder / "fs", false};
  ScriptedTools tools;
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
