// Undo and redo.
#include "editor/Editor.h"
#include "editor/MapView.h"

namespace landsmith {

/// The state of the project has become another one under the mode's feet.
void Editor::ShowRestored() {
  LoadMaps(ReloadMapView);
  m_display.DisplayAll();
  ShowStatus();
  ShowToolState();
  m_host.RefreshUi();
}

void Editor::Undo() {
  if (!CanUndo()) return;
  // What is half drawn belongs to the change that goes. A first click alone is no change yet, and the one
  // before it stays.
  if (m_mode->Abandon()) {
    m_display.RedrawTop();
    ShowToolState();
    return m_host.RefreshUi();
  }
  if (auto before = m_session.undo.Undo(SnapshotOf(m_session)))
    RestoreSnapshot(m_session, std::move(*before));
  ShowRestored();
}

void Editor::Redo() {
  if (!CanRedo()) return;
  m_mode->Abandon();
  if (auto after = m_session.undo.Redo()) RestoreSnapshot(m_session, std::move(*after));
  ShowRestored();
}

}  // namespace landsmith
