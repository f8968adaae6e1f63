#include "editor/Walker.h"

#include "editor/PointEdit.h"
#include "vector/PathOperations.h"

#include <algorithm>

namespace landsmith {

namespace {

std::size_t Turned(std::size_t at, std::size_t count, bool forward) {
  if (forward) return at + 1 == count ? 0 : at + 1;
  return at == 0 ? count - 1 : at - 1;
}

}  // namespace

std::optional<WalkStep> WalkStepOfKey(int code) {
  switch (code) {
    case 37:
      return WalkStep::PreviousPath;
    case 38:
      return WalkStep::NextPoint;
    case 39:
      return WalkStep::NextPath;
    case 40:
      return WalkStep::PreviousPoint;
    default:
      return {};
  }
}

bool VertexExists(const ProjectState& project, const VertexRef& vertex) {
  return WithPaths(project, vertex.Kind, [&](const auto& paths) {
    return vertex.Item < paths.size() && vertex.Point < paths[vertex.Item].Points.size();
  });
}

VertexRef Stepped(const ProjectState& project, const VertexRef& from, WalkStep step) {
  return WithPaths(project, from.Kind, [&](const auto& paths) {
    VertexRef to = from;
    if (step == WalkStep::NextPoint || step == WalkStep::PreviousPoint) {
      to.Point = Turned(from.Point, paths[from.Item].Points.size(), step == WalkStep::NextPoint);
      return to;
    }
    to.Point = 0;
    do
      to.Item = Turned(to.Item, paths.size(), step == WalkStep::NextPath);
    while (paths[to.Item].Points.empty());
    return to;
  });
}

void MarkVertex(ProjectState& project, const VertexRef& vertex, bool state, Selection& selection) {
  WithPaths(project, vertex.Kind, [&](auto& paths) {
    if (paths[vertex.Item].Points[vertex.Point].Selected == state) return;
    auto& path = paths.Edit(vertex.Item);
    path.Points[vertex.Point].Selected = state;
    // The mark of a whole path counts as one too and goes over to the vertex.
    if (!state)
      selection.Remove();
    else if (!path.Selected)
      selection.Add();
    path.Selected = false;
  });
}

bool CanSpareVertex(const ProjectState& project, const VertexRef& vertex) {
  return WithPaths(project, vertex.Kind, [&]<class Path>(const RecordList<Path>& paths) {
    return paths[vertex.Item].Points.size() > PathTraits<Path>::LeastPoints;
  });
}

VertexRef DeleteVertex(ProjectState& project, const VertexRef& vertex) {
  return WithPaths(project, vertex.Kind, [&](auto& paths) {
    DeletePathPoint(paths, vertex.Item, vertex.Point);
    VertexRef next = vertex;
    next.Point = std::min(vertex.Point, paths[vertex.Item].Points.size() - 1);
    return next;
  });
}

std::optional<VertexRef> VertexOf(const PopupTarget& target) {
  if (target.Kind == "PtInLine") return VertexRef{PathKind::Line, target.Item, target.Point};
  if (target.Kind == "PtInPoly") return VertexRef{PathKind::Poly, target.Item, target.Point};
  return {};
}

PopupTarget TargetOf(const ProjectState& project, const VertexRef& vertex) {
  PopupTarget target;
  target.Kind = vertex.Kind == PathKind::Line ? "PtInLine" : "PtInPoly";
  target.Item = vertex.Item;
  target.Point = vertex.Point;
  target.Title = PointTitle(project, vertex);
  return target;
}

}  // namespace landsmith
