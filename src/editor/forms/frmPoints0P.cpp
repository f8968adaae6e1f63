#include "forms/frmPoints0P.h"

#include "editor/PositionViews.h"
#include "forms/QtText.h"
#include "forms/frmPointsP.h"
#include "ui_frmPoints0P.h"

namespace landsmith {

frmPoints0P::frmPoints0P(Session& session, Editor& editor, QWidget* parent)
    : PointForm(session, editor, parent), m_ui(std::make_unique<Ui::frmPoints0P>()) {
  m_ui->setupUi(this);
  Use({m_ui->lbTitle, m_ui->lbPoint, m_ui->lbWidth, m_ui->txtWidth, m_ui->cmdPrevious, m_ui->cmdNext});
  connect(m_ui->cmdExtended, &QPushButton::clicked, this, &frmPoints0P::ShowExtended);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPoints0P::accept);
}

frmPoints0P::~frmPoints0P() = default;

void frmPoints0P::ShowPosition(LatLon at) {
  const CoordForm form = m_session.settings.Form();
  m_ui->txtLat->setText(ToQString(FormatLatText(at.lat, form)));
  m_ui->txtLon->setText(ToQString(FormatLonText(at.lon, form)));
}

void frmPoints0P::accept() {
  if (!HasPoint()) return;
  PositionTexts texts;
  texts.Lat = m_ui->txtLat->text().toStdString();
  texts.Lon = m_ui->txtLon->text().toStdString();
  const ReadPosition read = ReadLatLon(texts, Shown().At, m_session.settings.Form());
  if (!read.Refusal.empty()) return Refuse(m_ui->txtLat, read.Refusal);
  const std::optional<float> third = ReadThird();
  if (third) StoreAndClose({read.At, *third});
}

void frmPoints0P::ShowExtended() {
  Check();
  if (!isVisible() || !HasPoint()) return;
  auto* extended = new frmPointsP(m_session, m_editor, parentWidget());
  extended->setAttribute(Qt::WA_DeleteOnClose);
  extended->ShowPoint(Target());
  extended->adjustSize();
  extended->move(pos().x() + width() - extended->width(), pos().y());
  reject();  // first: the system gives the keyboard to the window behind
  extended->show();
  extended->activateWindow();
}

}  // namespace landsmith
