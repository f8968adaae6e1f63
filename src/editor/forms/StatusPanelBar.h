// The nine panels at the foot of the main window, and the hint in what room they leave.
#pragma once

#include "editor/StatusText.h"

#include <QLabel>
#include <QStatusBar>

#include <string_view>
#include <vector>

namespace landsmith {

class StatusPanelBar {
public:
  /// Fills `bar` with the panels, named "sbLat", "sbLon", "sbLod5", "sbCell", "sbArea", "sbPoint", "sbZoom",
  /// "sbSimulator" and "sbExtra", and the hint, "sbHint".
  explicit StatusPanelBar(QStatusBar& bar);

  void Show(const StatusPanels& panels);
  /// A hint that is longer than its room ends in dots; its tip has the whole.
  void ShowHint(std::string_view hint);
  void ShowSimulator(const ProgramFolders& folders);

private:
  std::vector<QLabel*> m_panels;
  QLabel* m_hint = nullptr;
};

}  // namespace landsmith
