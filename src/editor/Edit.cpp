#include "editor/Edit.h"

#include <algorithm>
#include <utility>

namespace landsmith {

ProjectState& Edit::Project() {
  if (!m_begun) Begin();
  m_session.project.Dirty = true;  // each time: a save may have come between
  return m_session.project;
}

void Edit::Begin() {
  m_begun = true;
  m_wasDirty = m_session.project.Dirty;
  if (m_session.editsOpen++ == 0) m_before = SnapshotOf(m_session);
}

Edit::~Edit() {
  if (!m_begun) return;
  --m_session.editsOpen;
  if (m_before) KeepUndoPoint();
  if (m_layers >= 0) m_display.RebuildDisplay(m_layers);
}

/// An edit that changed nothing in the end leaves nothing to undo and nothing to save.
void Edit::KeepUndoPoint() {
  ProjectState& present = m_session.project;
  const bool dirty = std::exchange(present.Dirty, m_before->Project.Dirty);
  const bool changed = present != m_before->Project;
  present.Dirty = changed ? dirty : m_wasDirty;
  if (!changed || m_undo == UndoPoint::Share || !m_session.settings.BackUpON) return;
  m_session.undo.Take(std::move(*m_before),
                      static_cast<std::size_t>(std::max(m_session.settings.UndoDepth, 1)));
}

UndoSnapshot SnapshotOf(const Session& session) {
  return {session.project, {session.view.LatDispCenter, session.view.LonDispCenter}, session.tool.Selected};
}

void RestoreSnapshot(Session& session, UndoSnapshot snapshot) {
  ProjectState& present = session.project;
  ProjectState& restored = snapshot.Project;
  restored.ProjectFile = present.ProjectFile;
  restored.ProjectOpen = present.ProjectOpen;
  restored.Zoom = present.Zoom;
  restored.Dirty = true;
  present = std::move(restored);
  session.tool.Selected = snapshot.Selected;
  session.view.Classes = ClassWindowOf(present.LatLandCenter, present.LonLandCenter);
  session.view.LatDispCenter = snapshot.DisplayCenter.lat;
  session.view.LonDispCenter = snapshot.DisplayCenter.lon;
  PanDisplay(session.view, 0, 0);
}

}  // namespace landsmith
