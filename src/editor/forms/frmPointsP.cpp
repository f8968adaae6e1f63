#include "forms/frmPointsP.h"

#include "forms/QtText.h"
#include "ui_frmPointsP.h"

#include <array>

namespace landsmith {

namespace {

struct PositionBox {
  QLineEdit* Ui::frmPointsP::*Box;
  std::string PositionTexts::*Text;
};

constexpr std::array<PositionBox, 10> Boxes{{{&Ui::frmPointsP::txtLat, &PositionTexts::Lat},
                                             {&Ui::frmPointsP::txtLon, &PositionTexts::Lon},
                                             {&Ui::frmPointsP::txtCX, &PositionTexts::CX},
                                             {&Ui::frmPointsP::txtCY, &PositionTexts::CY},
                                             {&Ui::frmPointsP::txtAX, &PositionTexts::AX},
                                             {&Ui::frmPointsP::txtAY, &PositionTexts::AY},
                                             {&Ui::frmPointsP::txtPtAX, &PositionTexts::PtAX},
                                             {&Ui::frmPointsP::txtPtAY, &PositionTexts::PtAY},
                                             {&Ui::frmPointsP::txtPtCX, &PositionTexts::PtCX},
                                             {&Ui::frmPointsP::txtPtCY, &PositionTexts::PtCY}}};

}  // namespace

frmPointsP::frmPointsP(Session& session, Editor& editor, QWidget* parent)
    : PointForm(session, editor, parent), m_ui(std::make_unique<Ui::frmPointsP>()) {
  m_ui->setupUi(this);
  Use({m_ui->lbTitle, m_ui->lbPoint, m_ui->lbWidth, m_ui->txtWidth, m_ui->cmdPrevious, m_ui->cmdNext});
  connect(m_ui->cmdSnapLL, &QPushButton::clicked, this,
          [this] { Take(ReadLatLon(Texts(), m_at, m_session.settings.Form())); });
  connect(m_ui->cmdSnapArea, &QPushButton::clicked, this, [this] { Take(ReadAreaPoint(Texts())); });
  connect(m_ui->cmdSnapCell, &QPushButton::clicked, this, [this] { Take(ReadCellPoint(Texts())); });
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPointsP::accept);
}

frmPointsP::~frmPointsP() = default;

void frmPointsP::ShowGotoPosition() {
  ShowDisplayCenter(tr("Landsmith - Center Display"), true);
}

void frmPointsP::ShowCoordinates() {
  ShowDisplayCenter(tr("Landsmith - Coordinate Conversions"), false);
}

void frmPointsP::ShowDisplayCenter(const QString& title, bool goesThere) {
  m_goesThere = goesThere;
  setWindowTitle(title);
  for (QWidget* ofPoint : std::initializer_list<QWidget*>{m_ui->lbTitle, m_ui->lbPoint, m_ui->lbWidth,
                                                          m_ui->txtWidth, m_ui->cmdPrevious, m_ui->cmdNext})
    ofPoint->hide();
  ShowPosition({m_session.view.LatDispCenter, m_session.view.LonDispCenter});
  m_ui->txtLat->selectAll();
}

void frmPointsP::ShowPosition(LatLon at) {
  m_at = at;
  const PositionTexts texts = TextsOf(at, m_session.settings.Form());
  for (const PositionBox& box : Boxes)
    (m_ui.get()->*box.Box)->setText(ToQString(texts.*box.Text));
}

PositionTexts frmPointsP::Texts() const {
  PositionTexts texts;
  for (const PositionBox& box : Boxes)
    texts.*box.Text = (m_ui.get()->*box.Box)->text().toStdString();
  return texts;
}

bool frmPointsP::Take(const ReadPosition& read) {
  if (read.Refusal.empty()) {
    ShowPosition(read.At);
    return true;
  }
  m_session.dialogs.Message(MessageKind::Error, read.Refusal);
  const CoordForm form = m_session.settings.Form();
  m_ui->txtLat->setText(ToQString(FormatLatText(m_at.lat, form)));
  m_ui->txtLon->setText(ToQString(FormatLonText(m_at.lon, form)));
  return false;
}

void frmPointsP::accept() {
  if (!Take(ReadEdited(Texts(), m_at, m_session.settings.Form()))) return;
  if (HasPoint()) {
    const std::optional<float> third = ReadThird();
    if (third) StoreAndClose({m_at, *third});
    return;
  }
  if (m_goesThere)
    m_editor.GoTo(m_at);
  else
    m_editor.Canvas().DisplayAll();
  QDialog::accept();
}

}  // namespace landsmith
