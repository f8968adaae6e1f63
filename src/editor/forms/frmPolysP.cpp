#include "forms/frmPolysP.h"

#include "core/Numbers.h"
#include "editor/Edit.h"
#include "editor/TidyItems.h"
#include "forms/FormGuard.h"
#include "forms/PathDialogs.h"
#include "forms/QtText.h"
#include "forms/frmLPCheck.h"
#include "forms/frmTexPoly.h"
#include "ui_frmPolysP.h"
#include "vector/PolyJoin.h"
#include "vector/PolyOperations.h"

#include <QRegularExpressionValidator>

#include <algorithm>

namespace landsmith {

frmPolysP::frmPolysP(Session& session, Display& display, QWidget* parent)
    : QDialog(parent), m_session(session), m_display(display), m_ui(std::make_unique<Ui::frmPolysP>()) {
  m_ui->setupUi(this);
  for (QLineEdit* box : {m_ui->txtPt1, m_ui->txtPt2})
    box->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), this));
  m_type = std::make_unique<PolyTypeFields>(session, *m_ui, this);
  ConnectControls();
}

frmPolysP::~frmPolysP() = default;

void frmPolysP::ConnectControls() {
  const auto run = [this](QPushButton* button, void (frmPolysP::*command)()) {
    connect(button, &QPushButton::clicked, this,
            [this, command] { RunGuarded(m_session.dialogs, [&] { (this->*command)(); }); });
  };
  run(m_ui->cmdAlt, &frmPolysP::ChangeAltitude);
  run(m_ui->cmdAlt12, &frmPolysP::ChangeSlope);
  run(m_ui->cmdChange, &frmPolysP::ChangeOrder);
  run(m_ui->cmdLine, &frmPolysP::MakeLineOrJoin);
  run(m_ui->cmdCheckPoly, &frmPolysP::Check);
  connect(m_ui->imgTex, &ClickLabel::clicked, this,
          [this] { RunGuarded(m_session.dialogs, [this] { TieBitmap(); }); });
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmPolysP::accept);
}

void frmPolysP::SetMode(Mode mode) {
  m_mode = mode;
  m_ui->lbName->setEnabled(mode == Mode::One);
  m_ui->txtName->setEnabled(mode == Mode::One);
  m_ui->Frame1->setEnabled(mode == Mode::One);
  m_ui->imgTex->SetClickable(mode == Mode::One);
  m_ui->imgTex->setToolTip(mode == Mode::One ? tr("The bitmap. Click to tie its points to the vertices.")
                                             : tr("The bitmap."));
  const bool hasGeometry = mode != Mode::Defaults;
  for (QWidget* part : {static_cast<QWidget*>(m_ui->lbName), static_cast<QWidget*>(m_ui->txtName),
                        static_cast<QWidget*>(m_ui->frAltitude), static_cast<QWidget*>(m_ui->Frame1),
                        static_cast<QWidget*>(m_ui->cmdLine), static_cast<QWidget*>(m_ui->cmdCheckPoly)})
    part->setVisible(hasGeometry);
}

void frmPolysP::ShowOne(std::size_t poly) {
  m_poly = poly;
  SetMode(Mode::One);
  const PolyRec& record = m_session.project.Polys[poly];
  m_ui->txtName->setText(ToQString(record.Name));
  m_type->Show(record.Type, record.Color, NumberText(AltitudesOf(record).Highest));
  ShowAltitudes();
  ShowOrder();
}

void frmPolysP::ShowMany() {
  SetMode(Mode::Many);
  const std::vector<std::size_t> selected = Polys();
  setWindowTitle(tr("Properties of %1 Polygons").arg(selected.size()));
  const bool two = m_session.tool.Selected.SelectedCount == 2;
  m_ui->cmdLine->setEnabled(two);
  if (two) {
    m_ui->cmdLine->setText(tr("&Join"));
    m_ui->cmdLine->setToolTip(tr("Makes one polygon of the two selected ones, along their common border."));
  }
  for (QWidget* part : {static_cast<QWidget*>(m_ui->frAltitude), static_cast<QWidget*>(m_ui->cmdCheckPoly)})
    part->setEnabled(!selected.empty());
  if (selected.empty()) return;
  const RecordList<PolyRec>& polys = m_session.project.Polys;
  const PolyRec& first = polys[selected.front()];
  const auto alike = [&](auto same) {
    return std::all_of(selected.begin(), selected.end(), [&](std::size_t poly) { return same(polys[poly]); });
  };
  const bool oneType =
      alike([&](const PolyRec& poly) { return poly.Type == first.Type && poly.Color == first.Color; });
  const float altitude = AltitudesOf(first).Highest;
  const bool oneAltitude = alike([&](const PolyRec& poly) {
    const AltitudeSpan span = AltitudesOf(poly);
    return span.Highest == altitude && span.Lowest == altitude;
  });
  m_type->Show(oneType ? std::optional(first.Type) : std::nullopt, first.Color,
               oneAltitude ? NumberText(altitude) : std::string());
  if (oneAltitude) m_ui->txtAlt->setText(ToQString(NumberText(altitude)));
}

void frmPolysP::ShowDefaults(PolyDefaults& defaults, const QString& mode) {
  m_defaults = &defaults;
  SetMode(Mode::Defaults);
  setWindowTitle(tr("Imported Polygons (%1)").arg(mode));
  m_type->Show(defaults.Type, defaults.Color, NumberText(m_session.settings.DefAlt));
  resize(width(), minimumSizeHint().height());
}

// An LWM polygon shows the altitudes and vertices of its type, which the mask is compiled from.
void frmPolysP::ShowAltitudes() {
  const PolyRec& record = m_session.project.Polys[m_poly];
  const AltitudeSpan span = AltitudesOf(record);
  LwmPolyType shown;
  shown.Highest = NumberText(span.Highest);
  shown.Lowest = NumberText(span.Lowest);
  shown.HighestPoint = std::to_string(span.HighestPoint);
  shown.LowestPoint = std::to_string(span.LowestPoint);
  const PolyType type = DecodePolyType(record.Type);
  if (const auto* lwm = std::get_if<LwmPolyType>(&type)) shown = *lwm;
  m_ui->txtAlt1->setText(ToQString(shown.Highest));
  m_ui->txtAlt2->setText(ToQString(shown.Lowest));
  m_ui->txtPt1->setText(ToQString(shown.HighestPoint));
  m_ui->txtPt2->setText(ToQString(shown.LowestPoint));
  const std::optional<float> highest = ParseFloat(shown.Highest);
  const std::optional<float> lowest = ParseFloat(shown.Lowest);
  if (highest && lowest) m_ui->txtAlt->setText(ToQString(NumberText((*highest + *lowest) / 2)));
}

void frmPolysP::ShowOrder() {
  m_ui->lbOrder->setText(OrderText("Poly", m_poly, m_session.project.Polys.size()));
}

std::vector<std::size_t> frmPolysP::Polys() const {
  if (m_mode == Mode::One) return {m_poly};
  if (m_mode == Mode::Many) return SelectedItems(m_session.project.Polys);
  return {};
}

void frmPolysP::ChangeAltitude() {
  const std::optional<float> altitude = ParseFloat(m_ui->txtAlt->text().toStdString());
  if (!altitude) return;
  {
    Edit edit(m_session, m_display);
    for (const std::size_t poly : Polys())
      LevelPoly(edit.Project().Polys.Edit(poly), *altitude);
  }
  const QString text = ToQString(NumberText(*altitude));
  for (QLineEdit* box : {m_ui->txtAlt, m_ui->txtAlt1, m_ui->txtAlt2})
    box->setText(text);
  m_type->ShowAltitude(*altitude);
}

void frmPolysP::ChangeSlope() {
  const auto number = [](const QLineEdit* box) { return ParseFloat(box->text().toStdString()); };
  const std::optional<float> altitude1 = number(m_ui->txtAlt1);
  const std::optional<float> altitude2 = number(m_ui->txtAlt2);
  const std::size_t point1 = m_ui->txtPt1->text().toUInt();
  const std::size_t point2 = m_ui->txtPt2->text().toUInt();
  if (!altitude1 || !altitude2) return;
  bool sloped = false;
  {
    Edit edit(m_session, m_display);
    for (const std::size_t poly : Polys()) {
      PolyRec record = m_session.project.Polys[poly];
      if (!SlopePoly(record, point1, point2, *altitude1, *altitude2)) continue;
      edit.Project().Polys.Edit(poly) = std::move(record);
      sloped = true;
    }
  }
  if (!sloped) return;
  const float mean = (*altitude1 + *altitude2) / 2;
  m_ui->txtAlt->setText(ToQString(NumberText(mean)));
  m_type->ShowAltitude(mean);
}

void frmPolysP::ChangeOrder() {
  Edit edit(m_session, m_display);
  m_poly = ChangePathOrder(edit.Project().Polys, m_poly, ChosenOrder(*m_ui));
  ShowOrder();
}

// The pairs belong to the vertices of one polygon.
void frmPolysP::TieBitmap() {
  const PolyRec& poly = m_session.project.Polys[m_poly];
  if (m_mode != Mode::One || poly.Points.empty()) return;
  frmTexPoly form(m_session, poly, m_type->BitmapName(), m_type->Pairs(), this);
  if (form.exec() == QDialog::Accepted && form.Pairs() != m_type->Pairs()) m_type->TiePairs(form.Pairs());
}

void frmPolysP::MakeLineOrJoin() {
  if (m_mode == Mode::One) {
    Edit edit(m_session, m_display);
    LineRec line = MakeLineFromPoly(m_session.project.Polys[m_poly], m_session.settings.DefPWidth,
                                    m_session.settings.LnColorUns);
    edit.Project().Lines.push_back(std::move(line));
    m_ui->cmdLine->setEnabled(false);  // once is enough
    return;
  }
  std::string refused;
  {
    Edit edit(m_session, m_display);
    refused = JoinPolys(edit.Project(), m_session.settings, m_session.view.Scale, m_session.tool.Selected);
  }
  if (refused.empty())
    m_session.dialogs.Beep();
  else
    m_session.dialogs.Message(MessageKind::Error, refused);
  QDialog::accept();
}

void frmPolysP::Check() {
  frmLPCheck check(m_session, this);
  check.exec();
  const CheckRequest& request = check.Request();
  const std::vector<std::size_t> polys = Polys();
  if (request.Mode == CheckMode::Cancel) return;
  if (request.Mode == CheckMode::Manual) {
    accept();
    if (result() == QDialog::Accepted) m_walk = PopupTarget{"PtInPoly", "", polys.front(), 0, {}};
    return;
  }
  std::size_t deleted = 0;
  {
    Edit edit(m_session, m_display);
    deleted =
        TidyPolys(edit.Project(), polys, request, m_session.view.LatDispCenter, m_session.tool.Selected);
  }
  if (deleted == polys.size()) return QDialog::accept();  // nothing is left to show
  if (m_mode == Mode::One) ShowAltitudes();
}

void frmPolysP::StoreDefaults() {
  const std::optional<PolyTypeFields::Choice> choice = m_type->Changed();
  if (!choice) return;
  m_defaults->Type = TypeOfChoice(choice->Type);
  m_defaults->Color = choice->Color;
}

void frmPolysP::ApplyToPolys() {
  const std::optional<PolyTypeFields::Choice> choice = m_type->Changed();
  const std::string name = m_ui->txtName->text().toStdString();
  const bool renames = m_mode == Mode::One && name != m_session.project.Polys[m_poly].Name;
  if (!choice && !renames) return;
  Edit edit(m_session, m_display);
  if (renames) edit.Project().Polys.Edit(m_poly).Name = name;
  if (!choice) return;
  for (const std::size_t poly : Polys())
    ApplyPolyType(edit.Project().Polys.Edit(poly), choice->Type, choice->Color);
}

void frmPolysP::accept() {
  if (m_type->RefusesAltitude()) return;
  const bool ran = RunGuarded(m_session.dialogs, [&] {
    if (m_mode == Mode::Defaults)
      StoreDefaults();
    else
      ApplyToPolys();
  });
  if (ran) QDialog::accept();
}

}  // namespace landsmith
