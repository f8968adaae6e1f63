// The forms that the editor asks the main window for, and those that stand beside the canvas.
#include "forms/frmBGL.h"
#include "forms/frmFillsP.h"
#include "forms/frmFind.h"
#include "forms/frmLinesP.h"
#include "forms/frmMapsP.h"
#include "forms/frmPoints0P.h"
#include "forms/frmPointsP.h"
#include "forms/frmPolysP.h"
#include "forms/frmStart.h"
#include "ui_frmStart.h"

#include <QScreen>

#include <algorithm>

namespace landsmith {

namespace {

constexpr int Margin = 12;

/// To the right end of the canvas: in its middle stands what a walk or a search has come to.
void PutAside(QDialog& form, const QWidget& canvas) {
  form.adjustSize();
  const QPoint corner = canvas.mapToGlobal(QPoint(canvas.width(), 0));
  form.move(corner.x() - form.width() - Margin, corner.y() + Margin);
}

/// A form that hides the middle of the canvas goes to the right of it, as far as the screen allows.
void UncoverMiddle(QDialog& form, const QWidget& canvas) {
  const QPoint middle = canvas.mapToGlobal(canvas.rect().center());
  const QRect frame = form.frameGeometry();
  if (!frame.contains(middle)) return;
  const int farthest = form.screen()->availableGeometry().right() - frame.width();
  const int right = canvas.mapToGlobal(QPoint(canvas.width(), 0)).x() - frame.width() - Margin;
  form.move(std::min(std::max(right, middle.x() + Margin), farthest), frame.top());
}

/// Shows a form that deletes itself when it is closed.
void ShowBeside(QDialog& form, const QWidget& canvas) {
  form.setAttribute(Qt::WA_DeleteOnClose);
  PutAside(form, canvas);
  form.show();
}

/// Shows the properties of one line or polygon, or of all selected ones. The walk that the user may ask for
/// there begins when the form no longer covers the canvas.
template <class Form>
void RunProperties(Form& form, std::optional<std::size_t> item, Editor& editor) {
  if (item)
    form.ShowOne(*item);
  else
    form.ShowMany();
  form.exec();
  if (form.Walk()) editor.StartWalk(*form.Walk());
}

}  // namespace

void frmStart::ShowLineProperties(std::optional<std::size_t> line) {
  frmLinesP form(m_session, m_editor->Canvas(), this);
  RunProperties(form, line, *m_editor);
  RefreshUi();
}

void frmStart::ShowPolyProperties(std::optional<std::size_t> poly) {
  frmPolysP form(m_session, m_editor->Canvas(), this);
  RunProperties(form, poly, *m_editor);
  RefreshUi();
}

void frmStart::ShowFillProperties(std::size_t fill) {
  if (fill >= m_session.project.Fills.size()) return;
  frmFillsP form(m_session, m_editor->Canvas(), this);
  form.ShowFill(fill);
  form.exec();
  RefreshUi();
}

void frmStart::ShowModeForm(std::optional<ModeId> mode) {
  if (mode != ModeId::Fill) {
    if (m_modeForm) m_modeForm->close();
    return;
  }
  const bool isOpen = m_modeForm && m_modeForm->isVisible();
  if (!isOpen) m_modeForm = new frmFillsP(m_session, m_editor->Canvas(), this);
  m_modeForm->ShowPalette();
  if (isOpen) return;
  m_modeForm->setAttribute(Qt::WA_ShowWithoutActivating);  // the canvas keeps the keyboard
  ShowBeside(*m_modeForm, *m_ui->canvas);
}

void frmStart::ShowCompilation() {
  frmBGL form(m_session, m_editor->Canvas(), this);
  connect(&form, &frmBGL::GoTo, this, [&](const Finding& finding) { GoToFinding(finding, form); });
  form.exec();
  m_editor->HideFinding();
}

void frmStart::GoToFinding(const Finding& finding, QDialog& form) {
  m_editor->ShowFinding(finding);
  UncoverMiddle(form, *m_ui->canvas);
}

/// Search text and last hit stay from one time to the next.
void frmStart::ShowFind() {
  if (!m_editor->HasProject()) return;
  auto* form = findChild<frmFind*>(QString(), Qt::FindDirectChildrenOnly);
  if (!form) {
    form = new frmFind(m_session, *m_editor, this);
    PutAside(*form, *m_ui->canvas);
  }
  form->show();
  form->raise();
  form->activateWindow();
}

void frmStart::ShowGotoPosition() {
  if (!m_editor->HasProject()) return;
  auto* form = new frmPointsP(m_session, *m_editor, this);
  form->ShowGotoPosition();
  ShowBeside(*form, *m_ui->canvas);
}

void frmStart::ShowCoordinates() {
  if (!m_editor->HasProject()) return;
  auto* form = new frmPointsP(m_session, *m_editor, this);
  form->ShowCoordinates();
  ShowBeside(*form, *m_ui->canvas);
}

void frmStart::ShowPointForm(const PopupTarget& point) {
  // One vertex at a time: the walk belongs to it.
  FollowPoint({});
  auto* form = new frmPoints0P(m_session, *m_editor, this);
  form->ShowPoint(point);
  ShowBeside(*form, *m_ui->canvas);
  m_editor->StartWalk(point, WalkView::Keep);
}

void frmStart::FollowPoint(const PopupTarget& point) {
  for (PointForm* form : findChildren<PointForm*>(QString(), Qt::FindDirectChildrenOnly))
    form->Follow(point);
}

void frmStart::CheckPointForms() {
  for (PointForm* form : findChildren<PointForm*>(QString(), Qt::FindDirectChildrenOnly))
    form->Check();
}

void frmStart::ShowMapProperties(std::size_t map) {
  if (map >= m_session.project.Maps.size()) return;
  frmMapsP form(m_session, *m_editor, this);
  form.ShowMap(map);
  form.exec();
  RefreshUi();
}

}  // namespace landsmith
