#include "forms/ClickLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace landsmith {

void ClickLabel::SetClickable(bool clickable) {
  m_clickable = clickable;
  setFocusPolicy(clickable ? Qt::StrongFocus : Qt::NoFocus);
  if (clickable)
    setCursor(Qt::PointingHandCursor);
  else
    unsetCursor();
}

// Taken, so that the release comes here too.
void ClickLabel::mousePressEvent(QMouseEvent* event) {
  if (!m_clickable || event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
  event->accept();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (!m_clickable || event->button() != Qt::LeftButton) return QLabel::mouseReleaseEvent(event);
  if (rect().contains(event->position().toPoint())) emit clicked();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  const bool pressesIt =
      event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!m_clickable || !pressesIt) return QLabel::keyPressEvent(event);
  emit clicked();
}

void ClickLabel::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

}  // namespace landsmith
