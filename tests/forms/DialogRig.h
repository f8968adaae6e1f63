// A session in temporary folders, with a canvas, tools and dialogs that keep what was asked of them, for
// driving dialogs by the names of their controls.
#pragma once

#include "Controls.h"
#include "core/Color.h"
#include "editor/Display.h"
#include "editor/Session.h"
#include "platform/Paths.h"
#include "support/RecordingSurface.h"
#include "support/RecordingTools.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <QDialog>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace landsmith::test {

struct DialogRig {
  TempFolder folder;
  ScriptedDialogs dialogs;
  RecordingTools tools;
  Session session{ProgramFolders{folder / "app", folder / "fs", false}, dialogs, tools};
  RecordingCanvas canvas;
  Display display{session, canvas};

  DialogRig() {
    for (const auto& made :
         {session.folders.Work(), session.folders.Bitmaps(), folder / "fs", folder / "out", folder / "out2"})
      std::filesystem::create_directories(made);
    session.project.Name = "Coast";
    session.project.BGL1ProjectFolder = (folder / "out").string();
    session.project.BGL2ProjectFolder = (folder / "out2").string();
    session.settings.BGL1Folder = session.project.BGL1ProjectFolder;
    session.settings.BGL2Folder = session.project.BGL2ProjectFolder;
  }

  std::string LastMessage() const { return dialogs.messages.empty() ? "" : dialogs.messages.back().text; }
};

}  // namespace landsmith::test
