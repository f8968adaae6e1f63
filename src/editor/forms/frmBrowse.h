// Chooses a folder: drives, a tree of folders, and a box for a typed path.
#pragma once

#include <QDialog>

#include <filesystem>
#include <memory>
#include <optional>

class QFileSystemModel;

namespace landsmith {

namespace Ui {
class frmBrowse;
}

class frmBrowse final : public QDialog {
  Q_OBJECT

public:
  frmBrowse(const std::filesystem::path& start, QWidget* parent);
  ~frmBrowse() override;

  /// Asks; nothing after Cancel. A `start` that does not exist begins in the nearest folder above it that
  /// does, an empty one in the home folder.
  static std::optional<std::filesystem::path> ChooseFolder(QWidget* parent,
                                                           const std::filesystem::path& start);

  /// What OK returns.
  std::filesystem::path Folder() const;

private:
  void GoTo(const QString& folder);
  void MakeFolder();
  void TakeTypedText();

  std::unique_ptr<Ui::frmBrowse> m_ui;
  QFileSystemModel* m_model;
};

}  // namespace landsmith
