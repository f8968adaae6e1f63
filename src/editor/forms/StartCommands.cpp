// What each menu item of the main window does.
#include "core/Text.h"
#include "forms/Icons.h"
#include "forms/QtText.h"
#include "forms/StartTables.h"
#include "forms/frmPreferences.h"
#include "forms/frmShortcuts.h"
#include "forms/frmStart.h"
#include "platform/Paths.h"
#include "ui_frmStart.h"

#include <QAction>
#include <QMessageBox>

namespace landsmith {

void frmStart::Bind(const char* action, std::function<void()> command) {
  // A menu item that can be checked has changed its own mark by now; what counts is what the editor made of
  // the command.
  connect(&Action(QLatin1String(action)), &QAction::triggered, this, [this, run = std::move(command)] {
    run();
    RefreshUi();
  });
}

void frmStart::BindFileMenu() {
  Bind("mnuFNew", [this] { m_editor->NewProject(); });
  Bind("mnuFOpen", [this] { m_editor->OpenProjectCommand(); });
  Bind("mnuFSave", [this] { m_editor->Save(); });
  Bind("mnuFSaveAs", [this] { m_editor->SaveAs(); });
  Bind("tbSaveAction", [this] { m_editor->MaySave() ? m_editor->Save() : m_editor->SaveAs(); });
  Bind("mnuFProperties", [this] { ShowProjectProperties(); });
  Bind("mnuFASurfer", [this] { m_editor->Append("bln"); });
  Bind("mnuFBGL", [this] { ShowCompilation(); });
  Bind("mnuFPreferences", [this] { ShowPreferences(); });
  for (std::size_t i = 0; i < m_session.recent.size(); ++i)
    Bind(("mnuRecentFile" + std::to_string(i + 1)).c_str(), [this, i] { m_editor->OpenRecent(i); });
  connect(m_ui->mnuFExit, &QAction::triggered, this, &QWidget::close);
}

void frmStart::BindEditMenu() {
  Bind("mnuEUndo", [this] { m_editor->Undo(); });
  Bind("mnuERedo", [this] { m_editor->Redo(); });
  m_ui->mnuERedo->setShortcuts(
      {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  Bind("mnuECut", [this] { m_editor->Cut(); });
  Bind("mnuECopy", [this] { m_editor->Copy(); });
  Bind("mnuEPaste", [this] { m_editor->Paste(); });
  Bind("mnuEDelete", [this] { m_editor->DeleteOne(); });
  Bind("mnuEMeasure", [this] { m_editor->ToggleMeasure(); });
  Bind("mnuESelectAll", [this] { m_editor->SelectAll(); });
  Bind("mnuEInvert", [this] { m_editor->InvertSelection(); });
  Bind("mnuEFind", [this] { ShowFind(); });
  Bind("mnuECoordinates", [this] { ShowCoordinates(); });
  Bind("mnuESnapLOD", [this] { m_editor->SnapToLod21(); });
}

void frmStart::BindViewMenu() {
  Bind("mnuVToolbar", [this] { FitToolbar(); });
  Bind("mnuVAll", [this] { m_editor->ToggleViewAll(); });
  for (const KindRow& row : KindTable)
    Bind((std::string("mnuV") + row.key).c_str(), [this, kind = row.kind] { m_editor->ToggleShown(kind); });
  for (const int level : GridLevels)
    Bind(("mnuG" + std::to_string(level)).c_str(), [this, level] { m_editor->SetGrid(level); });
  Bind("mnuVGotoPosition", [this] { ShowGotoPosition(); });
  for (const ViewRow& row : ViewTable)
    Bind(row.action, [this, view = row.view] { m_editor->SetMapView(view); });
  Bind("mnuVZoomIn", [this] { m_editor->ZoomAt({}, ZoomStep::In); });
  Bind("mnuVZoomOut", [this] { m_editor->ZoomAt({}, ZoomStep::Out); });
}

void frmStart::BindSelectMenu() {
  Bind("mnuSAll", [this] { m_editor->SelectAll(); });
  for (const KindRow& row : KindTable) {
    const std::string name = std::string("mnuS") + row.key;
    Bind(name.c_str(),
         [this, name, kind = row.kind] { m_editor->SelectKind(kind, Action(ToQString(name)).isChecked()); });
  }
}

void frmStart::BindModes() {
  for (const ModeRow& row : ModeTable)
    Bind((std::string("mnuO") + row.key).c_str(), [this, mode = row.mode] { m_editor->ChooseMode(mode); });
}

void frmStart::BindHelpMenu() {
  for (std::size_t i = 0; i < m_session.settings.Link.size(); ++i) {
    Bind(("mnuHTutorial" + std::to_string(i + 1)).c_str(), [this, i] {
      const std::string& link = m_session.settings.Link[i];
      m_session.tools.OpenDocument(EqualsIgnoringCase(link.substr(0, 4), "http")
                                       ? link
                                       : PathText(m_session.folders.Html() / MapPath(link)));
    });
  }
  Bind("mnuHShortcuts", [this] { ShowShortcuts(); });
  Bind("mnuHAbout", [this] { ShowAbout(); });
}

void frmStart::ShowPreferences() {
  frmPreferences(m_session, *m_editor, this).exec();
}

void frmStart::ShowShortcuts() {
  if (!m_shortcuts) m_shortcuts = new frmShortcuts(*m_ui->menuBar, this);
  m_shortcuts->show();
  m_shortcuts->raise();
  m_shortcuts->activateWindow();
}

void frmStart::ShowAbout() {
  QMessageBox box(QMessageBox::NoIcon, tr("About Landsmith"),
                  tr("<h3>Landsmith %1</h3>").arg(qApp->applicationVersion()), QMessageBox::Ok, this);
  box.setIconPixmap(ProgramIcon().pixmap(64));
  box.setInformativeText(
      tr("Scenery design for Flight Simulator 2004.\nQt %1").arg(QLatin1String(qVersion())));
  box.exec();
}

}  // namespace landsmith
