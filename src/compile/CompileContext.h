// What a compiler is given for one run, and what it leaves behind.
#pragma once

#include "core/Project.h"
#include "core/Settings.h"
#include "platform/Dialogs.h"
#include "platform/ProgramFolders.h"
#include "platform/Progress.h"
#include "platform/Tools.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// `SourceOnly` writes every text and data file, deletes the stale outputs, and runs no tool.
enum class CompileMode { Full, SourceOnly };

struct CompileOptions {
  bool CopyBGL = false;
  bool CopyTEX = false;
  CompileMode Mode = CompileMode::Full;
};

/// Everything that one compile run left on disk, in the order it was written.
struct CompileReport {
  std::vector<std::filesystem::path> Written;
  std::filesystem::path LastSource;  ///< the last text written
  bool Failed = false;               ///< a tool failed, or a copy
};

struct CompileContext {
  const ProjectState& project;
  const AppSettings& settings;
  const ProgramFolders& folders;
  ToolRunner& tools;
  Dialogs& dialogs;
  Progress& progress;
  CompileOptions options;
  CompileReport& report;
  /// The steps of this run by name, for one that does its work together with another. RunSteps sets it.
  std::vector<std::string_view> Steps = {};

  bool Runs(std::string_view step) const {
    return std::find(Steps.begin(), Steps.end(), step) != Steps.end();
  }
};

}  // namespace landsmith
