// Picks a ready-made texture of the line or polygon catalogue, or another texture of a list.
#pragma once

#include "editor/Session.h"
#include "forms/TextureKind.h"
#include "forms/TexturePreview.h"

#include <QDialog>

#include <cstddef>
#include <memory>
#include <optional>

namespace landsmith {

namespace Ui {
class frmTerrain;
}

class frmTerrain final : public QDialog {
  Q_OBJECT

public:
  /// OK stores the chosen place as the catalogue's current one.
  frmTerrain(Session& session, TextureKind kind, QWidget* parent);
  /// A list of its own with the place that is marked first, 0-based.
  frmTerrain(Session& session, const QString& title, TextureCatalog items, std::size_t current,
             QWidget* parent);
  ~frmTerrain() override;

  /// After OK.
  const TextureItem& Chosen() const { return m_items[m_chosen]; }

  void accept() override;

private:
  frmTerrain(Session& session, const QString& title, TextureCatalog items, std::optional<TextureKind> kind,
             std::size_t current, QWidget* parent);
  void ShowEntry(int row);

  Session& m_session;
  std::optional<TextureKind> m_kind;
  TextureCatalog m_items;
  std::size_t m_chosen = 0;
  TexturePreview m_preview;
  std::unique_ptr<Ui::frmTerrain> m_ui;
};

}  // namespace landsmith
