#include "forms/WindowMemory.h"

#include "core/IniFile.h"
#include "platform/RuntimeError.h"

#include <QMainWindow>
#include <QScreen>

namespace landsmith {

namespace {

const char* const FileName = "window.ini";
const char* const Section = "Window";
const char* const GeometryKey = "Geometry";
const char* const StateKey = "State";

/// What the desktop adds around a window.
const QSize FrameRoom(8, 40);

QByteArray ReadBytes(const std::filesystem::path& file, const char* key) {
  return QByteArray::fromBase64(QByteArray::fromStdString(ReadIniKey(file, Section, key)));
}

}  // namespace

void RestoreWindow(QMainWindow& window, const std::filesystem::path& appPath) {
  const std::filesystem::path file = appPath / FileName;
  if (!std::filesystem::exists(file)) {
    window.resize(window.size().boundedTo(window.screen()->availableSize() - FrameRoom));
    return;
  }
  window.restoreGeometry(ReadBytes(file, GeometryKey));
  window.restoreState(ReadBytes(file, StateKey));
}

void RememberWindow(const QMainWindow& window, const std::filesystem::path& appPath) {
  const std::filesystem::path file = appPath / FileName;
  try {
    WriteIniKey(file, Section, GeometryKey, window.saveGeometry().toBase64().toStdString());
    WriteIniKey(file, Section, StateKey, window.saveState().toBase64().toStdString());
  } catch (const RuntimeError&) {
    return;
  }
}

}  // namespace landsmith
