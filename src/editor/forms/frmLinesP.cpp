#include "forms/frmLinesP.h"

#include "core/Numbers.h"
#include "editor/Edit.h"
#include "editor/TidyItems.h"
#include "forms/FormGuard.h"
#include "forms/LineWidths.h"
#include "forms/PathDialogs.h"
#include "forms/QtText.h"
#include "forms/frmLPCheck.h"
#include "ui_frmLinesP.h"
#include "vector/LineJoin.h"

#include <QRegularExpressionValidator>

#include <algorithm>

namespace landsmith {

frmLinesP::frmLinesP(Session& session, Display& display, QWidget* parent)
    : QDialog(parent), m_session(session), m_display(display), m_ui(std::make_unique<Ui::frmLinesP>()) {
  m_ui->setupUi(this);
  m_ui->txtLayer->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), this));
  m_type = std::make_unique<LineTypeFields>(session, *m_ui, this);
  ConnectControls();
}

frmLinesP::~frmLinesP() = default;

void frmLinesP::ConnectControls() {
  const auto run = [this](QPushButton* button, void (frmLinesP::*command)()) {
    connect(button, &QPushButton::clicked, this,
            [this, command] { RunGuarded(m_session.dialogs, [&] { (this->*command)(); }); });
  };
  run(m_ui->cmdWidth, &frmLinesP::ChangeWidth);
  run(m_ui->cmdWidth12, &frmLinesP::ChangeProgressiveWidth);
  run(m_ui->cmdChange, &frmLinesP::ChangeOrder);
  run(m_ui->cmdReverse, &frmLinesP::Reverse);
  run(m_ui->cmdPoly, &frmLinesP::MakePolyOrJoin);
  run(m_ui->cmdCheckLine, &frmLinesP::Check);
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmLinesP::accept);
}

void frmLinesP::SetMode(Mode mode) {
  m_mode = mode;
  m_ui->lbName->setEnabled(mode == Mode::One);
  m_ui->txtName->setEnabled(mode == Mode::One);
  m_ui->Frame1->setEnabled(mode == Mode::One);
  const bool hasGeometry = mode != Mode::Defaults;
  for (QWidget* part : {static_cast<QWidget*>(m_ui->lbName), static_cast<QWidget*>(m_ui->txtName),
                        static_cast<QWidget*>(m_ui->Frame1), static_cast<QWidget*>(m_ui->cmdPoly),
                        static_cast<QWidget*>(m_ui->cmdReverse), static_cast<QWidget*>(m_ui->cmdCheckLine)})
    part->setVisible(hasGeometry);
}

void frmLinesP::ShowOne(std::size_t line) {
  m_line = line;
  SetMode(Mode::One);
  const LineRec& record = m_session.project.Lines[line];
  m_ui->txtName->setText(ToQString(record.Name));
  m_type->Show(record.Type, record.Color);
  ShowLineWidths();
  ShowOrder();
}

void frmLinesP::ShowMany() {
  SetMode(Mode::Many);
  const std::vector<std::size_t> selected = Lines();
  setWindowTitle(tr("Properties of %1 Lines").arg(selected.size()));
  const bool two = m_session.tool.Selected.SelectedCount == 2;
  m_ui->cmdPoly->setEnabled(two);
  if (two) {
    m_ui->cmdPoly->setText(tr("&Join"));
    m_ui->cmdPoly->setToolTip(tr("Makes one line of the two selected ones."));
  }
  m_ui->cmdReverse->setEnabled(!selected.empty());
  m_ui->cmdCheckLine->setEnabled(!selected.empty());
  if (selected.empty()) return;
  const RecordList<LineRec>& lines = m_session.project.Lines;
  const LineRec& first = lines[selected.front()];
  const bool alike = std::all_of(selected.begin(), selected.end(), [&](std::size_t line) {
    return lines[line].Type == first.Type && lines[line].Color == first.Color;
  });
  m_type->Show(alike ? std::optional(first.Type) : std::nullopt, first.Color);
}

void frmLinesP::ShowDefaults(LineDefaults& defaults, const QString& mode) {
  m_defaults = &defaults;
  SetMode(Mode::Defaults);
  setWindowTitle(tr("Imported Lines (%1)").arg(mode));
  m_type->Show(defaults.Type, defaults.Color);
  ShowWidths((defaults.FirstWidth + defaults.LastWidth) / 2, defaults.FirstWidth, defaults.LastWidth);
  resize(width(), minimumSizeHint().height());
}

void frmLinesP::ShowLineWidths() {
  const LineRec& record = m_session.project.Lines[m_line];
  if (!record.Points.empty())
    ShowWidths(MeanWidth(record), record.Points.front().Wid, record.Points.back().Wid);
}

void frmLinesP::ShowWidths(float mean, float first, float last) {
  m_ui->txtWidth->setText(ToQString(NumberText(mean)));
  m_ui->txtWidth1->setText(ToQString(NumberText(first)));
  m_ui->txtWidth2->setText(ToQString(NumberText(last)));
}

void frmLinesP::ShowOrder() {
  m_ui->lbOrder->setText(OrderText("Line", m_line, m_session.project.Lines.size()));
}

std::vector<std::size_t> frmLinesP::Lines() const {
  if (m_mode == Mode::One) return {m_line};
  if (m_mode == Mode::Many) return SelectedItems(m_session.project.Lines);
  return {};
}

void frmLinesP::ChangeWidth() {
  const QString text = m_ui->txtWidth->text();
  if (const std::string refused = CheckWidths({text.toStdString()}); !refused.empty())
    return m_session.dialogs.Message(MessageKind::Error, refused);
  const std::optional<float> width = ParseFloat(text.toStdString());
  if (!width) return;
  if (m_mode != Mode::Defaults) {
    Edit edit(m_session, m_display);
    for (const std::size_t line : Lines())
      SetLineWidth(edit.Project().Lines.Edit(line), *width);
  }
  m_ui->txtWidth1->setText(text);
  m_ui->txtWidth2->setText(text);
}

std::optional<std::pair<float, float>> frmLinesP::ReadEndWidths() {
  const std::string first = m_ui->txtWidth1->text().toStdString();
  const std::string last = m_ui->txtWidth2->text().toStdString();
  if (const std::string refused = CheckWidths({first, last}); !refused.empty()) {
    m_session.dialogs.Message(MessageKind::Error, refused);
    return {};
  }
  const std::optional<float> firstWidth = ParseFloat(first);
  const std::optional<float> lastWidth = ParseFloat(last);
  if (!firstWidth || !lastWidth) return {};
  return std::pair{*firstWidth, *lastWidth};
}

void frmLinesP::ChangeProgressiveWidth() {
  const auto widths = ReadEndWidths();
  if (!widths) return;
  if (m_mode != Mode::Defaults) {
    Edit edit(m_session, m_display);
    for (const std::size_t line : Lines())
      SetLineWidths(edit.Project().Lines.Edit(line), widths->first, widths->second);
  }
  m_ui->txtWidth->setText(ToQString(NumberText((widths->first + widths->second) / 2)));
}

void frmLinesP::ChangeOrder() {
  Edit edit(m_session, m_display);
  m_line = ChangePathOrder(edit.Project().Lines, m_line, ChosenOrder(*m_ui));
  ShowOrder();
}

void frmLinesP::Reverse() {
  Edit edit(m_session, m_display);
  for (const std::size_t line : Lines())
    ReverseLine(edit.Project().Lines.Edit(line));
  if (m_mode != Mode::One) return;
  const QString first = m_ui->txtWidth1->text();
  m_ui->txtWidth1->setText(m_ui->txtWidth2->text());
  m_ui->txtWidth2->setText(first);
}

void frmLinesP::MakePolyOrJoin() {
  if (m_mode == Mode::One) {
    Edit edit(m_session, m_display);
    PolyRec poly = MakePolyFromLine(m_session.project.Lines[m_line]);
    edit.Project().Polys.push_back(std::move(poly));
    m_ui->cmdPoly->setEnabled(false);  // once is enough
    return;
  }
  std::string refused;
  {
    Edit edit(m_session, m_display);
    refused = JoinLines(edit.Project(), m_session.tool.Selected);
  }
  if (refused.empty())
    m_session.dialogs.Beep();
  else
    m_session.dialogs.Message(MessageKind::Error, refused);
  QDialog::accept();
}

void frmLinesP::Check() {
  frmLPCheck check(m_session, this);
  check.exec();
  const CheckRequest& request = check.Request();
  const std::vector<std::size_t> lines = Lines();
  if (request.Mode == CheckMode::Cancel) return;
  if (request.Mode == CheckMode::Manual) {
    accept();
    if (result() == QDialog::Accepted) m_walk = PopupTarget{"PtInLine", "", lines.front(), 0, {}};
    return;
  }
  {
    Edit edit(m_session, m_display);
    TidyLines(edit.Project(), lines, request, m_session.view.LatDispCenter, m_session.tool.Selected);
  }
  if (m_mode == Mode::One) ShowLineWidths();
}

bool frmLinesP::StoreDefaults() {
  const auto widths = ReadEndWidths();
  if (!widths) return false;
  m_defaults->FirstWidth = widths->first;
  m_defaults->LastWidth = widths->second;
  if (const auto choice = m_type->Changed()) {
    m_defaults->Type = choice->Type;
    m_defaults->Color = choice->Color.value_or(m_defaults->Color);
  }
  return true;
}

void frmLinesP::ApplyToLines() {
  const std::optional<LineTypeFields::Choice> choice = m_type->Changed();
  const std::string name = m_ui->txtName->text().toStdString();
  const bool renames = m_mode == Mode::One && name != m_session.project.Lines[m_line].Name;
  if (!choice && !renames) return;
  Edit edit(m_session, m_display);
  if (renames) edit.Project().Lines.Edit(m_line).Name = name;
  if (!choice) return;
  for (const std::size_t line : Lines()) {
    LineRec& record = edit.Project().Lines.Edit(line);
    record.Type = choice->Type;
    record.Color = choice->Color.value_or(record.Color);
  }
}

void frmLinesP::accept() {
  bool stored = true;
  const bool ran = RunGuarded(m_session.dialogs, [&] {
    if (m_mode == Mode::Defaults)
      stored = StoreDefaults();
    else
      ApplyToLines();
  });
  if (ran && stored) QDialog::accept();
}

}  // namespace landsmith
