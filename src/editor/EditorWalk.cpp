// Going from item to item: the walk along vertices, and the search.
#include "editor/Editor.h"
#include "editor/SelectKinds.h"
#include "editor/Walker.h"

namespace landsmith {

namespace {

constexpr int DeleteKey = 46, EscapeKey = 27, SpaceKey = 32;

}  // namespace

void Editor::StartWalk(const PopupTarget& point, WalkView view) {
  const std::optional<VertexRef> vertex = VertexOf(point);
  if (!HasProject() || !vertex || !VertexExists(m_session.project, *vertex)) return;
  EndGesture();
  Guard([&] {
    ClearSelection(m_session.project, m_session.tool);
    WalkTo(*vertex, view);
  });
}

void Editor::Walk(const PopupTarget& from, WalkStep step) {
  StartWalk(from, WalkView::Keep);
  if (m_session.tool.Walk) Guard([&] { StepWalk(step); });
}

void Editor::StepWalk(WalkStep step) {
  const VertexRef from = *m_session.tool.Walk;
  MarkVertex(m_session.project, from, false, m_session.tool.Selected);
  WalkTo(Stepped(m_session.project, from, step), WalkView::Centre);
}

void Editor::WalkTo(const VertexRef& vertex, WalkView view) {
  m_session.tool.Walk = vertex;
  MarkVertex(m_session.project, vertex, true, m_session.tool.Selected);
  if (view == WalkView::Centre)
    GoTo(ReadPoint(m_session.project, vertex)->At);
  else
    m_display.DisplayAll();
  m_host.FollowPoint(TargetOf(m_session.project, vertex));
  m_host.RefreshUi();
}

bool Editor::WalkKey(const KeyInput& in) {
  std::optional<VertexRef>& walk = m_session.tool.Walk;
  if (walk && !VertexExists(m_session.project, *walk)) walk.reset();
  if (!walk) return false;
  if (const auto step = WalkStepOfKey(in.code)) {
    Guard([&] { StepWalk(*step); });
    return true;
  }
  if (in.code == DeleteKey) DeleteWalked();
  if (in.code == EscapeKey) walk.reset();
  return in.code == DeleteKey || in.code == SpaceKey;
}

/// The vertex goes, and then whatever is selected besides. A path that has none to spare ends the walk.
void Editor::DeleteWalked() {
  ProjectState& project = m_session.project;
  ToolState& tool = m_session.tool;
  const VertexRef vertex = *tool.Walk;
  if (!CanSpareVertex(project, vertex)) {
    MarkVertex(project, vertex, false, tool.Selected);
    tool.Walk.reset();
    m_display.DisplayAll();
  } else {
    Guard([&] {
      Edit edit(m_session, m_display);
      MarkVertex(edit.Project(), vertex, false, tool.Selected);
      tool.Walk = DeleteVertex(edit.Project(), vertex);
    });
  }
  if (tool.Selected.SelectedCount >= 1) DeleteSelected();
  if (tool.Walk && VertexExists(project, *tool.Walk)) Guard([&] { WalkTo(*tool.Walk, WalkView::Centre); });
  m_host.RefreshUi();
}

bool Editor::ChangePoint(const VertexRef& vertex, const PointValues& values) {
  EndGesture();
  const bool changed = Guard([&] {
    Edit edit(m_session, m_display);
    StorePoint(edit.Project(), vertex, values);
  });
  m_host.RefreshUi();
  return changed;
}

void Editor::Find(const FindRequest& request, FindScope scope, std::size_t& lastHit) {
  if (!HasProject()) return;
  EndGesture();
  m_session.tool.Walk.reset();
  Guard([&] {
    ClearSelection(m_session.project, m_session.tool);
    const FindOutcome outcome =
        FindItems(m_session.project, request, scope, lastHit, m_session.tool.Selected);
    // What was found is to be seen.
    for (const LayerKind kind : outcome.In)
      m_session.view.ShowFlag[static_cast<std::size_t>(kind)] = true;
    if (outcome.Found) {
      m_session.dialogs.Beep();
      GoTo(outcome.Target);
    } else {
      m_display.DisplayAll();
    }
    m_host.RefreshUi();
    if (!outcome.Refusal.empty()) m_session.dialogs.Message(MessageKind::Info, outcome.Refusal);
  });
}

}  // namespace landsmith
