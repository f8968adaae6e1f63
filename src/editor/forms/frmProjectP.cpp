#include "forms/frmProjectP.h"

#include "core/IniFile.h"
#include "core/Numbers.h"
#include "editor/Edit.h"
#include "forms/ClassItemList.h"
#include "forms/FolderButton.h"
#include "forms/FormGuard.h"
#include "forms/PhotoOptions.h"
#include "forms/QtText.h"
#include "ui_frmProjectP.h"

namespace landsmith {

frmProjectP::frmProjectP(Session& session, Display& display, QWidget* parent)
    : QDialog(parent), m_session(session), m_display(display), m_ui(std::make_unique<Ui::frmProjectP>()) {
  m_ui->setupUi(this);
  m_items = new ClassItemList(
      session, {m_ui->lstLCI, m_ui->lbColor, m_ui->cmdLandAdd, m_ui->cmdLandEdit, m_ui->cmdLandDelete}, this);
  ConnectFolderButton(session.dialogs, m_ui->cmdBGL1, m_ui->txtBGL1Folder);
  ConnectFolderButton(session.dialogs, m_ui->cmdBGL2, m_ui->txtBGL2Folder);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmProjectP::accept);
  ShowProject();
  ShowCounters();
}

frmProjectP::~frmProjectP() = default;

void frmProjectP::ShowProject() {
  const ProjectState& project = m_session.project;
  const CoordForm form = m_session.settings.Form();
  m_ui->txtName->setText(ToQString(project.Name));
  m_ui->txtBGL1Folder->setText(ToQString(project.BGL1ProjectFolder));
  m_ui->txtBGL2Folder->setText(ToQString(project.BGL2ProjectFolder));
  m_shownLat = ToQString(FormatLatText(project.LatLandCenter, form));
  m_shownLon = ToQString(FormatLonText(project.LonLandCenter, form));
  m_ui->txtLat->setText(m_shownLat);
  m_ui->txtLon->setText(m_shownLon);
  m_ui->ckClassGridVIEW->setChecked(project.ClassGridVIEW);
  for (const PhotoBit& bit : PhotoBits)
    findChild<QCheckBox*>(QLatin1String(bit.Control))->setChecked((project.PhotoSeasons & bit.Bit) != 0);
  m_ui->txtLayer->setText(QString::number(PhotoLayer(project.PhotoSeasons)));
  const bool coarse = (project.PhotoSeasons & PhotoResolution24) != 0;
  m_ui->opt24->setChecked(coarse);
  m_ui->opt12->setChecked(!coarse);
  m_ui->txtName->selectAll();
}

void frmProjectP::ShowCounters() {
  const ProjectState& project = m_session.project;
  const auto show = [](QLabel* label, const char* kind, std::size_t count) {
    label->setText(QStringLiteral("%1 = %2").arg(QLatin1String(kind)).arg(count));
  };
  show(m_ui->lbMaps, "Maps", project.Maps.size());
  show(m_ui->lbLines, "Lines", project.Lines.size());
  show(m_ui->lbPolys, "Polys", project.Polys.size());
  show(m_ui->lbWaters, "Waters", static_cast<std::size_t>(project.NoOfWaters));
  show(m_ui->lbObjects, "Objects", project.Objects.size());
  show(m_ui->lbFills, "Fills", project.Fills.size());
  show(m_ui->lbExcludes, "Excludes", project.Excludes.size());
  show(m_ui->lbMeshes, "Meshes", project.Meshes.size());
  show(m_ui->lbLands, "Lands", static_cast<std::size_t>(project.NoOfLands));
  show(m_ui->lbPhotos, "Photos", project.Photos.size());
}

bool frmProjectP::CenterChanged() const {
  return m_ui->txtLat->text() != m_shownLat || m_ui->txtLon->text() != m_shownLon;
}

std::optional<std::int32_t> frmProjectP::ReadPhotoOptions() {
  const auto layer = ParseByte(m_ui->txtLayer->text().toStdString());
  if (!layer) {
    m_ui->tabProject->setCurrentWidget(m_ui->pagePhoto);
    m_ui->txtLayer->setFocus();
    m_session.dialogs.Message(MessageKind::Error, "The layer must be a number from 0 to 255!");
    return {};
  }
  std::int32_t options = *layer * PhotoLayerFactor;
  for (const PhotoBit& bit : PhotoBits)
    if (findChild<QCheckBox*>(QLatin1String(bit.Control))->isChecked()) options |= bit.Bit;
  if (m_ui->opt24->isChecked()) options |= PhotoResolution24;
  return options;
}

// A centre that cannot be read would put the class window, and all tiles with it, off the world.
bool frmProjectP::CheckCenter() {
  if (!CenterChanged()) return true;
  if (CheckLatLon(m_ui->txtLat->text().toStdString(), m_ui->txtLon->text().toStdString(),
                  m_session.settings.Form()))
    return true;
  m_ui->tabProject->setCurrentWidget(m_ui->pageGeneral);
  m_ui->txtLat->setFocus();
  m_session.dialogs.Message(MessageKind::Error, "The centre is no latitude and longitude!");
  return false;
}

void frmProjectP::accept() {
  const std::optional<std::int32_t> photoOptions = ReadPhotoOptions();
  if (!photoOptions || !CheckCenter()) return;
  if (RunGuarded(m_session.dialogs, [&] { StoreProject(*photoOptions); })) QDialog::accept();
}

void frmProjectP::StoreProject(std::int32_t photoOptions) {
  Edit edit(m_session, m_display);
  const bool wasDirty = m_session.project.Dirty;
  ProjectState& project = edit.Project();
  project.Dirty = wasDirty;
  project.Name = m_ui->txtName->text().toStdString();
  project.PhotoSeasons = photoOptions;
  project.LCI = m_items->Items();
  project.ClassGridVIEW = m_ui->ckClassGridVIEW->isChecked();
  if (CenterChanged()) StoreCenter(project);
  project.ProjectOpen = true;
  StoreFolders(project);
}

void frmProjectP::StoreCenter(ProjectState& project) {
  const CoordForm form = m_session.settings.Form();
  project.LatLandCenter = ParseLatText(m_ui->txtLat->text().toStdString(), form);
  project.LonLandCenter = ParseLonText(m_ui->txtLon->text().toStdString(), form);
  ViewState& view = m_session.view;
  view.Classes = ClassWindowOf(project.LatLandCenter, project.LonLandCenter);
  view.LatDispCenter = project.LatLandCenter;
  view.LonDispCenter = project.LonLandCenter;
  UpdateScale(view);
  PanDisplay(view, 0, 0);
}

void frmProjectP::StoreFolders(ProjectState& project) {
  const auto take = [](std::string& folder, const QLineEdit* box) {
    if (!box->text().isEmpty()) folder = box->text().toStdString();
  };
  take(project.BGL1ProjectFolder, m_ui->txtBGL1Folder);
  take(project.BGL2ProjectFolder, m_ui->txtBGL2Folder);
  AppSettings& settings = m_session.settings;
  ResolveProjectFolders(project, settings);
  if (!m_ui->ckFolders->isChecked()) return;
  settings.BGL1Folder = project.BGL1ProjectFolder;
  settings.BGL2Folder = project.BGL2ProjectFolder;
  const std::filesystem::path ini = m_session.folders.IniPath();
  WriteIniKey(ini, "Main", "BGL1Folder", settings.BGL1Folder);
  WriteIniKey(ini, "Main", "BGL2Folder", settings.BGL2Folder);
}

}  // namespace landsmith
