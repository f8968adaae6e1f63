#include "forms/frmMapsP.h"

#include "core/CoordText.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "editor/AddMap.h"
#include "editor/Calibration.h"
#include "editor/Edit.h"
#include "editor/MapView.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "forms/frmCalibrate.h"
#include "ui_frmMapsP.h"

#include <QImageReader>

namespace landsmith {

namespace {

/// A thumbnail of a larger picture would take too long.
constexpr qint64 MostPreviewPixels = 16'000'000;
constexpr int PreviewSide = 220;

constexpr std::array<double MapLevel::*, 4> SideOf{&MapLevel::NLat, &MapLevel::SLat, &MapLevel::WLon,
                                                   &MapLevel::ELon};

bool IsLatitude(std::size_t side) {
  return side < 2;
}

QString SideText(double degrees, std::size_t side, CoordForm form) {
  return ToQString(IsLatitude(side) ? FormatLatText(degrees, form) : FormatLonText(degrees, form));
}

std::optional<double> ParseSide(const std::string& text, std::size_t side, CoordForm form) {
  const double value = IsLatitude(side) ? ParseLatText(text, form) : ParseLonText(text, form);
  const double limit = IsLatitude(side) ? 90 : 180;
  if (value < -limit || value > limit) return {};
  return value;
}

/// The title of a set's messages: the first view that shows it.
std::string_view KindOfSet(std::size_t set) {
  constexpr std::array<std::string_view, 3> kinds{"Main/Summer", "Land", "Mesh"};
  return kinds[set];
}

/// Whether the bitmap of a view gives its set the size: the first of each set.
bool GivesSize(std::size_t view) {
  return view == 0 || MapViews[view].Level > 1;
}

std::string FileName(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

QPixmap Preview(const std::filesystem::path& file) {
  QImageReader reader(PathToQString(file));
  reader.setDecideFormatFromContent(true);
  const QSize size = reader.size();
  if (!size.isValid() || static_cast<qint64>(size.width()) * size.height() > MostPreviewPixels) return {};
  const QImage picture = reader.read();
  if (picture.isNull()) return {};
  return QPixmap::fromImage(
      picture.scaled(PreviewSide, PreviewSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

}  // namespace

frmMapsP::frmMapsP(Session& session, Editor& editor, QWidget* parent)
    : QDialog(parent), m_session(session), m_editor(editor), m_ui(std::make_unique<Ui::frmMapsP>()) {
  m_ui->setupUi(this);
  m_files = {m_ui->txtBMPSummer, m_ui->txtBMPWinter, m_ui->txtBMPFall, m_ui->txtBMPSpring, m_ui->txtBMPHard,
             m_ui->txtBMPNight,  m_ui->txtBMPAlpha,  m_ui->txtBMPLand, m_ui->txtBMPMesh};
  const std::array<QPushButton*, 9> choosers{m_ui->cmdSummer, m_ui->cmdWinter, m_ui->cmdFall,
                                             m_ui->cmdSpring, m_ui->cmdHard,   m_ui->cmdNight,
                                             m_ui->cmdAlpha,  m_ui->cmdLand,   m_ui->cmdMesh};
  m_sets = {SetFields{{m_ui->txtNLat0, m_ui->txtSLat0, m_ui->txtWLon0, m_ui->txtELon0},
                      m_ui->lbCols0,
                      m_ui->lbRows0,
                      {},
                      {}},
            SetFields{{m_ui->txtNLat1, m_ui->txtSLat1, m_ui->txtWLon1, m_ui->txtELon1},
                      m_ui->lbCols1,
                      m_ui->lbRows1,
                      {},
                      {}},
            SetFields{{m_ui->txtNLat2, m_ui->txtSLat2, m_ui->txtWLon2, m_ui->txtELon2},
                      m_ui->lbCols2,
                      m_ui->lbRows2,
                      {},
                      {}}};
  for (std::size_t view = 0; view < MapViews.size(); ++view) {
    connect(choosers[view], &QPushButton::clicked, this, [this, view] { Choose(view); });
    connect(m_files[view], &QLineEdit::editingFinished, this, [this, view] { TakeTyped(view); });
    connect(m_files[view], &QLineEdit::textChanged, this, &frmMapsP::RefreshButtons);
  }
  connect(m_ui->cmdCalibrateMain, &QPushButton::clicked, this, [this] { Calibrate("Summer"); });
  connect(m_ui->cmdCalibrateLand, &QPushButton::clicked, this, [this] { Calibrate("Land"); });
  connect(m_ui->cmdCalibrateMesh, &QPushButton::clicked, this, [this] { Calibrate("Mesh"); });
  connect(m_ui->cmdData, &QPushButton::clicked, this,
          [this] { RunGuarded(m_session.dialogs, [this] { WriteData(); }); });
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmMapsP::accept);
}

// A box that is left when the form goes speaks up once more: while all of it is still there.
frmMapsP::~frmMapsP() {
  hide();
}

void frmMapsP::ShowMap(std::size_t map) {
  m_map = map;
  const MapRec& record = m_session.project.Maps[map];
  m_ui->txtName->setText(ToQString(record.Name));
  for (std::size_t view = 0; view < MapViews.size(); ++view)
    m_files[view]->setText(ToQString(record.*MapViews[view].File));
  for (std::size_t set = 0; set < m_sets.size(); ++set) {
    m_sets[set].Level = record.Level[set + 1];
    ShowSet(set);
  }
  ShowScale();
  RefreshButtons();
  ShowPicture(m_ui->txtBMPSummer);
}

void frmMapsP::ShowSet(std::size_t set) {
  SetFields& fields = m_sets[set];
  for (std::size_t side = 0; side < fields.Sides.size(); ++side) {
    fields.Shown[side] = SideText(fields.Level.*SideOf[side], side, m_session.settings.Form());
    fields.Sides[side]->setText(fields.Shown[side]);
  }
  fields.Cols->setText(QString::number(fields.Level.COLS));
  fields.Rows->setText(QString::number(fields.Level.ROWS));
}

void frmMapsP::ShowScale() {
  const MapLevel& main = m_sets[0].Level;
  const auto text = [](double degrees, std::int32_t pixels) {
    return pixels > 0 ? ToQString(FixedText(degrees / pixels, 9)) : QString();
  };
  m_ui->lbDegLon->setText(text(main.ELon - main.WLon, main.COLS));
  m_ui->lbDegLat->setText(text(main.NLat - main.SLat, main.ROWS));
}

void frmMapsP::ShowPicture(const QLineEdit* box) {
  m_ui->imgMap->clear();
  if (box->text().isEmpty()) return;
  const QPixmap preview = Preview(MapPath(box->text().toStdString()));
  if (preview.isNull())
    m_ui->imgMap->setText(tr("No preview"));
  else
    m_ui->imgMap->setPixmap(preview);
}

void frmMapsP::RefreshButtons() {
  const auto hasBitmap = [this](std::size_t set, const QLineEdit* file) {
    return m_sets[set].Level.COLS > 0 && !file->text().isEmpty();
  };
  m_ui->cmdCalibrateMain->setEnabled(hasBitmap(0, m_ui->txtBMPSummer));
  m_ui->cmdCalibrateLand->setEnabled(hasBitmap(1, m_ui->txtBMPLand));
  m_ui->cmdCalibrateMesh->setEnabled(hasBitmap(2, m_ui->txtBMPMesh));
  m_ui->cmdData->setEnabled(!m_ui->txtBMPSummer->text().isEmpty());
}

void frmMapsP::Choose(std::size_t view) {
  std::optional<std::filesystem::path> file;
  if (GivesSize(view)) {
    const std::size_t set = MapViews[view].Level - 1;
    const auto bitmap = ChooseBitmap(m_session, KindOfSet(set));
    if (!bitmap) return;
    file = bitmap->File;
    TakeSize(set, bitmap->Size);
  } else {
    file = ChoosePicture(m_session);
    if (!file) return;
  }
  m_files[view]->setText(PathToQString(*file));
  ShowPicture(m_files[view]);
  m_view = MapViews[view].Name;
}

/// A name may also be typed or cleared.
void frmMapsP::TakeTyped(std::size_t view) {
  ShowPicture(m_files[view]);
  if (!GivesSize(view)) return;
  if (const auto size = ReadBitmapSize(MapPath(m_files[view]->text().toStdString())))
    TakeSize(MapViews[view].Level - 1, *size);
}

void frmMapsP::TakeSize(std::size_t set, const BitmapSize& size) {
  SetFields& fields = m_sets[set];
  fields.Level.COLS = size.Cols;
  fields.Level.ROWS = size.Rows;
  fields.Cols->setText(QString::number(size.Cols));
  fields.Rows->setText(QString::number(size.Rows));
  ShowScale();
  RefreshButtons();
}

std::optional<MapLevel> frmMapsP::ReadSet(std::size_t set) {
  const SetFields& fields = m_sets[set];
  const auto refuse = [&](std::size_t side) {
    fields.Sides[side]->setFocus();
    m_session.dialogs.Message(MessageKind::Error, CheckPlacesText);
    return std::nullopt;
  };
  MapLevel level = fields.Level;
  for (std::size_t side = 0; side < fields.Sides.size(); ++side) {
    const QString text = fields.Sides[side]->text();
    if (text == fields.Shown[side]) continue;
    const auto value = ParseSide(text.toStdString(), side, m_session.settings.Form());
    if (!value) return refuse(side);
    level.*SideOf[side] = *value;
  }
  // A map that was turned over would never be seen again, nor its menu.
  if (level != fields.Level && !(level.NLat > level.SLat)) return refuse(0);
  if (level != fields.Level && !(level.ELon > level.WLon)) return refuse(3);
  return level;
}

std::optional<std::array<MapLevel, 3>> frmMapsP::ReadSets() {
  std::array<MapLevel, 3> levels;
  for (std::size_t set = 0; set < levels.size(); ++set) {
    const auto level = ReadSet(set);
    if (!level) return {};
    levels[set] = *level;
  }
  return levels;
}

bool frmMapsP::Store() {
  const auto levels = ReadSets();
  if (!levels || m_map >= m_session.project.Maps.size()) return false;
  return RunGuarded(m_session.dialogs, [&] {
    Edit edit(m_session, m_editor.Canvas());
    MapRec& map = edit.Project().Maps.Edit(m_map);
    map.Name = m_ui->txtName->text().toStdString();
    for (std::size_t view = 0; view < MapViews.size(); ++view)
      map.*MapViews[view].File = m_files[view]->text().toStdString();
    for (std::size_t set = 0; set < levels->size(); ++set)
      map.Level[set + 1] = (*levels)[set];
  });
}

void frmMapsP::accept() {
  if (!Store()) return;
  if (!m_view.empty()) m_editor.SetMapView(m_view);
  QDialog::accept();
}

void frmMapsP::Calibrate(std::string_view view) {
  if (!Store()) return;
  m_editor.SetMapView(view);
  QDialog::accept();
  frmCalibrate::Open(m_session, m_editor, m_map, parentWidget());
}

void frmMapsP::WriteData() {
  const auto levels = ReadSets();
  if (!levels) return;
  const auto set = [&](std::size_t number, const QLineEdit* file) {
    const MapLevel& level = (*levels)[number];
    return MapDataSet{FileName(file->text().toStdString()), {level.NLat, level.SLat, level.WLon, level.ELon}};
  };
  const std::string name = MapDataName(m_ui->txtBMPSummer->text().toStdString());
  const std::filesystem::path file = MapPath(name);
  if (std::filesystem::exists(file) &&
      !m_session.dialogs.Ask(QuestionKind::YesNo,
                             "\n\nThe file:\n\n" + name + "\n\nalready exists! Overwrite?"))
    return;
  WriteWholeFile(
      file, MapDataText({set(0, m_ui->txtBMPSummer), set(1, m_ui->txtBMPLand), set(2, m_ui->txtBMPMesh)}));
}

}  // namespace landsmith
