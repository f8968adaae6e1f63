// The nine panels at the foot of the main window, and the hint in what room they leave.
#pragma once

#include "editor/StatusText.h"

#include <QLabel>
#include <QStatusBar>

#include <vector>

namespace landsmith {

class StatusPanelBar {
public:
  /// Fills `bar` with the panels, named "sbLat", "sbLon", "sbLod5", "sbCell", "sbArea", "sbPoint", "sbZoom",
  /// "sbSimulator" and "sbExtra".
  explicit StatusPanelBar(QStatusBar& bar);

  void Show(const StatusPanels& panels);
  void ShowSimulator(const ProgramFolders& folders);

private:
  std::vector<QLabel*> m_panels;
};

}  // namespace landsmith
