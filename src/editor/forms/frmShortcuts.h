// What keys and the mouse do, for reading beside the canvas.
#pragma once

#include <QDialog>
#include <QMenuBar>

#include <memory>

namespace landsmith {

namespace Ui {
class frmShortcuts;
}

class frmShortcuts final : public QDialog {
  Q_OBJECT

public:
  /// `menus`: whose shortcuts are told as they are at this moment.
  frmShortcuts(const QMenuBar& menus, QWidget* parent);
  ~frmShortcuts() override;

private:
  std::unique_ptr<Ui::frmShortcuts> m_ui;
};

}  // namespace landsmith
