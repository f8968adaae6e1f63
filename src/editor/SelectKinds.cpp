#include "editor/SelectKinds.h"

#include "vector/PathOperations.h"
#include "vector/PathSelection.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

constexpr std::uint8_t SelectedBit = 128;

template <class Record>
void MarkAll(RecordList<Record>& records, bool state) {
  for (std::size_t i = 0; i < records.size(); ++i)
    if (records[i].Selected != state) records.Edit(i).Selected = state;
}

template <class Record>
void InvertAll(RecordList<Record>& records) {
  for (std::size_t i = 0; i < records.size(); ++i)
    records.Edit(i).Selected = !records[i].Selected;
}

template <class Record>
void DeleteMarked(RecordList<Record>& records) {
  records.EraseIf([](const Record& record) { return record.Selected; });
}

template <class Records>
std::int32_t CountMarked(const Records& records) {
  return static_cast<std::int32_t>(
      std::count_if(records.begin(), records.end(), [](const auto& record) { return record.Selected; }));
}

template <class Records>
bool AreAllMarked(const Records& records) {
  return !records.empty() &&
         std::all_of(records.begin(), records.end(), [](const auto& record) { return record.Selected; });
}

template <class Record>
void MarkInside(RecordList<Record>& records, const GeoBox& box, Selection& selection) {
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i].Selected || !IsStrictlyInside(records[i].Box, box)) continue;
    records.Edit(i).Selected = true;
    selection.Add();
  }
}

bool IsSelectedCell(std::uint8_t cell) {
  return cell >= SelectedBit;
}

void MarkCells(ClassGrid& grid, bool state) {
  grid.ChangeSet([state](std::uint8_t cell) {
    return static_cast<std::uint8_t>(state ? cell | SelectedBit : cell & ~SelectedBit);
  });
}

void MarkCellsInside(ClassGrid& grid, const ClassWindow& window, const GeoBox& box, Selection& selection) {
  if (!grid.IsAllocated()) return;
  const auto inside = [](double first, double last, double start, double step) {
    const auto held = [](double cell) { return static_cast<std::int32_t>(std::clamp(cell, -1.0, 1282.0)); };
    return std::pair{std::max(held(std::floor((first - start) / step)) + 1, 0),
                     std::min(held(std::floor((last - start) / step)) - 1, ClassGridSide - 1)};
  };
  const auto [left, right] = inside(box.WLon, box.ELon, window.LandWest, AreaWidth);
  const auto [top, bottom] = inside(-box.NLat, -box.SLat, -window.LandNorth, AreaHeight);
  for (std::int32_t row = top; row <= bottom; ++row)
    for (std::int32_t column = left; column <= right; ++column)
      if (const std::uint8_t cell = grid.At(column, row); cell != 0 && !IsSelectedCell(cell)) {
        grid.Set(column, row, cell | SelectedBit);
        selection.Add();
      }
}

std::int32_t CountCells(const ClassGrid& grid) {
  return grid.CountSet(IsSelectedCell);
}

bool AreCellsMarked(const ClassGrid& grid, std::int32_t count) {
  return count > 0 && CountCells(grid) == count;
}

void DeleteCells(ClassGrid& grid, std::int32_t& count) {
  count -= CountCells(grid);
  grid.ChangeSet([](std::uint8_t cell) { return IsSelectedCell(cell) ? std::uint8_t{0} : cell; });
}

template <class Paths>
std::int32_t CountPaths(const Paths& paths) {
  std::int32_t count = CountMarked(paths);
  for (const auto& path : paths)
    count += CountMarked(path.Points);
  return count;
}

void MarkKind(ProjectState& project, LayerKind kind, bool state, Selection& selection) {
  switch (kind) {
    case LayerKind::Maps:
      return MarkAll(project.Maps, state);
    case LayerKind::Meshes:
      return MarkAll(project.Meshes, state);
    case LayerKind::Lands:
      return MarkCells(project.Lands, state);
    case LayerKind::Waters:
      return MarkCells(project.Waters, state);
    case LayerKind::Photos:
      return MarkAll(project.Photos, state);
    case LayerKind::Lines:
      return SelectAllPaths(project.Lines, state, selection);
    case LayerKind::Polys:
      return SelectAllPaths(project.Polys, state, selection);
    case LayerKind::Fills:
      return MarkAll(project.Fills, state);
    case LayerKind::Objects:
      return MarkAll(project.Objects, state);
    case LayerKind::Excludes:
      return MarkAll(project.Excludes, state);
    case LayerKind::Grid:
      return;
  }
}

}  // namespace

void RecountSelection(const ProjectState& project, Selection& selection) {
  selection.SelectedCount = CountMarked(project.Maps) + CountPaths(project.Lines) +
                            CountPaths(project.Polys) + CountMarked(project.Fills) +
                            CountMarked(project.Excludes) + CountMarked(project.Photos) +
                            CountMarked(project.Meshes) + CountMarked(project.Objects) +
                            CountCells(project.Lands) + CountCells(project.Waters);
  selection.SelectionActive = selection.SelectedCount > 0;
  selection.MapSelected = CountMarked(project.Maps) > 0;
}

void ClearSelection(ProjectState& project, ToolState& tool) {
  if (tool.Selected.SelectionActive) ClearAllSelected(project);
  tool.Selected = Selection{};
  tool.SelectAllOn = false;
}

void SelectAllOfKind(ProjectState& project, const ViewState& view, LayerKind kind, bool state,
                     Selection& selection) {
  if (kind == LayerKind::Grid || !view.Shows(kind)) return;
  MarkKind(project, kind, state, selection);
  RecountSelection(project, selection);
}

bool IsKindSelected(const ProjectState& project, LayerKind kind) {
  switch (kind) {
    case LayerKind::Maps:
      return AreAllMarked(project.Maps);
    case LayerKind::Meshes:
      return AreAllMarked(project.Meshes);
    case LayerKind::Lands:
      return AreCellsMarked(project.Lands, project.NoOfLands);
    case LayerKind::Waters:
      return AreCellsMarked(project.Waters, project.NoOfWaters);
    case LayerKind::Photos:
      return AreAllMarked(project.Photos);
    case LayerKind::Lines:
      return AreAllMarked(project.Lines);
    case LayerKind::Polys:
      return AreAllMarked(project.Polys);
    case LayerKind::Fills:
      return AreAllMarked(project.Fills);
    case LayerKind::Objects:
      return AreAllMarked(project.Objects);
    case LayerKind::Excludes:
      return AreAllMarked(project.Excludes);
    case LayerKind::Grid:
      return false;
  }
  return false;
}

void SelectEverything(ProjectState& project, const ViewState& view, bool state, ToolState& tool) {
  for (std::size_t i = 0; i < LayerKindCount; ++i) {
    const auto kind = static_cast<LayerKind>(i);
    if (kind == LayerKind::Maps || kind == LayerKind::Grid || !view.Shows(kind)) continue;
    MarkKind(project, kind, state, tool.Selected);
  }
  RecountSelection(project, tool.Selected);
}

void InvertShownSelection(ProjectState& project, const ViewState& view, Selection& selection) {
  if (view.Shows(LayerKind::Lines)) InvertPathSelection(project.Lines, selection);
  if (view.Shows(LayerKind::Polys)) InvertPathSelection(project.Polys, selection);
  if (view.Shows(LayerKind::Objects)) InvertAll(project.Objects);
  if (view.Shows(LayerKind::Photos)) InvertAll(project.Photos);
  if (view.Shows(LayerKind::Fills)) InvertAll(project.Fills);
  RecountSelection(project, selection);
}

void SelectInBox(ProjectState& project, const GeometryIndex& index, const ViewState& view, const GeoBox& box,
                 ToolState& tool) {
  Selection& selection = tool.Selected;
  const auto takes = [&](LayerKind kind, ModeId own) {
    const bool oneKind =
        tool.Mode == ModeId::Line || tool.Mode == ModeId::Poly || tool.Mode == ModeId::Object;
    return view.Shows(kind) && (!oneKind || tool.Mode == own);
  };
  constexpr ModeId any = ModeId::Pointer;
  if (takes(LayerKind::Maps, any)) {
    for (std::size_t i = 0; i < project.Maps.size(); ++i) {
      const MapLevel& shown = project.Maps[i].Level[0];
      if (project.Maps[i].Selected ||
          !IsStrictlyInside({shown.NLat, shown.SLat, shown.WLon, shown.ELon}, box))
        continue;
      project.Maps.Edit(i).Selected = true;
      selection.Add();
      selection.MapSelected = true;
    }
  }
  if (takes(LayerKind::Lines, ModeId::Line))
    SelectPathsInBox(project.Lines, index.Lines.Meeting(box), box, selection);
  if (takes(LayerKind::Polys, ModeId::Poly))
    SelectPathsInBox(project.Polys, index.Polys.Meeting(box), box, selection);
  if (takes(LayerKind::Fills, any)) MarkInside(project.Fills, box, selection);
  if (takes(LayerKind::Excludes, any)) MarkInside(project.Excludes, box, selection);
  if (takes(LayerKind::Photos, any)) MarkInside(project.Photos, box, selection);
  if (takes(LayerKind::Lands, any)) MarkCellsInside(project.Lands, view.Classes, box, selection);
  if (takes(LayerKind::Waters, any)) MarkCellsInside(project.Waters, view.Classes, box, selection);
  if (takes(LayerKind::Meshes, any)) MarkInside(project.Meshes, box, selection);
  if (takes(LayerKind::Objects, ModeId::Object)) MarkInside(project.Objects, box, selection);
}

void DeleteSelectedItems(ProjectState& project, Selection& selection) {
  DeleteSelectedPaths(project.Lines, selection);
  DeleteSelectedPathPoints(project.Lines, selection);
  DeleteSelectedPaths(project.Polys, selection);
  DeleteSelectedPathPoints(project.Polys, selection);
  DeleteMarked(project.Maps);
  DeleteMarked(project.Objects);
  DeleteMarked(project.Excludes);
  DeleteMarked(project.Meshes);
  DeleteMarked(project.Photos);
  DeleteMarked(project.Fills);
  DeleteCells(project.Lands, project.NoOfLands);
  DeleteCells(project.Waters, project.NoOfWaters);
  selection = Selection{};
}

}  // namespace landsmith
