#include "forms/frmBGL.h"

#include "forms/FindingList.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "forms/SourceExcerpt.h"
#include "platform/Paths.h"
#include "ui_frmBGL.h"
#include "wiring/CompileSteps.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QScopeGuard>

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

/// A text view takes this much at once; the file itself has the rest.
constexpr std::size_t ShownBytes = 1'000'000;
constexpr int FullScale = 1000;
constexpr int MillisecondsBetweenEvents = 30;

template <class Control>
Control* FindControl(const QWidget& dialog, std::string_view name) {
  return dialog.findChild<Control*>(ToQString(name));
}

}  // namespace

frmBGL::frmBGL(Session& session, Display& display, QWidget* parent)
    : frmBGL(session, display, CompileSteps(), parent) {}

frmBGL::frmBGL(Session& session, Display& display, const StepTable& steps, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_display(display),
      m_steps(steps),
      m_ui(std::make_unique<Ui::frmBGL>()) {
  m_ui->setupUi(this);
  m_ui->txtSource->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  m_ui->tabBGL->setTabEnabled(1, false);
  SetRunning(false);
  EnableSteps();
  for (const QCheckBox* box : findChildren<QCheckBox*>())
    connect(box, &QCheckBox::toggled, this, &frmBGL::EnableCompile);
  const auto followBitmaps = [this] {
    if (!m_ui->ckBitmaps->isChecked() && !m_ui->ckXBitmaps->isChecked()) m_ui->ckCopyTEXs->setChecked(false);
  };
  connect(m_ui->ckBitmaps, &QCheckBox::toggled, this, followBitmaps);
  connect(m_ui->ckXBitmaps, &QCheckBox::toggled, this, followBitmaps);
  connect(m_ui->cmdCompile, &QPushButton::clicked, this, &frmBGL::Compile);
  connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmBGL::reject);
  connect(m_ui->lstFiles, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) ShowSource(m_written[static_cast<std::size_t>(row)]);
  });
  auto* findings = new FindingList(session.project, session.settings,
                                   {m_ui->lbFindings, m_ui->lstFindings, m_ui->cmdGoTo}, this);
  connect(findings, &FindingList::GoTo, this, &frmBGL::GoTo);
  EnableCompile();
}

frmBGL::~frmBGL() = default;

void frmBGL::EnableSteps() {
  for (QGroupBox* frame : {m_ui->frClass, m_ui->frVTP, m_ui->frLWM, m_ui->frPhoto, m_ui->frOther})
    frame->setEnabled(false);
  for (QCheckBox* box : findChildren<QCheckBox*>())
    box->setEnabled(box == m_ui->ckStartFS9);
  for (const StepInfo& step : m_steps) {
    auto* box = FindControl<QCheckBox>(*this, step.Control);
    if (!box) continue;
    if (!step.IsAvailable()) {
      box->setToolTip(tr("This version cannot compile these yet."));
      continue;
    }
    if (!step.HasData(m_session.project)) {
      box->setToolTip(tr("Nothing of this kind is selected."));
      continue;
    }
    if (auto* frame = FindControl<QGroupBox>(*this, step.Frame)) frame->setEnabled(true);
    box->parentWidget()->setEnabled(true);
    box->setEnabled(true);
    box->setChecked(step.CheckedWithData);
    m_ui->ckCopyBGLs->setEnabled(true);
    if (step.OffersTextureCopy) m_ui->ckCopyTEXs->setEnabled(true);
  }
}

std::vector<std::string_view> frmBGL::WantedSteps() const {
  std::vector<std::string_view> wanted;
  for (const StepInfo& step : m_steps) {
    const auto* box = FindControl<QCheckBox>(*this, step.Control);
    if (box && box->isEnabled() && box->isChecked()) wanted.push_back(step.Name);
  }
  return wanted;
}

void frmBGL::EnableCompile() {
  m_ui->cmdCompile->setEnabled(!m_running && (m_ui->ckStartFS9->isChecked() || !WantedSteps().empty()));
}

void frmBGL::SetRunning(bool running) {
  m_running = running;
  m_ui->barProgress->setVisible(running);
  m_ui->lbStep->setVisible(running);
  m_ui->tabBGL->setEnabled(!running);
  m_ui->cmdCancel->setEnabled(true);
  m_ui->cmdCancel->setText(running ? tr("Stop") : tr("Cancel"));
}

void frmBGL::Compile() {
  const std::vector<std::string_view> wanted = WantedSteps();
  CompileReport report;
  m_stop = false;
  SetRunning(true);
  EnableCompile();
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  {
    const auto pointer = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    RunGuarded(m_session.dialogs, [&] {
      RunWanted(wanted, report);
      if (m_ui->ckStartFS9->isChecked() && !m_stop) StartSimulator();
    });
    m_display.DisplayAll();
  }
  SetRunning(false);
  EnableCompile();
  ShowReport(report);
}

void frmBGL::RunWanted(const std::vector<std::string_view>& wanted, CompileReport& report) {
  CompileOptions options;
  options.CopyBGL = m_ui->ckCopyBGLs->isChecked();
  options.CopyTEX = m_ui->ckCopyTEXs->isChecked();
  const CompileContext context{m_session.project, m_session.settings,
                               m_session.folders, m_session.tools,
                               m_session.dialogs, *this,
                               options,           report};
  std::size_t started = 0;
  RunSteps(m_steps, wanted, context, [&](const StepInfo& step) {
    m_ui->lbStep->setText(tr("%1 (%2 of %3)").arg(ToQString(step.Caption)).arg(++started).arg(wanted.size()));
    m_sinceEvents.invalidate();  // each step's name is seen
    Wait();
  });
}

void frmBGL::StartSimulator() {
  const std::filesystem::path& folder = m_session.folders.FSPath;
  const std::filesystem::path program = FindInFolder(folder, "fs9.exe").value_or(folder / "fs9.exe");
  m_session.tools.Start('"' + PathText(program) + '"', folder);
}

// Nothing done yet shows as a busy bar: the first compiler may take all the time there is.
bool frmBGL::Step(double fraction, std::string_view phrase) {
  m_ui->lbStep->setText(ToQString(phrase));
  m_ui->barProgress->setMaximum(fraction > 0 ? FullScale : 0);
  m_ui->barProgress->setValue(static_cast<int>(std::lround(std::clamp(fraction, 0.0, 1.0) * FullScale)));
  return Wait();
}

bool frmBGL::Wait() {
  if (!m_sinceEvents.isValid() || m_sinceEvents.elapsed() >= MillisecondsBetweenEvents) {
    QCoreApplication::processEvents();
    m_sinceEvents.start();
  }
  return !m_stop;
}

void frmBGL::reject() {
  if (!m_running) return QDialog::reject();
  m_stop = true;
  m_ui->cmdCancel->setEnabled(false);
  m_ui->cmdCancel->setText(tr("Stopping"));
}

void frmBGL::ShowReport(const CompileReport& report) {
  m_written = report.Written;
  const QSignalBlocker quiet(m_ui->lstFiles);
  m_ui->lstFiles->clear();
  m_ui->txtSource->clear();
  m_ui->lbSource->clear();
  for (const std::filesystem::path& file : m_written)
    m_ui->lstFiles->addItem(PathToQString(file));
  QString result =
      m_written.empty() ? tr("No file was written.") : tr("Files written: %1.").arg(m_written.size());
  if (report.Failed) result += ' ' + tr("A step failed.");
  if (m_stop) result += ' ' + tr("The run was stopped.");
  m_ui->lbResult->setText(result);
  m_ui->tabBGL->setTabEnabled(1, true);
  m_ui->tabBGL->setCurrentIndex(1);
  m_ui->cmdCancel->setText(tr("Close"));
  m_ui->cmdCancel->setFocus();
  const auto last = std::find(m_written.begin(), m_written.end(), report.LastSource);
  if (last != m_written.end()) m_ui->lstFiles->setCurrentRow(static_cast<int>(last - m_written.begin()));
  if (!report.LastSource.empty()) ShowSource(report.LastSource);
}

void frmBGL::ShowSource(const std::filesystem::path& file) {
  m_ui->txtSource->clear();
  m_ui->lbSource->setText(PathToQString(file.filename()));
  RunGuarded(m_session.dialogs, [&] {
    const SourceExcerpt excerpt = ReadSourceExcerpt(file, ShownBytes);
    if (excerpt.Text.find('\0') != std::string::npos) {
      m_ui->lbSource->setText(tr("%1 is not a text.").arg(PathToQString(file.filename())));
      return;
    }
    m_ui->txtSource->setPlainText(ToQString(excerpt.Text));
    if (excerpt.IsWhole) return;
    const QLocale locale = QLocale::c();
    m_ui->lbSource->setText(
        tr("%1: the first %2 of %3 are shown.")
            .arg(PathToQString(file.filename()),
                 locale.formattedDataSize(static_cast<qint64>(ShownBytes), 1, QLocale::DataSizeSIFormat),
                 locale.formattedDataSize(static_cast<qint64>(excerpt.FileSize), 1,
                                          QLocale::DataSizeSIFormat)));
  });
}

}  // namespace landsmith
