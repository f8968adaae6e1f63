// A session in temporary folders, a canvas in memory and tools that do what a test tells them, for driving
// dialogs by the names of their controls.
#pragma once

#include "editor/Display.h"
#include "editor/Session.h"
#include "forms/QtSurface.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"

#include <QAbstractButton>
#include <QDialog>
#include <QImage>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

namespace landsmith::test {

class DialogTools final : public ToolRunner {
public:
  std::vector<std::string> ran, started;
  std::function<int(const std::string&)> answer = [](const std::string&) { return 0; };

  int RunAndWait(std::string_view commandLine, const std::filesystem::path&, Progress&) override {
    ran.emplace_back(commandLine);
    return answer(ran.back());
  }
  bool Start(std::string_view commandLine, const std::filesystem::path&) override {
    started.emplace_back(commandLine);
    return true;
  }
  void OpenDocument(std::string_view) override {}
};

class MemoryCanvas final : public CanvasSurfaces {
public:
  Surface& Base() override { return m_base; }
  Surface& Overlay() override { return m_overlay; }
  void ClearBase(std::int32_t color) override { m_base.Clear(ToQColor(color)); }
  void ClearOverlay() override { m_overlay.Clear(Qt::transparent); }
  void Present() override {}

private:
  QImage m_baseImage{64, 64, QImage::Format_RGB32};
  QImage m_overlayImage{64, 64, QImage::Format_ARGB32_Premultiplied};
  QtSurface m_base{m_baseImage}, m_overlay{m_overlayImage};
};

struct DialogRig {
  TempFolder folder;
  ScriptedDialogs dialogs;
  DialogTools tools;
  Session session{ProgramFolders{folder / "app", folder / "fs", false}, dialogs, tools};
  MemoryCanvas canvas;
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

template <class Control>
Control& Find(QDialog& dialog, const char* name) {
  auto* control = dialog.findChild<Control*>(QLatin1String(name));
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

/// A disabled button does nothing, as under the mouse.
inline void Press(QDialog& dialog, const char* button) {
  Find<QAbstractButton>(dialog, button).click();
}
inline void Type(QDialog& dialog, const char* box, const std::string& text) {
  Find<QLineEdit>(dialog, box).setText(QString::fromStdString(text));
}
inline std::string TextOf(QDialog& dialog, const char* box) {
  return Find<QLineEdit>(dialog, box).text().toStdString();
}
inline bool IsChecked(QDialog& dialog, const char* button) {
  return Find<QAbstractButton>(dialog, button).isChecked();
}

inline void WriteFile(const std::filesystem::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}
inline std::string FileText(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace landsmith::test
