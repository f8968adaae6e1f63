#include "forms/frmFillsP.h"

#include "core/Color.h"
#include "core/Numbers.h"
#include "editor/Edit.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "ui_frmFillsP.h"

#include <QPixmap>

namespace landsmith {

namespace {

/// The fill as the canvas paints it.
QIcon FillIcon(std::int32_t color) {
  constexpr int side = 64;
  const ColorParts parts = SplitColor(color);
  QPixmap picture(side, side);
  picture.fill(QColor(parts.R, parts.G, parts.B));
  return picture;
}

}  // namespace

frmFillsP::frmFillsP(Session& session, Display& display, QWidget* parent)
    : QDialog(parent), m_session(session), m_display(display), m_ui(std::make_unique<Ui::frmFillsP>()) {
  m_ui->setupUi(this);
  ConnectType(m_ui->ckWater, FillType::Water, session.settings.PolyWaterColor);
  ConnectType(m_ui->ckLand, FillType::Land, session.settings.PolyLandColor);
  ConnectType(m_ui->ckFlatten, FillType::Flatten, session.settings.PolyFlattenColor);
  connect(m_ui->txtAltitude, &QLineEdit::textEdited, this, &frmFillsP::TakeValues);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmFillsP::accept);
}

frmFillsP::~frmFillsP() = default;

void frmFillsP::ConnectType(QCheckBox* box, FillType type, std::int32_t color) {
  box->setIcon(FillIcon(color));
  connect(box, &QCheckBox::toggled, this, [this, type](bool on) {
    if (!on) return;
    m_type = type;
    m_ui->txtAltitude->setEnabled(type != FillType::Land);
    TakeValues();
  });
}

void frmFillsP::ShowValues(FillType type, float height) {
  ShowHeight(height);
  m_type = type;
  m_ui->txtAltitude->setEnabled(type != FillType::Land);
  for (const auto& [box, itsType] :
       {std::pair{m_ui->ckWater, FillType::Water}, std::pair{m_ui->ckLand, FillType::Land},
        std::pair{m_ui->ckFlatten, FillType::Flatten}})
    if (itsType == type) box->setChecked(true);
}

void frmFillsP::ShowHeight(float height) {
  m_shownHeight = height;
  m_ui->txtAltitude->setText(ToQString(NumberText(height)));
}

void frmFillsP::ShowPalette() {
  m_fill.reset();
  setWindowTitle(tr("Area Fills"));
  m_ui->cmdOK->setText(tr("Close"));
  m_ui->cmdCancel->hide();
  m_ui->lbSize->setText(
      tr("With present settings Fills\nhave a size of %1 X %1 Areas.\nChange Grid Display for other sizes.")
          .arg(m_session.view.FillSize));
  ShowValues(m_session.tool.CurrentFillType, m_session.tool.CurrentFillHeight);
}

void frmFillsP::ShowFill(std::size_t fill) {
  m_fill = fill;
  const FillRec& record = m_session.project.Fills[fill];
  setWindowTitle(tr("Area Fill Properties"));
  m_ui->cmdOK->setText(tr("Apply"));
  m_ui->lbSize->setText(tr("This Fill has as a size of \n%1 X %1 Areas.").arg(int{record.Size}));
  ShowValues(TypeOfFill(record), record.Height);
}

std::optional<float> frmFillsP::Height() const {
  const std::string text = m_ui->txtAltitude->text().toStdString();
  return text == NumberText(m_shownHeight) ? m_shownHeight : ParseFloat(text);
}

/// What is typed by halves does not count yet.
void frmFillsP::TakeValues() {
  if (m_fill) return;
  m_session.tool.CurrentFillType = m_type;
  if (const auto height = Height()) m_session.tool.CurrentFillHeight = *height;
}

void frmFillsP::accept() {
  const std::optional<float> height = m_type == FillType::Land ? 0 : Height();
  if (!height) {
    m_session.dialogs.Message(MessageKind::Error, "The altitude must be a number of metres!");
    m_ui->txtAltitude->setFocus();
    m_ui->txtAltitude->selectAll();
    return;
  }
  if (!m_fill || RunGuarded(m_session.dialogs, [&] { Store(*height); })) QDialog::accept();
}

void frmFillsP::Store(float height) {
  Edit edit(m_session, m_display);
  SetFillType(edit.Project().Fills.Edit(*m_fill), m_type, height);
}

void frmFillsP::Check() {
  if (!m_fill && !Height()) ShowHeight(m_session.tool.CurrentFillHeight);
}

}  // namespace landsmith
