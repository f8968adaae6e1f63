// Every way to append a file to a project, once.
#pragma once

#include "core/Project.h"
#include "core/Settings.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace landsmith {

struct Importer {
  std::string_view Kind;      ///< in scripts: "bln"
  std::string_view MenuItem;  ///< "mnuFASurfer"
  std::string_view Filter;
  std::string_view Title;
  std::string AppSettings::*Folder;  ///< the dialog's slot of RecentDirs
  /// Null for a kind that this version cannot read.
  void (*Append)(const std::filesystem::path&, ProjectState&, const AppSettings&) = nullptr;
};

const std::vector<Importer>& Importers();

}  // namespace landsmith
