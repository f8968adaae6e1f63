#include "forms/FocusReturn.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMenu>
#include <QTimer>

namespace landsmith {

FocusReturn::FocusReturn(QWidget& window, QWidget& home) : QObject(&window), m_window(window), m_home(home) {
  qApp->installEventFilter(this);
}

bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate && watched == &m_window) m_home.setFocus();
  if (event->type() == QEvent::Hide && QApplication::applicationState() == Qt::ApplicationActive) {
    // What is still to come of the closing goes first.
    if (IsOurs(watched)) QTimer::singleShot(0, this, [this] { Return(); });
  }
  return false;
}

/// A dialog or menu of the window.
bool FocusReturn::IsOurs(const QObject* watched) const {
  if (!qobject_cast<const QDialog*>(watched) && !qobject_cast<const QMenu*>(watched)) return false;
  const auto* parent = static_cast<const QWidget*>(watched)->parentWidget();
  return parent && parent->window() == &m_window;
}

void FocusReturn::Return() {
  if (QApplication::activePopupWidget()) return;
  // Another window of ours may have been opened since; where none is active, none was.
  const QWidget* active = QApplication::activeWindow();
  if (!active) m_window.activateWindow();
  if (!active || active == &m_window) m_home.setFocus();
}

}  // namespace landsmith
