// Properties of the project: name, folders, class window, photo options, class map legend.
#pragma once

#include "editor/Display.h"
#include "editor/Session.h"

#include <QDialog>

#include <cstdint>
#include <memory>
#include <optional>

namespace landsmith {

namespace Ui {
class frmProjectP;
}
class ClassItemList;

/// OK opens the project for drawing. The changed mark of the project stays as it was.
class frmProjectP final : public QDialog {
  Q_OBJECT

public:
  frmProjectP(Session& session, Display& display, QWidget* parent);
  ~frmProjectP() override;

  void accept() override;

private:
  void ShowProject();
  void ShowCounters();
  bool CenterChanged() const;
  /// Nothing, after the message, when the layer is no byte.
  std::optional<std::int32_t> ReadPhotoOptions();
  bool CheckCenter();
  void StoreProject(std::int32_t photoOptions);
  void StoreFolders(ProjectState& project);
  void StoreCenter(ProjectState& project);

  Session& m_session;
  Display& m_display;
  std::unique_ptr<Ui::frmProjectP> m_ui;
  ClassItemList* m_items;
  QString m_shownLat, m_shownLon;
};

}  // namespace landsmith
