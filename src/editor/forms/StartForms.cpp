// The forms that the editor asks the main window for, and those that stand beside the canvas.
#include "forms/frmFind.h"
#include "forms/frmMapsP.h"
#include "forms/frmPoints0P.h"
#include "forms/frmPointsP.h"
#include "forms/frmStart.h"

namespace landsmith {

namespace {

/// Shows a form that deletes itself when it is closed.
void ShowBeside(QDialog& form) {
  form.setAttribute(Qt::WA_DeleteOnClose);
  form.show();
}

}  // namespace

/// Search text and last hit stay from one time to the next.
void frmStart::ShowFind() {
  if (!m_editor->HasProject()) return;
  auto* form = findChild<frmFind*>(QString(), Qt::FindDirectChildrenOnly);
  if (!form) form = new frmFind(m_session, *m_editor, this);
  form->show();
  form->raise();
  form->activateWindow();
}

void frmStart::ShowGotoPosition() {
  if (!m_editor->HasProject()) return;
  auto* form = new frmPointsP(m_session, *m_editor, this);
  form->ShowGotoPosition();
  ShowBeside(*form);
}

void frmStart::ShowCoordinates() {
  if (!m_editor->HasProject()) return;
  auto* form = new frmPointsP(m_session, *m_editor, this);
  form->ShowCoordinates();
  ShowBeside(*form);
}

void frmStart::ShowPointForm(const PopupTarget& point) {
  // One vertex at a time: the walk belongs to it.
  FollowPoint({});
  auto* form = new frmPoints0P(m_session, *m_editor, this);
  form->ShowPoint(point);
  ShowBeside(*form);
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
