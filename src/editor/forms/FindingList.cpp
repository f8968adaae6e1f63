#include "forms/FindingList.h"

#include "forms/QtText.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

namespace landsmith {

namespace {

constexpr int MillisecondsAtOnce = 30;
/// Longer names of items are cut off, for the findings' sake.
constexpr int MostTitleLetters = 27;

QString ItemTitle(const ProjectState& project, const Finding& finding) {
  if (finding.Kind == FillFinding) return FindingList::tr("Fill %1").arg(finding.Item + 1);
  const bool isLine = finding.Kind == LineFinding;
  const std::string& name = isLine ? project.Lines[finding.Item].Name : project.Polys[finding.Item].Name;
  const QString title =
      (isLine ? FindingList::tr("Line %1") : FindingList::tr("Polygon %1")).arg(finding.Item + 1);
  return name.empty() ? title : title + QStringLiteral(", ") + ToQString(name);
}

}  // namespace

FindingList::FindingList(const ProjectState& project, const AppSettings& settings, const Controls& controls,
                         QObject* parent)
    : QObject(parent), m_project(project), m_controls(controls), m_check(project, settings) {
  m_controls.list->hide();
  m_controls.goTo->hide();
  m_controls.list->header()->setStretchLastSection(true);
  m_controls.list->installEventFilter(this);
  connect(m_controls.list, &QTreeWidget::itemDoubleClicked, this, &FindingList::GoToCurrent);
  connect(m_controls.goTo, &QPushButton::clicked, this, &FindingList::GoToCurrent);
  connect(&m_idle, &QTimer::timeout, this, &FindingList::CheckForAWhile);
  m_idle.start();
  CheckForAWhile();
}

/// Enter would compile, as everywhere in the dialog.
bool FindingList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      GoToCurrent();
      return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

void FindingList::CheckForAWhile() {
  QElapsedTimer elapsed;
  elapsed.start();
  while (!m_done && elapsed.elapsed() < MillisecondsAtOnce)
    m_done = !m_check.Next(m_findings);
  if (m_done) m_idle.stop();
  ShowNewFindings();
  ShowSummary();
}

void FindingList::ShowNewFindings() {
  if (m_shown == m_findings.size()) return;
  const QStyle& style = *m_controls.list->style();
  const QIcon error = style.standardIcon(QStyle::SP_MessageBoxCritical);
  const QIcon warning = style.standardIcon(QStyle::SP_MessageBoxWarning);
  QList<QTreeWidgetItem*> rows;
  for (; m_shown < m_findings.size(); ++m_shown) {
    const Finding& finding = m_findings[m_shown];
    const bool isError = finding.Severity == FindingSeverity::Error;
    auto* row = new QTreeWidgetItem({ItemTitle(m_project, finding), ToQString(finding.Text)});
    row->setIcon(0, isError ? error : warning);
    const QString meaning =
        isError ? tr("The compiler will fail.") : tr("The scenery will not be what is drawn.");
    row->setToolTip(0, row->text(0) + '\n' + meaning);
    row->setData(0, Qt::AccessibleDescriptionRole, meaning);
    row->setToolTip(1, row->text(1));
    rows.push_back(row);
  }
  m_controls.list->addTopLevelItems(rows);
  if (m_controls.list->currentItem() == nullptr) m_controls.list->setCurrentItem(rows.front());
  m_controls.list->resizeColumnToContents(0);
  const int widest = m_controls.list->fontMetrics().averageCharWidth() * MostTitleLetters;
  if (m_controls.list->columnWidth(0) > widest) m_controls.list->setColumnWidth(0, widest);
  m_controls.list->show();
  m_controls.goTo->show();
}

void FindingList::ShowSummary() {
  if (!m_done)
    m_controls.summary->setText(
        tr("The selected items are being checked. Findings so far: %1.").arg(m_findings.size()));
  else if (m_findings.empty())
    m_controls.summary->setText(tr("The check of the selected items found nothing amiss."));
  else if (m_findings.size() == 1)
    m_controls.summary->setText(
        tr("The check found one thing to look at. It keeps nothing from being compiled."));
  else
    m_controls.summary->setText(
        tr("The check found %1 things to look at. They keep nothing from being compiled.")
            .arg(m_findings.size()));
}

void FindingList::GoToCurrent() {
  const int row = m_controls.list->indexOfTopLevelItem(m_controls.list->currentItem());
  if (row < 0) return;
  emit GoTo(m_findings[static_cast<std::size_t>(row)]);
  m_controls.list->setFocus();  // the next one is an arrow key away
}

}  // namespace landsmith
