#include "forms/frmNamesT.h"

#include "core/Text.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "platform/Paths.h"
#include "ui_frmNamesT.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <vector>

namespace landsmith {

namespace {

constexpr int HighestTextureType = 9;

std::vector<std::string> BitmapNames(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  std::error_code failed;
  for (std::filesystem::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    if (EqualsIgnoringCase(PathText(entry->path().extension()), ".bmp"))
      names.push_back(PathText(entry->path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string CatalogQuestion(TextureKind kind) {
  return std::string("Add this \n") +
         (kind == TextureKind::Line ? "Custom Line Texture" : "Custom Poly Texture") +
         "\nto the set of pre-assembled textures?\nIf so enter a name to refer to this texture!";
}

}  // namespace

frmNamesT::frmNamesT(Session& session, TextureKind kind, std::int32_t color, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_kind(kind),
      m_preview(session),
      m_ui(std::make_unique<Ui::frmNamesT>()) {
  m_ui->setupUi(this);
  if (kind == TextureKind::Poly) setWindowTitle(tr("Landsmith - Named textures for VTP Polygons"));
  for (int type = 0; type <= HighestTextureType; ++type)
    m_ui->cmbType->addItem(QString::number(type));
  m_ui->lbColor->SetColor(color);
  ConnectControls();
  ListFolder(session.folders.FSTexturePath());
  ShowTextureName();
}

frmNamesT::~frmNamesT() = default;

void frmNamesT::ConnectControls() {
  for (QLineEdit* box :
       {m_ui->txtSU, m_ui->txtWI, m_ui->txtHW, m_ui->txtSP, m_ui->txtFA, m_ui->txtLM, m_ui->txtController})
    connect(box, &QLineEdit::textChanged, this, &frmNamesT::ShowTextureName);
  connect(m_ui->cmbType, &QComboBox::currentIndexChanged, this, &frmNamesT::ShowTextureName);
  connect(m_ui->ckEffect, &QCheckBox::toggled, m_ui->txtController, &QLineEdit::setEnabled);
  connect(m_ui->ckEffect, &QCheckBox::toggled, this, &frmNamesT::ShowTextureName);
  connect(m_ui->filList, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0) return;
    TakeFileName();
    ShowPicture();
  });
  // A file that is current already can go into another season's box.
  connect(m_ui->filList, &QListWidget::itemClicked, this, &frmNamesT::TakeFileName);
  connect(m_ui->lbColor, &QPushButton::clicked, this, [this] {
    if (const auto color = m_session.dialogs.ChooseColor(m_ui->lbColor->Color()))
      m_ui->lbColor->SetColor(*color);
  });
  connect(m_ui->cmdFolder, &QPushButton::clicked, this, [this] {
    if (const auto folder = m_session.dialogs.ChooseFolder(m_folder)) ListFolder(*folder);
  });
  connect(m_ui->cmdList, &QPushButton::clicked, this, &frmNamesT::AddToCatalog);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmNamesT::accept);
}

void frmNamesT::ListFolder(const std::filesystem::path& folder) {
  m_folder = folder;
  m_ui->txtFolder->setText(PathToQString(folder));
  m_ui->filList->clear();
  for (const std::string& name : BitmapNames(folder))
    m_ui->filList->addItem(ToQString(name));
}

void frmNamesT::TakeFileName() {
  const QString name = m_ui->filList->currentItem()->text();
  const std::array<std::pair<QRadioButton*, QLineEdit*>, 6> boxes{{{m_ui->optSU, m_ui->txtSU},
                                                                   {m_ui->optWI, m_ui->txtWI},
                                                                   {m_ui->optHW, m_ui->txtHW},
                                                                   {m_ui->optSP, m_ui->txtSP},
                                                                   {m_ui->optFA, m_ui->txtFA},
                                                                   {m_ui->optLM, m_ui->txtLM}}};
  for (const auto& [option, box] : boxes)
    if (option->isChecked()) box->setText(name);
}

void frmNamesT::ShowPicture() {
  const std::string name = m_ui->filList->currentItem()->text().toStdString();
  const QPixmap picture = m_preview.Load(m_folder / MapPath(name));
  m_ui->imgTex->setPixmap(
      picture.isNull() ? picture : picture.scaled(192, 192, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

std::string frmNamesT::TextureName() const {
  NamedTexture parts;
  parts.SU = m_ui->txtSU->text().toStdString();
  parts.WI = m_ui->txtWI->text().toStdString();
  parts.HW = m_ui->txtHW->text().toStdString();
  parts.SP = m_ui->txtSP->text().toStdString();
  parts.FA = m_ui->txtFA->text().toStdString();
  parts.LM = m_ui->txtLM->text().toStdString();
  parts.TypeNumber = m_ui->cmbType->currentIndex();
  parts.Effect = m_ui->ckEffect->isChecked();
  parts.Controller = m_ui->txtController->text().toStdString();
  return NamedTextureText(parts);
}

std::int32_t frmNamesT::Color() const {
  return m_ui->lbColor->Color();
}

void frmNamesT::ShowTextureName() {
  m_ui->txtText->setText(ToQString(TextureName()));
  m_ui->txtText->setCursorPosition(0);
}

void frmNamesT::AddToCatalog() {
  const auto title = m_session.dialogs.InputText(CatalogQuestion(m_kind), "Some Texture");
  if (!title || title->empty()) return;
  RunGuarded(m_session.dialogs, [&] {
    AppendTexture(CatalogFile(m_session, m_kind), CatalogOf(m_session, m_kind), *title, Color(),
                  TextureName());
  });
}

}  // namespace landsmith
