#include "forms/frmBrowse.h"

#include "forms/QtText.h"
#include "platform/Paths.h"
#include "ui_frmBrowse.h"

#include <QDir>
#include <QFileSystemModel>

#include <system_error>

namespace landsmith {

namespace {

std::filesystem::path NearestFolder(std::filesystem::path folder) {
  std::error_code failed;
  while (!folder.empty() && !std::filesystem::is_directory(folder, failed)) {
    if (folder == folder.parent_path()) break;
    folder = folder.parent_path();
  }
  return folder;
}

}  // namespace

frmBrowse::frmBrowse(const std::filesystem::path& start, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmBrowse>()), m_model(new QFileSystemModel(this)) {
  m_ui->setupUi(this);
  m_model->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
  m_model->setRootPath(QString());
  m_model->setReadOnly(false);  // a new folder gets its name in place
  m_ui->dirList->setModel(m_model);
  m_ui->dirList->setHeaderHidden(true);
  m_ui->dirList->setEditTriggers(QAbstractItemView::NoEditTriggers);
  for (int column = 1; column < m_model->columnCount(); ++column)
    m_ui->dirList->hideColumn(column);
  for (const QFileInfo& drive : QDir::drives())
    m_ui->drvList->addItem(QDir::toNativeSeparators(drive.absolutePath()), drive.absolutePath());
  m_ui->drvList->addItem(tr("Home folder"), QDir::homePath());

  connect(m_ui->drvList, &QComboBox::activated, this,
          [this](int place) { GoTo(m_ui->drvList->itemData(place).toString()); });
  connect(m_ui->dirList->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& folder) {
            m_ui->txtFolder->setText(QDir::toNativeSeparators(m_model->filePath(folder)));
          });
  // The folders above a place are read in the background; the view follows when they are there.
  connect(
      m_model, &QFileSystemModel::directoryLoaded, this,
      [this] { m_ui->dirList->scrollTo(m_ui->dirList->currentIndex(), QAbstractItemView::PositionAtCenter); },
      Qt::QueuedConnection);
  connect(m_model, &QFileSystemModel::fileRenamed, this, [this] {
    m_ui->txtFolder->setText(QDir::toNativeSeparators(m_model->filePath(m_ui->dirList->currentIndex())));
  });
  connect(m_ui->txtFolder, &QLineEdit::textChanged, this, &frmBrowse::TakeTypedText);
  connect(m_ui->cmdNew, &QPushButton::clicked, this, &frmBrowse::MakeFolder);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmBrowse::accept);

  const std::filesystem::path nearest = NearestFolder(start);
  GoTo(nearest.empty() ? QDir::homePath() : PathToQString(nearest));
}

frmBrowse::~frmBrowse() = default;

std::optional<std::filesystem::path> frmBrowse::ChooseFolder(QWidget* parent,
                                                             const std::filesystem::path& start) {
  frmBrowse dialog(start, parent);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.Folder();
}

std::filesystem::path frmBrowse::Folder() const {
  return MapPath(m_ui->txtFolder->text().toStdString());
}

void frmBrowse::GoTo(const QString& folder) {
  const QModelIndex place = m_model->index(folder);
  m_ui->dirList->setCurrentIndex(place);
  m_ui->dirList->expand(place);
  m_ui->dirList->scrollTo(place);
  m_ui->txtFolder->setText(QDir::toNativeSeparators(folder));
}

void frmBrowse::TakeTypedText() {
  std::error_code failed;
  const bool exists = std::filesystem::is_directory(Folder(), failed);
  m_ui->cmdOK->setEnabled(exists);
  m_ui->cmdNew->setEnabled(exists);
}

void frmBrowse::MakeFolder() {
  const QModelIndex parent = m_model->index(PathToQString(Folder()));
  const QString name = tr("New folder");
  QModelIndex made = m_model->mkdir(parent, name);
  for (int number = 2; !made.isValid() && number < 100; ++number)
    made = m_model->mkdir(parent, QStringLiteral("%1 %2").arg(name).arg(number));
  if (!made.isValid()) return;
  m_ui->dirList->setCurrentIndex(made);
  m_ui->dirList->edit(made);
}

}  // namespace landsmith
