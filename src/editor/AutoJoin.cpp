#include "editor/AutoJoin.h"

#include "editor/SelectKinds.h"
#include "vector/LineJoin.h"
#include "vector/PolyJoin.h"

namespace landsmith {

namespace {

bool Join(ProjectState& project, const Session& session, LayerKind kind, std::size_t item) {
  if (kind == LayerKind::Lines) return TryAutoJoin(project, item, session.settings, session.view.Scale);
  return kind == LayerKind::Polys && TryAutoJoinPoly(project, item, session.settings, session.view.Scale);
}

}  // namespace

void AutoJoinFigure(Session& session, Edit& edit, LayerKind kind, std::size_t item) {
  if (session.settings.AutoLineJoin != 1) return;
  const std::size_t figures =
      kind == LayerKind::Lines ? session.project.Lines.size() : session.project.Polys.size();
  if (figures < 2 || !Join(edit.Project(), session, kind, item)) return;
  RecountSelection(session.project, session.tool.Selected);
  session.dialogs.Beep();
}

}  // namespace landsmith
