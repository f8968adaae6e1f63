// The main window on a program folder of its own, shown on the offscreen platform, with dialogs that answer
// from a script and a project that is open.
#pragma once

#include "core/ProjectFile.h"
#include "forms/CanvasWidget.h"
#include "forms/frmStart.h"
#include "platform/Paths.h"
#include "platform/Tools.h"
#include "support/RecordingTools.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"
#include "wiring/ProjectStore.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace landsmith::test {

class WindowRig {
public:
  enum class Tools { None, StandIns };

  explicit WindowRig(Tools with = Tools::None)
      : m_standIns(folder / "tools", std::filesystem::path(LANDSMITH_BINARY_DIR) / "bin", dialogs),
        session(ProgramFolders{folder.Path(), {}, false}, dialogs,
                with == Tools::StandIns ? static_cast<ToolRunner&>(m_standIns) : tools) {
    StartSession(session, std::filesystem::path(LANDSMITH_SOURCE_DIR) / "data");
  }

  std::filesystem::path SavedProject(const std::string& name = "Trial") {
    const std::filesystem::path file = folder / (name + ".LSP");
    ProjectState project = EmptyProject(session.settings);
    project.Name = name;
    SaveProjectFile(project, file, folder.Path());
    return file;
  }

  /// The window as at start-up, without a project.
  frmStart& Show() {
    window = std::make_unique<frmStart>(session);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->Start({});
    canvas = window->findChild<CanvasWidget*>("canvas");
    return *window;
  }

  /// The same with an empty project open, in the mode of a toolbar key.
  frmStart& ShowProject(const char* mode = "Pointer") {
    Show();
    EXPECT_TRUE(window->TheEditor().OpenProject(SavedProject()));
    canvas->setFocus();
    Button(mode).click();
    return *window;
  }

  QAction& Action(const std::string& name) {
    auto* action = window->findChild<QAction*>(QString::fromStdString(name));
    if (!action) throw std::runtime_error("no menu item " + name);
    return *action;
  }
  QToolButton& Button(const std::string& key) {
    auto* button = window->findChild<QToolButton*>(QString::fromStdString("tb" + key));
    if (!button) throw std::runtime_error("no button " + key);
    return *button;
  }
  QPoint FromCentre(int x, int y) const { return {canvas->width() / 2 + x, canvas->height() / 2 + y}; }

  void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseMove(canvas, FromCentre(x, y));
    QTest::mouseClick(canvas, button, {}, FromCentre(x, y));
  }

  TempFolder folder;
  ScriptedDialogs dialogs;
  RecordingTools tools;

private:
  SystemToolRunner m_standIns;

public:
  Session session;
  std::unique_ptr<frmStart> window;
  CanvasWidget* canvas = nullptr;
};

}  // namespace landsmith::test
