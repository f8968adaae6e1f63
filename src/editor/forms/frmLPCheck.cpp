#include "forms/frmLPCheck.h"

#include "core/Numbers.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "ui_frmLPCheck.h"

#include <QKeyEvent>

namespace landsmith {

frmLPCheck::frmLPCheck(Session& session, QWidget* parent)
    : QDialog(parent), m_session(session), m_ui(std::make_unique<Ui::frmLPCheck>()) {
  m_ui->setupUi(this);
  m_ui->txtDistance->setText(ToQString(NumberText(session.settings.AutoCheckDistance)));
  m_ui->cmdAuto->installEventFilter(this);
  connect(m_ui->txtDistance, &QLineEdit::textChanged, this, &frmLPCheck::ShowMode);
  connect(m_ui->cmdManual, &QPushButton::clicked, this, &frmLPCheck::RunManually);
  connect(m_ui->cmdAuto, &QPushButton::clicked, this, &frmLPCheck::RunAutomatically);
  ShowMode();
}

frmLPCheck::~frmLPCheck() = default;

void frmLPCheck::ShowMode() {
  const std::optional<float> distance = ParseFloat(m_ui->txtDistance->text().toStdString());
  const bool smooths = distance && AutomaticMode(*distance) == CheckMode::Smooth;
  m_ui->cmdAuto->setText(smooths ? tr("&Smooth") : tr("&Simplify"));
  m_ui->frSmooth->setEnabled(smooths);
}

bool frmLPCheck::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_E) m_ui->ckKeepEnds->setChecked(true);
    if (key == Qt::Key_C) m_ui->ckSmoothSharp->setChecked(true);
  }
  return QDialog::eventFilter(watched, event);
}

void frmLPCheck::RunManually() {
  m_request.Mode = CheckMode::Manual;
  accept();
}

void frmLPCheck::RunAutomatically() {
  const std::optional<float> distance = ParseFloat(m_ui->txtDistance->text().toStdString());
  if (!distance) return m_ui->txtDistance->setFocus();
  m_request.Mode = AutomaticMode(*distance);
  m_request.DistanceMetres = *distance;
  m_request.Smooth = {m_ui->ckKeepEnds->isChecked(), m_ui->ckSmoothSharp->isChecked()};
  if (*distance != m_session.settings.AutoCheckDistance) {
    m_session.settings.AutoCheckDistance = *distance;
    // The check goes on when the preferences cannot be written.
    RunGuarded(m_session.dialogs, [&] { SaveSettings(m_session.folders.IniPath(), m_session.settings); });
  }
  accept();
}

}  // namespace landsmith
