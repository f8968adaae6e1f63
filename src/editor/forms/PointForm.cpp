#include "forms/PointForm.h"

#include "core/Numbers.h"
#include "forms/LineWidths.h"
#include "forms/QtText.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace landsmith {

PointForm::PointForm(Session& session, Editor& editor, QWidget* parent)
    : QDialog(parent), m_session(session), m_editor(editor) {}

void PointForm::Use(const Controls& controls) {
  m_controls = controls;
  connect(controls.Width, &QLineEdit::textChanged, this, &PointForm::LimitWidth);
  connect(controls.Previous, &QPushButton::clicked, this, [this] { Step(WalkStep::PreviousPoint); });
  connect(controls.Next, &QPushButton::clicked, this, [this] { Step(WalkStep::NextPoint); });
}

void PointForm::ShowPoint(const PopupTarget& target) {
  const auto vertex = VertexOf(target);
  if (!vertex || !VertexExists(m_session.project, *vertex)) return;
  m_point.emplace(m_session.project, *vertex);
  ShowValues();
}

void PointForm::ShowValues() {
  const VertexRef& vertex = m_point->Vertex();
  const bool line = vertex.Kind == PathKind::Line;
  const QString title = ToQString(PathTitle(m_session.project, vertex.Kind, vertex.Item));
  m_controls.Title->setText(title);
  m_controls.Title->setToolTip(title.toHtmlEscaped());  // a long name is cut off
  m_controls.Point->setText(tr("PT # %1").arg(vertex.Point + 1));
  m_controls.Third->setText(line ? tr("&Width (m):") : tr("Al&titude (m):"));
  m_shownThird = ToQString(NumberText(Shown().Third));
  m_controls.Width->setText(m_shownThird);
  ShowPosition(Shown().At);
}

void PointForm::Follow(const PopupTarget& target) {
  if (!HasPoint()) return;
  if (target.Kind.empty())
    reject();
  else
    ShowPoint(target);
}

void PointForm::Check() {
  if (!HasPoint()) return;
  if (!m_point->IsThere(m_session.project))
    reject();
  else if (m_point->Update(m_session.project))
    ShowValues();
}

void PointForm::Step(WalkStep step) {
  Check();
  if (HasPoint() && isVisible()) m_editor.Walk(Target(), step);
}

void PointForm::LimitWidth() {
  if (!HasPoint() || m_point->Vertex().Kind != PathKind::Line) return;
  const QString typed = m_controls.Width->text();
  const std::string text = typed.toStdString();
  if (typed == m_shownThird || ParseNumber(text).value_or(0) <= 255) return;
  const std::string refusal = CheckWidths({text});
  if (refusal.empty()) return;
  Refuse(m_controls.Width, refusal);
  m_controls.Width->setText(QStringLiteral("255"));
}

std::optional<float> PointForm::ReadThird() {
  if (m_controls.Width->text() == m_shownThird) return Shown().Third;
  const std::string text = m_controls.Width->text().toStdString();
  const auto value = ParseFloat(text);
  const bool line = m_point->Vertex().Kind == PathKind::Line;
  std::string refusal;
  if (line) refusal = CheckWidths({value ? std::string_view(text) : std::string_view()});
  if (!line && !value) refusal = "Check Altitude!";
  if (refusal.empty()) return value;
  Refuse(m_controls.Width, refusal);
  return {};
}

void PointForm::StoreAndClose(const PointValues& values) {
  if (!m_point->IsThere(m_session.project)) {
    m_session.dialogs.Message(MessageKind::Error, "This point is no longer there!");
    return reject();
  }
  if (m_editor.ChangePoint(m_point->Vertex(), values)) QDialog::accept();
}

void PointForm::Refuse(QLineEdit* box, std::string_view message) {
  m_session.dialogs.Message(MessageKind::Error, message);
  box->setFocus();
  box->selectAll();
}

/// Text boxes leave these keys alone.
void PointForm::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return Step(WalkStep::NextPoint);
    case Qt::Key_Down:
      return Step(WalkStep::PreviousPoint);
    case Qt::Key_PageUp:
      return Step(WalkStep::NextPath);
    case Qt::Key_PageDown:
      return Step(WalkStep::PreviousPath);
    default:
      QDialog::keyPressEvent(event);
  }
}

void PointForm::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Check();
}

}  // namespace landsmith
