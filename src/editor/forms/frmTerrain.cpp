#include "forms/frmTerrain.h"

#include "core/Color.h"
#include "forms/QtText.h"
#include "forms/TexBitmap.h"
#include "platform/Paths.h"
#include "ui_frmTerrain.h"

#include <utility>

namespace landsmith {

namespace {

QString TitleOf(TextureKind kind) {
  return kind == TextureKind::Line ? frmTerrain::tr("Landsmith - Pre-assembled VTP Line Textures")
                                   : frmTerrain::tr("Landsmith - Pre-assembled VTP Polygon Textures");
}

}  // namespace

frmTerrain::frmTerrain(Session& session, TextureKind kind, QWidget* parent)
    : frmTerrain(session, TitleOf(kind), CatalogOf(session, kind), kind, CurrentTextureOf(session, kind),
                 parent) {}

frmTerrain::frmTerrain(Session& session, const QString& title, TextureCatalog items, std::size_t current,
                       QWidget* parent)
    : frmTerrain(session, title, std::move(items), std::nullopt, current, parent) {}

frmTerrain::frmTerrain(Session& session, const QString& title, TextureCatalog items,
                       std::optional<TextureKind> kind, std::size_t current, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_kind(kind),
      m_items(std::move(items)),
      m_preview(session),
      m_ui(std::make_unique<Ui::frmTerrain>()) {
  m_ui->setupUi(this);
  setWindowTitle(title);
  for (const TextureItem& item : m_items)
    m_ui->List1->addItem(ToQString(item.Title));
  connect(m_ui->List1, &QListWidget::currentRowChanged, this, &frmTerrain::ShowEntry);
  connect(m_ui->List1, &QListWidget::itemDoubleClicked, this, &frmTerrain::accept);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTerrain::accept);
  m_ui->cmdOK->setEnabled(false);
  m_ui->List1->setCurrentRow(static_cast<int>(current));
}

frmTerrain::~frmTerrain() = default;

void frmTerrain::ShowEntry(int row) {
  m_ui->cmdOK->setEnabled(row >= 0);
  if (row < 0) return;
  const TextureItem& item = m_items[static_cast<std::size_t>(row)];
  m_ui->lbTex->SetColor(Rgb(item.R, item.G, item.B));
  m_ui->lbPack->setText(ToQString(TextureText(item)));
  // The pictures of a catalogue are the simulator's; those of another list have been converted before.
  const auto plain = FindInFolder(m_session.folders.Bitmaps(), item.Textures);
  const QPixmap picture =
      m_kind || !plain ? m_preview.LoadFromCatalog(item.Textures) : LoadTexBitmap(m_preview, *plain);
  m_ui->imgTex->setPixmap(
      picture.isNull() ? picture : picture.scaled(256, 256, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmTerrain::accept() {
  const int row = m_ui->List1->currentRow();
  if (row < 0) return;
  m_chosen = static_cast<std::size_t>(row);
  if (m_kind) CurrentTextureOf(m_session, *m_kind) = m_chosen;
  QDialog::accept();
}

}  // namespace landsmith
