// Asks how the vertices of lines or polygons are to be checked.
#pragma once

#include "editor/Session.h"
#include "editor/TidyItems.h"

#include <QDialog>

#include <memory>

namespace landsmith {

namespace Ui {
class frmLPCheck;
}

/// The distance is kept in the settings. The keys E and C, pressed in the button cmdAuto, set the two marks
/// of smoothing.
class frmLPCheck final : public QDialog {
  Q_OBJECT

public:
  frmLPCheck(Session& session, QWidget* parent);
  ~frmLPCheck() override;

  /// What was chosen when the dialog closed; mode Cancel when it was closed without a choice.
  const CheckRequest& Request() const { return m_request; }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void RunManually();
  void RunAutomatically();
  void ShowMode();

  Session& m_session;
  std::unique_ptr<Ui::frmLPCheck> m_ui;
  CheckRequest m_request;
};

}  // namespace landsmith
