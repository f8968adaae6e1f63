// Puts a texture together from one bitmap for each season, and adds it to a catalogue on demand.
#pragma once

#include "editor/Session.h"
#include "forms/TextureKind.h"
#include "forms/TexturePreview.h"

#include <QDialog>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace landsmith {

namespace Ui {
class frmNamesT;
}

class frmNamesT final : public QDialog {
  Q_OBJECT

public:
  frmNamesT(Session& session, TextureKind kind, std::int32_t color, QWidget* parent);
  ~frmNamesT() override;

  /// The texture text as the boxes stand.
  std::string TextureName() const;
  std::int32_t Color() const;

private:
  void ConnectControls();
  void ListFolder(const std::filesystem::path& folder);
  void TakeFileName();
  void ShowPicture();
  void AddToCatalog();
  void ShowTextureName();

  Session& m_session;
  TextureKind m_kind;
  TexturePreview m_preview;
  std::filesystem::path m_folder;
  std::unique_ptr<Ui::frmNamesT> m_ui;
};

}  // namespace landsmith
