#include "forms/frmStart.h"

#include "core/Text.h"
#include "forms/FocusReturn.h"
#include "forms/HintLabel.h"
#include "forms/Icons.h"
#include "forms/QtText.h"
#include "forms/StartTables.h"
#include "forms/WindowMemory.h"
#include "forms/frmProjectP.h"
#include "platform/Paths.h"
#include "ui_frmStart.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QTimer>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace landsmith {

namespace {

/// The project file that is being dragged here, if it is one alone.
std::optional<std::filesystem::path> DraggedProject(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.constFirst().isLocalFile()) return {};
  std::filesystem::path path = ToPath(urls.constFirst().toLocalFile());
  if (!EqualsIgnoringCase(PathText(path.extension()), ".LSP")) return {};
  return path;
}

}  // namespace

frmStart::frmStart(Session& session, QWidget* parent)
    : QMainWindow(parent), m_session(session), m_ui(std::make_unique<Ui::frmStart>()) {
  m_ui->setupUi(this);
  for (QAction* action : findChildren<QAction*>())
    m_actions.insert(action->objectName(), action);
  setWindowIcon(ProgramIcon());
  setCentralWidget(m_ui->canvas);
  m_status = std::make_unique<StatusPanelBar>(*m_ui->statusBar);
  m_status->ShowSimulator(m_session.folders);
  // Beside the tools there is room for it; the status bar serves while they are hidden.
  m_toolHint = new HintLabel(QStringLiteral("tbHint"));
  m_ui->toolBar->addSeparator();
  m_ui->toolBar->addWidget(m_toolHint);
  m_statusHint = new HintLabel(QStringLiteral("sbHint"));
  m_ui->statusBar->addWidget(m_statusHint, 1);
  m_statusHint->hide();

  m_mouseLabel = new QLabel(m_ui->canvas);
  m_mouseLabel->setObjectName(QStringLiteral("mouseLabel"));
  m_mouseLabel->setTextFormat(Qt::PlainText);
  m_mouseLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_mouseLabel->setAutoFillBackground(true);
  m_mouseLabel->setBackgroundRole(QPalette::ToolTipBase);
  m_mouseLabel->setForegroundRole(QPalette::ToolTipText);
  m_mouseLabel->setFrameStyle(QFrame::Box | QFrame::Plain);
  m_mouseLabel->setMargin(2);
  m_mouseLabel->hide();

  m_editor = std::make_unique<Editor>(m_session, *m_ui->canvas, *this);
  m_popups = std::make_unique<PopupMenus>(*m_ui->canvas, *m_editor);
  m_recovery = std::make_unique<RecoveryKeeper>(m_session, this);
  NameToolButtons();
  PaintIcons();
  BindFileMenu();
  BindEditMenu();
  BindViewMenu();
  BindSelectMenu();
  BindModes();
  BindHelpMenu();
  m_ui->mnuVToolbar->setChecked(true);
  RestoreWindow(*this, m_session.folders.AppPath);
  m_ui->canvas->Connect(m_editor.get());
  m_ui->canvas->setFocus();
  new FocusReturn(*this, *m_ui->canvas);
  connect(m_ui->mnuHelp, &QMenu::aboutToShow, this, &frmStart::RefreshTutorials);
  RefreshTutorials();
  RefreshUi();
}

frmStart::~frmStart() {
  m_ui->canvas->Connect(nullptr);
  m_editor.reset();  // its end still stops timers
}

void frmStart::Start(const std::optional<std::filesystem::path>& project) {
  m_editor->NewProject(true);
  if (m_recovery->Offer(*m_editor)) return;
  if (project) m_editor->OpenProject(*project);
}

void frmStart::NameToolButtons() {
  const auto name = [this](const QString& action, const QString& key) {
    if (QWidget* button = m_ui->toolBar->widgetForAction(&Action(action)))
      button->setObjectName(QStringLiteral("tb") + key);
  };
  for (const ButtonRow& row : ButtonTable)
    name(QLatin1String(row.action), QLatin1String(row.key));
  for (const ModeRow& row : ModeTable)
    name(QStringLiteral("mnuO") + QLatin1String(row.key), QLatin1String(row.key));
}

void frmStart::PaintIcons() {
  const QPalette palette = QApplication::palette();
  for (const ButtonRow& row : ButtonTable)
    Action(QLatin1String(row.action)).setIcon(ToolIcon(QLatin1String(row.key), palette));
  for (const ModeRow& row : ModeTable)
    Action(QStringLiteral("mnuO") + QLatin1String(row.key))
        .setIcon(ToolIcon(QLatin1String(row.key), palette));
  for (const ButtonRow& row : MenuPictures)
    Action(QLatin1String(row.action)).setIcon(ToolIcon(QLatin1String(row.key), palette));
}

void frmStart::FitToolbar() {
  const bool shown = m_ui->mnuVToolbar->isChecked() && m_ui->canvas->width() >= ToolbarMinWidth;
  m_ui->toolBar->setVisible(shown);
  m_statusHint->setVisible(!shown);
}

void frmStart::SetStatus(const StatusPanels& panels) {
  m_status->Show(panels);
}

void frmStart::SetCursor(CursorShape shape) {
  // The editor says it at every event; drawing the picture each time would be felt.
  const std::pair<CursorShape, double> wanted(shape, devicePixelRatioF());
  if (m_cursor == wanted) return;
  m_cursor = wanted;
  m_ui->canvas->setCursor(ToQCursor(shape, wanted.second));
}

void frmStart::SetHint(std::string_view hint) {
  m_toolHint->Show(hint);
  m_statusHint->Show(hint);
}

void frmStart::ShowContextMenu(const PopupTarget& target) {
  m_popups->Show(target);
}

bool frmStart::ShowProjectProperties() {
  const bool accepted = frmProjectP(m_session, m_editor->Canvas(), this).exec() == QDialog::Accepted;
  RefreshUi();
  return accepted;
}

int frmStart::ToolbarHeight() const {
  return m_ui->toolBar->isVisible() ? m_ui->toolBar->height() : 0;
}

int frmStart::StatusBarHeight() const {
  return m_ui->statusBar->height();
}

bool frmStart::StartTimer(TimerId timer, int milliseconds) {
  QTimer*& entry = m_timers[timer];
  if (!entry) {
    entry = new QTimer(this);
    entry->setSingleShot(true);
    entry->setTimerType(Qt::PreciseTimer);
    connect(entry, &QTimer::timeout, this, [this, timer] { m_editor->TimerTick(timer); });
  }
  entry->start(milliseconds);
  return true;
}

void frmStart::StopTimer(TimerId timer) {
  const auto known = m_timers.find(timer);
  if (known != m_timers.end()) known->second->stop();
}

void frmStart::ShowHoverLabel(std::string_view text, PixelPoint at) {
  m_mouseLabel->setVisible(!text.empty());
  if (text.empty()) return;
  m_mouseLabel->setText(ToQString(text));
  m_mouseLabel->adjustSize();
  // Whole at the edges of the canvas too.
  const QSize room = m_ui->canvas->size() - m_mouseLabel->size();
  m_mouseLabel->move(std::max(0, std::min(at.x, room.width())), std::max(0, std::min(at.y, room.height())));
}

void frmStart::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && m_editor) PaintIcons();
}

void frmStart::closeEvent(QCloseEvent* event) {
  // The end of the session is not held up by a question.
  const bool noTime = qApp->isSavingSession();
  if (!noTime && !m_editor->MayClose()) {
    event->ignore();
    return;
  }
  m_recovery->End(noTime);
  RememberWindow(*this, m_session.folders.AppPath);
  event->accept();
}

void frmStart::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  FitToolbar();
}

void frmStart::dragEnterEvent(QDragEnterEvent* event) {
  if (DraggedProject(*event->mimeData())) event->acceptProposedAction();
}

void frmStart::dropEvent(QDropEvent* event) {
  const std::optional<std::filesystem::path> project = DraggedProject(*event->mimeData());
  if (!project) return;
  event->acceptProposedAction();
  // The program that the file was dragged from waits until this event is done.
  QTimer::singleShot(0, this, [this, path = *project] {
    if (m_editor->MayDropChanges()) m_editor->OpenProject(path);
  });
}

}  // namespace landsmith
