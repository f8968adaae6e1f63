// All state of the running program, made once in main and passed down. A function takes the narrowest part it
// needs.
#pragma once

#include "core/Project.h"
#include "core/RecentFiles.h"
#include "core/Settings.h"
#include "editor/Clipboard.h"
#include "editor/ToolState.h"
#include "editor/UndoRing.h"
#include "editor/ViewState.h"
#include "platform/Dialogs.h"
#include "platform/ProgramFolders.h"
#include "platform/Tools.h"
#include "raster/ClassTable.h"
#include "vector/TextureCatalog.h"

#include <cstddef>
#include <utility>

namespace landsmith {

/// Template of imported lines, edited by `frmLinesP` in its modes BLN (kept in the settings) and RGN.
struct LineDefaults {
  std::string Type;
  std::int32_t Color = 255;
  float FirstWidth = 35, LastWidth = 35;
};

/// The same for polygons, edited by `frmPolysP`.
struct PolyDefaults {
  std::string Type;
  std::int32_t Color = 255;
};

struct Session {
  Session(ProgramFolders programFolders, Dialogs& itsDialogs, ToolRunner& itsTools)
      : folders(std::move(programFolders)), dialogs(itsDialogs), tools(itsTools) {}

  ProgramFolders folders;
  Dialogs& dialogs;
  ToolRunner& tools;

  AppSettings settings;
  RecentFiles recent;
  ProjectState project;
  ViewState view;
  ToolState tool;

  ClassTable lands, waters;
  TextureCatalog lineTextures, polyTextures;
  std::size_t currentLineTexture = 0, currentPolyTexture = 0;  ///< 0-based place in the catalogue
  LineDefaults rgnLines;
  PolyDefaults rgnPolys;

  UndoRing undo;
  Clipboard clipboard;
  int editsOpen = 0;  ///< Edits under way, one inside the other
};

/// Start-up without a window: settings, recent files, simulator, catalogues, work folder, the view and the
/// empty project. Throws RuntimeError for what ends the program (a bad number in the settings, a missing
/// catalogue); a missing simulator is the stop box "FS2004 does not exist in this computer!" followed by such
/// an error. `shippedData` fills what the program folder lacks.
void StartSession(Session& session, const std::filesystem::path& shippedData);

}  // namespace landsmith
