// Searches lines, polygons and objects by their texts; stays open beside the canvas.
#pragma once

#include "editor/Editor.h"

#include <QDialog>

#include <memory>

namespace landsmith {

namespace Ui {
class frmFind;
}

class frmFind final : public QDialog {
  Q_OBJECT

public:
  frmFind(Session& session, Editor& editor, QWidget* parent);
  ~frmFind() override;

protected:
  void showEvent(QShowEvent* event) override;

private:
  void Capitalize();
  void EnableButtons();
  void Run(FindScope scope);

  Editor& m_editor;
  std::unique_ptr<Ui::frmFind> m_ui;
  std::size_t m_lastHit = 0;
};

}  // namespace landsmith
