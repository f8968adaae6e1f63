// The canvas has the keyboard whenever no dialog has it: held keys belong to drawing.
#pragma once

#include <QObject>
#include <QWidget>

namespace landsmith {

class FocusReturn final : public QObject {
public:
  /// `home` gets the keyboard back when `window` becomes active and when a dialog of it closes; the window
  /// system itself returns it from a menu.
  FocusReturn(QWidget& window, QWidget& home);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void Return();

  QWidget& m_window;
  QWidget& m_home;
};

}  // namespace landsmith
