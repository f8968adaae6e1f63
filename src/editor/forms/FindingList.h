// The check before compiling as a list to go through: it fills while the window goes on living, and leads to
// each item.
#pragma once

#include "compile/Findings.h"
#include "core/Settings.h"

#include <QObject>
#include <QTimer>

#include <cstddef>
#include <vector>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace landsmith {

class FindingList final : public QObject {
  Q_OBJECT

public:
  struct Controls {
    QLabel* summary;
    QTreeWidget* list;  ///< hidden as long as it is empty
    QPushButton* goTo;
  };
  /// Small projects are checked at once, larger ones piece by piece. Project and settings must not change
  /// while the list lives.
  FindingList(const ProjectState& project, const AppSettings& settings, const Controls& controls,
              QObject* parent);

signals:
  /// The user wants to see where the item is wrong.
  void GoTo(const landsmith::Finding& finding);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void CheckForAWhile();
  void ShowNewFindings();
  void ShowSummary();
  void GoToCurrent();

  const ProjectState& m_project;
  Controls m_controls;
  ItemCheck m_check;
  std::vector<Finding> m_findings;
  std::size_t m_shown = 0;
  bool m_done = false;
  QTimer m_idle;
};

}  // namespace landsmith
