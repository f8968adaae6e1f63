#include "forms/FocusReturn.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTimer>

namespace landsmith {

FocusReturn::FocusReturn(QWidget& window, QWidget& home) : QObject(&window), m_window(window), m_home(home) {
  qApp->installEventFilter(this);
}

bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowActivate && watched == &m_window) m_home.setFocus();
  if (event->type() == QEvent::Hide && QApplication::applicationState() == Qt::ApplicationActive) {
    // What is still to come of the closing goes first.
    const auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog && dialog->parentWidget() == &m_window) QTimer::singleShot(0, this, [this] { Return(); });
  }
  return false;
}

void FocusReturn::Return() {
  // Another window of ours may have been opened since; where none is active, none was.
  const QWidget* active = QApplication::activeWindow();
  if (!active) m_window.activateWindow();
  if (!active || active == &m_window) m_home.setFocus();
}

}  // namespace landsmith
