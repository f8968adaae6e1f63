#include "forms/frmPreferences.h"

#include "core/CoordText.h"
#include "core/Numbers.h"
#include "forms/FolderButton.h"
#include "forms/FormGuard.h"
#include "forms/PreferenceFields.h"
#include "forms/QtText.h"
#include "ui_frmPreferences.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr std::string_view MeshExplanation =
    "A mesh bitmap holds altitudes as colours: red and green together make the metres, blue is not used.\n\n"
    "In a 1-bit mesh map one step of green is one metre, and one step of red is 256 metres. Altitudes up to "
    "65535 metres fit, but neighbouring altitudes have nearly the same colour: they can hardly be told apart "
    "by eye, and a program that changes colours even a little changes the altitudes.\n\n"
    "Press OK to continue reading or Cancel to stop!";
constexpr std::string_view MeshExplanationGoesOn =
    "In an 8-bit mesh map one metre is 8 steps of green. After 32 metres green starts again at 0 and red "
    "goes up by one step; every 256 metres red goes up by 8 steps. Altitudes up to 8191 metres fit. The "
    "colours are far enough apart to be drawn and checked by eye.\n\n"
    "The choice holds for all mesh bitmaps that the program reads and writes.";

constexpr std::string_view TabWord = "tab";

}  // namespace

frmPreferences::frmPreferences(Session& session, Editor& editor, QWidget* parent)
    : QDialog(parent), m_session(session), m_editor(editor), m_ui(std::make_unique<Ui::frmPreferences>()) {
  m_ui->setupUi(this);
  ConnectSlider(m_ui->sldNS, m_ui->txtNS);
  ConnectSlider(m_ui->sldWE, m_ui->txtWE);
  ConnectFolderButton(session.dialogs, m_ui->cmdBGL1, m_ui->txtBGL1Folder);
  ConnectFolderButton(session.dialogs, m_ui->cmdBGL2, m_ui->txtBGL2Folder);
  ConnectFolderButton(session.dialogs, m_ui->cmRyw12, m_ui->txtRwy12Path);
  ConnectFolderButton(session.dialogs, m_ui->cmdAPI, m_ui->txtMacroAPIPath);
  ConnectFolderButton(session.dialogs, m_ui->cmdASD, m_ui->txtMacroASDPath);
  ConnectFolderButton(session.dialogs, m_ui->cmdPTEX, m_ui->txtPolyTexPath);
  ConnectFolderButton(session.dialogs, m_ui->cmdPolyView, m_ui->txtPolyViewPath);
  ConnectFolderButton(session.dialogs, m_ui->cmdFSPath, m_ui->txtFSPath);
  ConnectColors();
  connect(m_ui->cmdHMesh, &QPushButton::clicked, this, &frmPreferences::ExplainMeshBitmaps);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPreferences::accept);
  ShowSettings();
}

frmPreferences::~frmPreferences() = default;

void frmPreferences::ConnectSlider(QSlider* slider, QLineEdit* box) {
  const auto show = [box](int value) {
    box->setText((value >= 1 ? QStringLiteral("+") : QString()) + QString::number(value));
  };
  connect(slider, &QSlider::valueChanged, this, show);
  show(slider->value());
}

void frmPreferences::ConnectColors() {
  for (ColorSwatch* swatch : findChildren<ColorSwatch*>()) {
    connect(swatch, &QPushButton::clicked, this, [this, swatch] {
      if (const auto color = m_session.dialogs.ChooseColor(swatch->Color())) swatch->SetColor(*color);
    });
  }
}

void frmPreferences::ShowSettings() {
  const AppSettings& settings = m_session.settings;
  ShowPreferenceFields(*this, settings);
  m_ui->optDecimal->setChecked(settings.DecimalDegrees);
  m_ui->optDMS->setChecked(!settings.DecimalDegrees);
  m_shownLat = ToQString(FormatLatText(settings.LatLandCenter, settings.Form()));
  m_shownLon = ToQString(FormatLonText(settings.LonLandCenter, settings.Form()));
  m_ui->txtLat->setText(m_shownLat);
  m_ui->txtLon->setText(m_shownLon);
  m_ui->txtBLNSeparator->setText(settings.BLNSeparator == "\t" ? QString::fromUtf8(TabWord.data())
                                                               : ToQString(settings.BLNSeparator));
  const auto show = [](QSlider* slider, int value) {
    slider->setRange(std::min(slider->minimum(), value), std::max(slider->maximum(), value));
    slider->setValue(value);
  };
  show(m_ui->sldNS, settings.VTPShiftNS);
  show(m_ui->sldWE, settings.VTPShiftWE);
}

void frmPreferences::ExplainMeshBitmaps() {
  if (m_session.dialogs.Ask(QuestionKind::OkCancel, MeshExplanation))
    m_session.dialogs.Message(MessageKind::Info, MeshExplanationGoesOn);
}

bool frmPreferences::Refuse(QWidget* field, const std::string& message) {
  for (int page = 0; page < m_ui->tabPreferences->count(); ++page)
    if (m_ui->tabPreferences->widget(page)->isAncestorOf(field)) m_ui->tabPreferences->setCurrentIndex(page);
  field->setFocus();
  m_session.dialogs.Message(MessageKind::Error, message);
  return false;
}

bool frmPreferences::ReadSettings(AppSettings& settings) {
  if (const RefusedField refused = ReadPreferenceFields(*this, settings); refused.Field)
    return Refuse(refused.Field, refused.Message);
  if (settings.DefPWidth >= 256) return Refuse(m_ui->txtDefPWid, "Maximum Line Width is 255 meters!");
  if (settings.DefPWidth < 0) return Refuse(m_ui->txtDefPWid, "Minimum Line Width is 0 meters!");
  settings.DecimalDegrees = m_ui->optDecimal->isChecked();
  settings.VTPShiftNS = m_ui->sldNS->value();
  settings.VTPShiftWE = m_ui->sldWE->value();
  const std::string separator = m_ui->txtBLNSeparator->text().toStdString();
  settings.BLNSeparator = separator == TabWord ? "\t" : separator;
  return true;
}

// The fields were filled, and are read, in the form that held when the dialog opened.
bool frmPreferences::ReadCenter(AppSettings& settings) const {
  if (m_ui->txtLat->text() == m_shownLat && m_ui->txtLon->text() == m_shownLon) return false;
  const std::string lat = m_ui->txtLat->text().toStdString();
  const std::string lon = m_ui->txtLon->text().toStdString();
  const CoordForm form = m_session.settings.Form();
  if (!CheckLatLon(lat, lon, form)) return false;
  settings.LatLandCenter = ParseLatText(lat, form);
  settings.LonLandCenter = ParseLonText(lon, form);
  return true;
}

void frmPreferences::accept() {
  AppSettings settings = m_session.settings;
  if (!ReadSettings(settings)) return;
  const bool centerChanged = ReadCenter(settings);
  const bool gridChanged = settings.ClassGridVIEW != m_session.settings.ClassGridVIEW;
  if (settings.BackUpON != m_session.settings.BackUpON) m_session.undo.Reset();
  m_session.settings = settings;
  const bool stored = RunGuarded(m_session.dialogs, [&] {
    // A project keeps its own choice; who changes it here wants to see it in the open one too.
    if (gridChanged && m_editor.HasProject()) m_editor.SetClassGridView(settings.ClassGridVIEW);
    m_editor.SettingsChanged(centerChanged);
    SaveSettings(m_session.folders.IniPath(), m_session.settings);
  });
  if (stored) QDialog::accept();
}

}  // namespace landsmith
