// The canvas has the keyboard whenever no dialog has it: held keys belong to drawing.
#pragma once

#include <QObject>
#include <QWidget>

namespace landsmith {

class FocusReturn final : public QObject {
public:
  /// `home` gets the keyboard back when `window` becomes active and when a dialog or menu of it closes.
  FocusReturn(QWidget& window, QWidget& home);

  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  bool IsOurs(const QObject* watched) const;
  void Return();

  QWidget& m_window;
  QWidget& m_home;
};

}  // namespace landsmith
