// The desktop program: finds its folders, starts a session, shows the main window.
#include "core/Text.h"
#include "editor/Session.h"
#include "forms/Icons.h"
#include "forms/QtDialogs.h"
#include "forms/QtText.h"
#include "forms/frmStart.h"
#include "platform/ProgramFolders.h"
#include "platform/Tools.h"

#include <QApplication>
#include <QCommandLineParser>

#include <exception>
#include <optional>
#include <utility>

namespace {

using namespace landsmith;

/// Commands catch their failures. What still comes out of an event is told, and the unsaved work lives on.
class Application final : public QApplication {
public:
  Application(int& argc, char** argv, Dialogs& dialogs) : QApplication(argc, argv), m_dialogs(dialogs) {}

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
      // The box has events of its own, which may fail alike.
      if (!std::exchange(m_telling, true)) {
        m_dialogs.Message(MessageKind::Error, failure.what());
        m_telling = false;
      }
      return true;
    }
  }

private:
  Dialogs& m_dialogs;
  bool m_telling = false;
};

/// The project that a file manager passes, if any. `--help` and `--version` end the program here.
std::optional<std::filesystem::path> ProjectArgument(const QApplication& app) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Scenery design for Flight Simulator 2004."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("project"), QStringLiteral("A project file to open."),
                               QStringLiteral("[project.LSP]"));
  parser.process(app);
  if (parser.positionalArguments().isEmpty()) return {};
  return ToPath(parser.positionalArguments().constFirst());
}

int Run(const QApplication& app, QtDialogs& dialogs) {
  const std::optional<std::filesystem::path> project = ProjectArgument(app);
  const std::filesystem::path program = CurrentProgram();
  ProgramFolders folders;
  folders.AppPath = FindProgramFolder(program);
  SystemToolRunner tools(folders.Tools(), program.parent_path(), dialogs, FromWindows1252);
  Session session(folders, dialogs, tools);
  StartSession(session, FindShippedData(program));

  frmStart window(session);
  dialogs.SetParent(&window);
  window.show();
  window.Start(project);
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QtDialogs dialogs;
  Application app(argc, argv, dialogs);
  QApplication::setApplicationName(QStringLiteral("Landsmith"));
  QApplication::setApplicationVersion(QStringLiteral(LANDSMITH_VERSION));
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setWindowIcon(ProgramIcon());
  try {
    return Run(app, dialogs);
  } catch (const std::exception& failure) {
    if (dialogs.LastMessage() != failure.what()) dialogs.Message(MessageKind::Error, failure.what());
    return 1;
  }
}
