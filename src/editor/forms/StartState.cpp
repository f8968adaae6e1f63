// What is enabled and checked in the main window, read from the editor's state each time.
#include "core/Text.h"
#include "editor/SelectKinds.h"
#include "forms/QtText.h"
#include "forms/StartTables.h"
#include "forms/frmFillsP.h"
#include "forms/frmStart.h"
#include "platform/Paths.h"
#include "ui_frmStart.h"

#include <QAction>

#include <algorithm>
#include <filesystem>

namespace landsmith {

QAction& frmStart::Action(const QString& name) {
  return *m_actions.value(name);
}

void frmStart::RefreshUi() {
  if (!m_editor) return;  // the editor speaks while it is being made
  setWindowTitle(ToQString(m_editor->Caption()));
  RefreshFileMenu();
  RefreshEditMenu();
  RefreshViewMenu();
  RefreshSelectMenu();
  RefreshModes();
  CheckPointForms();
  if (m_modeForm) m_modeForm->Check();
  m_recovery->ProjectMayBeSaved();
}

void frmStart::RefreshFileMenu() {
  const bool open = m_editor->HasProject();
  m_ui->mnuFSave->setEnabled(open && m_editor->MaySave());
  for (QAction* action :
       {m_ui->mnuFSaveAs, m_ui->tbSaveAction, m_ui->mnuFProperties, m_ui->mnuFASurfer, m_ui->mnuFBGL})
    action->setEnabled(open);
  RefreshRecentFiles();
}

void frmStart::RefreshRecentFiles() {
  bool any = false;
  for (std::size_t i = 0; i < m_session.recent.size(); ++i) {
    const std::string& path = m_session.recent[i];
    QAction& item = Action(QStringLiteral("mnuRecentFile%1").arg(i + 1));
    item.setVisible(!path.empty());
    item.setText(QStringLiteral("&%1  ").arg(i + 1) + LiteralText(ShortenPath(path, RecentNameLength)));
    any = any || !path.empty();
  }
  m_ui->mnuSep->setVisible(any);
}

void frmStart::RefreshEditMenu() {
  const bool open = m_editor->HasProject();
  m_ui->mnuEUndo->setEnabled(m_editor->CanUndo());
  m_ui->mnuERedo->setEnabled(m_editor->CanRedo());
  m_ui->mnuECut->setEnabled(m_editor->MayCut());
  m_ui->mnuECopy->setEnabled(m_editor->MayCopy());
  m_ui->mnuEPaste->setEnabled(m_editor->MayPaste());
  m_ui->mnuEDelete->setEnabled(m_editor->MayDelete());
  m_ui->mnuEMeasure->setEnabled(m_editor->MayMeasure());
  m_ui->mnuEMeasure->setChecked(m_session.tool.MeasureOn);
  for (QAction* action : {m_ui->mnuEInvert, m_ui->mnuEFind, m_ui->mnuECoordinates, m_ui->mnuVGotoPosition})
    action->setEnabled(open);
  m_ui->mnuESnapLOD->setEnabled(open && m_session.tool.Selected.SelectionActive);
}

void frmStart::RefreshViewMenu() {
  const bool open = m_editor->HasProject();
  const ViewState& view = m_session.view;
  for (const KindRow& row : KindTable) {
    QAction& item = Action(QStringLiteral("mnuV") + QLatin1String(row.key));
    // What Show All has hidden comes back through Show All.
    item.setEnabled(open && (view.Shows(row.kind) || !m_session.tool.ViewAllOn));
    item.setChecked(view.Shows(row.kind));
  }
  m_ui->mnuVAll->setEnabled(open);
  m_ui->mnuVAll->setChecked(!m_session.tool.ViewAllOn);
  m_ui->mnuGrid->setEnabled(open);
  for (const int level : GridLevels)
    Action(QStringLiteral("mnuG%1").arg(level)).setChecked(view.GridLod == level);
  const bool mapsHaveViews = open && !view.MapView.empty();
  m_ui->mnuVBitmap->setEnabled(mapsHaveViews);
  for (const ViewRow& row : ViewTable) {
    QAction& item = Action(QLatin1String(row.action));
    item.setEnabled(mapsHaveViews);
    item.setChecked(view.MapView == row.view);
  }
  m_ui->mnuVZoomIn->setEnabled(open);
  m_ui->mnuVZoomOut->setEnabled(open);
}

void frmStart::RefreshSelectMenu() {
  const bool any = m_session.tool.Selected.SelectionActive;
  for (const KindRow& row : KindTable) {
    QAction& item = Action(QStringLiteral("mnuS") + QLatin1String(row.key));
    item.setEnabled(m_editor->MaySelectKind(row.kind));
    item.setChecked(any && IsKindSelected(m_session.project, row.kind));
  }
  for (QAction* all : {m_ui->mnuSAll, m_ui->mnuESelectAll}) {
    all->setEnabled(m_editor->MaySelectAll());
    all->setChecked(m_session.tool.SelectAllOn);
  }
}

void frmStart::RefreshModes() {
  const bool open = m_editor->HasProject();
  for (const ModeRow& row : ModeTable) {
    QAction& item = Action(QStringLiteral("mnuO") + QLatin1String(row.key));
    item.setEnabled(open);
    item.setChecked(open && m_session.tool.Mode == row.mode);
  }
}

void frmStart::RefreshTutorials() {
  for (std::size_t i = 0; i < m_session.settings.Link.size(); ++i) {
    const std::string& link = m_session.settings.Link[i];
    QAction& item = Action(QStringLiteral("mnuHTutorial%1").arg(i + 1));
    item.setText(LiteralText(m_session.settings.Title[i]));
    const bool onTheWeb = EqualsIgnoringCase(link.substr(0, 4), "http");
    const bool present = !link.empty() && FindExisting(PathText(m_session.folders.Html() / link)).has_value();
    item.setEnabled(onTheWeb || present);
  }
}

}  // namespace landsmith
