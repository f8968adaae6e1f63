// The compilation dialog: what has data can be ticked, the findings of a check of the selected items stand
// below, Compile runs the ticked steps, and the files written and their text stay to be read until the dialog
// is closed.
#pragma once

#include "compile/Findings.h"
#include "compile/StepTable.h"
#include "editor/Display.h"
#include "editor/Session.h"
#include "platform/Progress.h"

#include <QDialog>
#include <QElapsedTimer>

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace landsmith {

namespace Ui {
class frmBGL;
}

class frmBGL final : public QDialog, private Progress {
  Q_OBJECT

public:
  frmBGL(Session& session, Display& display, QWidget* parent);
  /// The same with a table of steps of one's own, which must outlive the dialog.
  frmBGL(Session& session, Display& display, const StepTable& steps, QWidget* parent);
  ~frmBGL() override;

  /// While a run goes on, asks it to stop; else closes.
  void reject() override;

signals:
  /// The user wants to see where an item is wrong; the dialog stays.
  void GoTo(const landsmith::Finding& finding);

private:
  void EnableSteps();
  void EnableCompile();
  std::vector<std::string_view> WantedSteps() const;
  void Compile();
  void RunWanted(const std::vector<std::string_view>& wanted, CompileReport& report);
  void StartSimulator();
  void SetRunning(bool running);
  void ShowReport(const CompileReport& report);
  void ShowSource(const std::filesystem::path& file);

  bool Step(double fraction, std::string_view phrase) override;
  bool Wait() override;

  Session& m_session;
  Display& m_display;
  const StepTable& m_steps;
  std::unique_ptr<Ui::frmBGL> m_ui;
  bool m_running = false;
  bool m_stop = false;
  QElapsedTimer m_sinceEvents;
  std::vector<std::filesystem::path> m_written;
};

}  // namespace landsmith
