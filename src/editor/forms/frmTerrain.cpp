#include "forms/frmTerrain.h"

#include "core/Color.h"
#include "forms/QtText.h"
#include "ui_frmTerrain.h"

namespace landsmith {

frmTerrain::frmTerrain(Session& session, TextureKind kind, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_kind(kind),
      m_preview(session),
      m_ui(std::make_unique<Ui::frmTerrain>()) {
  m_ui->setupUi(this);
  if (kind == TextureKind::Poly) setWindowTitle(tr("Landsmith - Pre-assembled VTP Polygon Textures"));
  for (const TextureItem& item : CatalogOf(session, kind))
    m_ui->List1->addItem(ToQString(item.Title));
  connect(m_ui->List1, &QListWidget::currentRowChanged, this, &frmTerrain::ShowEntry);
  connect(m_ui->List1, &QListWidget::itemDoubleClicked, this, &frmTerrain::accept);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTerrain::accept);
  m_ui->cmdOK->setEnabled(false);
  m_ui->List1->setCurrentRow(static_cast<int>(CurrentTextureOf(session, kind)));
}

frmTerrain::~frmTerrain() = default;

void frmTerrain::ShowEntry(int row) {
  m_ui->cmdOK->setEnabled(row >= 0);
  if (row < 0) return;
  const TextureItem& item = CatalogOf(m_session, m_kind)[static_cast<std::size_t>(row)];
  m_ui->lbTex->SetColor(Rgb(item.R, item.G, item.B));
  m_ui->lbPack->setText(ToQString(TextureText(item)));
  const QPixmap picture = m_preview.LoadFromCatalog(item.Textures);
  m_ui->imgTex->setPixmap(
      picture.isNull() ? picture : picture.scaled(256, 256, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmTerrain::accept() {
  const int row = m_ui->List1->currentRow();
  if (row < 0) return;
  CurrentTextureOf(m_session, m_kind) = static_cast<std::size_t>(row);
  QDialog::accept();
}

}  // namespace landsmith
