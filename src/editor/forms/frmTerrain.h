// Picks a ready-made texture of the line or polygon catalogue.
#pragma once

#include "editor/Session.h"
#include "forms/TextureKind.h"
#include "forms/TexturePreview.h"

#include <QDialog>

#include <memory>

namespace landsmith {

namespace Ui {
class frmTerrain;
}

class frmTerrain final : public QDialog {
  Q_OBJECT

public:
  frmTerrain(Session& session, TextureKind kind, QWidget* parent);
  ~frmTerrain() override;

  /// Stores the chosen place as the catalogue's current one.
  void accept() override;

private:
  void ShowEntry(int row);

  Session& m_session;
  TextureKind m_kind;
  TexturePreview m_preview;
  std::unique_ptr<Ui::frmTerrain> m_ui;
};

}  // namespace landsmith
