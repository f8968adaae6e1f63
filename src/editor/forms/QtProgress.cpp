#include "forms/QtProgress.h"

#include "forms/QtText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

constexpr int FullScale = 1000;
constexpr int MillisecondsUntilShown = 300;

}  // namespace

QtProgress::QtProgress(QWidget* parent) : m_dialog(parent) {
  m_dialog.setObjectName(QStringLiteral("progress"));
  m_dialog.setWindowTitle(QStringLiteral("Landsmith"));
  m_dialog.setWindowModality(Qt::WindowModal);
  m_dialog.setRange(0, FullScale);
  m_dialog.setAutoClose(false);
  m_dialog.setAutoReset(false);
  m_dialog.setMinimumWidth(360);
  // The dialog's own estimate shows it too late for work that comes in few steps.
  m_dialog.reset();
  m_dialog.setMinimumDuration(FullScale * FullScale);
  m_sinceStart.start();
}

bool QtProgress::Step(double fraction, std::string_view phrase) {
  m_dialog.setLabelText(ToQString(phrase));
  m_dialog.setValue(static_cast<int>(std::lround(std::clamp(fraction, 0.0, 1.0) * FullScale)));
  return Wait();
}

bool QtProgress::Wait() {
  if (!m_dialog.isVisible() && !m_dialog.wasCanceled() && m_sinceStart.elapsed() > MillisecondsUntilShown)
    m_dialog.show();
  // Until the bar blocks the window, a click would start a second command inside this one.
  QCoreApplication::processEvents(m_dialog.isVisible() ? QEventLoop::AllEvents
                                                       : QEventLoop::ExcludeUserInputEvents);
  return !m_dialog.wasCanceled();
}

}  // namespace landsmith
