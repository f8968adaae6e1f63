#include "editor/HitSelect.h"

#include "editor/Picking.h"
#include "vector/PathSelection.h"

namespace landsmith {

namespace {

template <class Record>
void Mark(RecordList<Record>& records, std::size_t item, Selection& selection) {
  if (records[item].Selected) return;
  records.Edit(item).Selected = true;
  selection.Add();
}

template <class Path>
bool HitSelectPoint(RecordList<Path>& paths, const PathIndex<Path>& index, WorldPixel at,
                    const ViewScale& scale, Selection& selection) {
  return HitPoint(paths, index.PiecesMeeting(CursorBox(at, scale)), at, scale, selection).has_value();
}

template <class Path>
bool HitSelectPath(RecordList<Path>& paths, const PathIndex<Path>& index, WorldPixel at,
                   const ViewScale& scale, Selection& selection) {
  return HitPath(paths, index.PiecesMeeting(CursorBox(at, scale)), at, scale, selection).has_value();
}

bool HitSelectMap(ProjectState& project, const ViewState& view, WorldPixel at, Selection& selection) {
  if (!view.Shows(LayerKind::Maps)) return false;
  const auto map = FindMapAt(project.Maps, at, view.Scale);
  if (!map) return false;
  Mark(project.Maps, *map, selection);
  selection.MapSelected = true;
  return true;
}

}  // namespace

bool HitSelectObject(ProjectState& project, const ViewState& view, PixelOffset at, Selection& selection) {
  if (!view.Shows(LayerKind::Objects)) return false;
  const auto object = FindObjectAt(project.Objects, ToWorldPixel(view, at), view.Scale);
  if (object) Mark(project.Objects, *object, selection);
  return object.has_value();
}

bool HitSelectExcludes(ProjectState& project, const ViewState& view, PixelOffset at, Selection& selection) {
  if (!view.Shows(LayerKind::Excludes)) return false;
  const WorldPixel place = ToWorldPixel(view, at);
  bool hit = false;
  for (std::size_t i = 0; i < project.Excludes.size(); ++i) {
    if (!IsOnBorder(project.Excludes[i].Box, place, view.Scale)) continue;
    Mark(project.Excludes, i, selection);
    if (project.Excludes[i].Corner != 0) project.Excludes.Edit(i).Corner = 0;
    hit = true;
  }
  return hit;
}

bool HitSelect(ProjectState& project, const GeometryIndex& index, const ViewState& view, PixelOffset at,
               Selection& selection) {
  const WorldPixel place = ToWorldPixel(view, at);
  const bool lines = view.Shows(LayerKind::Lines), polys = view.Shows(LayerKind::Polys);
  return (lines && HitSelectPoint(project.Lines, index.Lines, place, view.Scale, selection)) ||
         (polys && HitSelectPoint(project.Polys, index.Polys, place, view.Scale, selection)) ||
         HitSelectObject(project, view, at, selection) ||
         (lines && HitSelectPath(project.Lines, index.Lines, place, view.Scale, selection)) ||
         (polys && HitSelectPath(project.Polys, index.Polys, place, view.Scale, selection)) ||
         HitSelectMap(project, view, place, selection) || HitSelectExcludes(project, view, at, selection);
}

}  // namespace landsmith
