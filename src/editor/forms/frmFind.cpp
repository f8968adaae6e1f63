#include "forms/frmFind.h"

#include "core/Text.h"
#include "forms/QtText.h"
#include "ui_frmFind.h"

namespace landsmith {

frmFind::frmFind(Session&, Editor& editor, QWidget* parent)
    : QDialog(parent), m_editor(editor), m_ui(std::make_unique<Ui::frmFind>()) {
  m_ui->setupUi(this);
  connect(m_ui->txtSearch, &QLineEdit::textChanged, this, &frmFind::Capitalize);
  for (const QCheckBox* box : findChildren<QCheckBox*>())
    connect(box, &QCheckBox::toggled, this, &frmFind::EnableButtons);
  connect(m_ui->cmdNext, &QPushButton::clicked, this, [this] { Run(FindScope::Next); });
  connect(m_ui->cmdAll, &QPushButton::clicked, this, [this] { Run(FindScope::All); });
}

frmFind::~frmFind() = default;

void frmFind::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  m_ui->txtSearch->setFocus();
  m_ui->txtSearch->selectAll();
}

void frmFind::Capitalize() {
  const QString typed = m_ui->txtSearch->text();
  const QString capitals = ToQString(ToUpper(typed.toStdString()));
  if (capitals == typed) return;
  const int cursor = m_ui->txtSearch->cursorPosition();
  m_ui->txtSearch->setText(capitals);
  m_ui->txtSearch->setCursorPosition(cursor);
}

void frmFind::EnableButtons() {
  bool any = false;
  for (const QCheckBox* box : findChildren<QCheckBox*>())
    any = any || box->isChecked();
  m_ui->cmdNext->setEnabled(any);
  m_ui->cmdAll->setEnabled(any);
}

void frmFind::Run(FindScope scope) {
  m_ui->txtSearch->setText(m_ui->txtSearch->text().trimmed());
  const FindRequest request{m_ui->txtSearch->text().toStdString(),
                            m_ui->ckLines->isChecked(),
                            m_ui->ckLTypes->isChecked(),
                            m_ui->ckPolys->isChecked(),
                            m_ui->ckPTypes->isChecked(),
                            m_ui->ckObjects->isChecked(),
                            m_ui->ckOTypes->isChecked()};
  m_editor.Find(request, scope, m_lastHit);
}

}  // namespace landsmith
