#include "editor/SelectKinds.h"

#include "vector/LineOperations.h"
#include "vector/LineSelection.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

constexpr std::uint8_t SelectedBit = 128;

template <class Records>
void MarkAll(Records& records, bool state) {
  for (auto& record : records)
    record.Selected = state;
}

template <class Records>
void InvertAll(Records& records) {
  for (auto& record : records)
    record.Selected = !record.Selected;
}

template <class Records>
void DeleteMarked(Records& records) {
  std::erase_if(records, [](const auto& record) { return record.Selected; });
}

template <class Records>
auto CountMarked(const Records& records) {
  return static_cast<std::int32_t>(
      std::count_if(records.begin(), records.end(), [](const auto& record) { return record.Selected; }));
}

bool IsStrictlyInside(const GeoBox& box, const GeoBox& outer) {
  return box.NLat < outer.NLat && box.SLat > outer.SLat && box.WLon > outer.WLon && box.ELon < outer.ELon;
}

template <class Records>
void MarkInside(Records& records, const GeoBox& box) {
  for (auto& record : records) {
    if (IsStrictlyInside(record.Box, box)) record.Selected = true;
  }
}

/// A polygon is selected as a whole or by its vertices, never both.
void ClearPoints(PolyRec& poly) {
  MarkAll(poly.Points, false);
}

void MarkPolys(std::vector<PolyRec>& polys, bool state) {
  for (PolyRec& poly : polys) {
    poly.Selected = state;
    ClearPoints(poly);
  }
}

void MarkPolysInside(std::vector<PolyRec>& polys, const GeoBox& box) {
  for (PolyRec& poly : polys) {
    if (!IsStrictlyInside(poly.Box, box)) continue;
    poly.Selected = true;
    ClearPoints(poly);
  }
}

void MarkCells(ClassGrid& grid, bool state) {
  if (!grid.IsAllocated()) return;
  for (std::uint8_t& cell : grid.Samples()) {
    if (cell == 0) continue;
    cell = static_cast<std::uint8_t>(state ? cell | SelectedBit : cell & ~SelectedBit);
  }
}

void MarkCellsInside(ClassGrid& grid, const ClassWindow& window, const GeoBox& box) {
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
      if (const std::uint8_t cell = grid.At(column, row); cell != 0)
        grid.Set(column, row, cell | SelectedBit);
}

std::int32_t CountCells(const ClassGrid& grid) {
  const auto& cells = grid.StoredSamples();
  return static_cast<std::int32_t>(
      std::count_if(cells.begin(), cells.end(), [](std::uint8_t cell) { return cell >= SelectedBit; }));
}

void DeleteCells(ClassGrid& grid, std::int32_t& count) {
  if (!grid.IsAllocated()) return;
  for (std::uint8_t& cell : grid.Samples()) {
    if (cell < SelectedBit) continue;
    cell = 0;
    --count;
  }
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
      return SelectAllLines(project, state, selection);
    case LayerKind::Polys:
      return MarkPolys(project.Polys, state);
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

void DeleteMarkedPolys(std::vector<PolyRec>& polys) {
  constexpr std::size_t leastPoints = 3;
  DeleteMarked(polys);
  for (PolyRec& poly : polys) {
    if (CountMarked(poly.Points) == 0) continue;
    DeleteMarked(poly.Points);
    SetPathBounds(poly);
  }
  std::erase_if(polys, [](const PolyRec& poly) { return poly.Points.size() < leastPoints; });
}

void MovePolys(std::vector<PolyRec>& polys, double dLon, double dLat,
               const std::vector<std::uint8_t>& drawn) {
  for (std::size_t i = 0; i < polys.size(); ++i) {
    PolyRec& poly = polys[i];
    if (i < drawn.size() && drawn[i] == 0) continue;
    bool moved = false;
    for (PolyPoint& point : poly.Points) {
      if (!poly.Selected && !point.Selected) continue;
      point.Lon += dLon;
      point.Lat += dLat;
      moved = true;
    }
    if (moved) SetPathBounds(poly);
  }
}

void MoveBox(GeoBox& box, double dLon, double dLat) {
  box.NLat += dLat;
  box.SLat += dLat;
  box.WLon += dLon;
  box.ELon += dLon;
}

void MoveBoxes(ProjectState& project, double dLon, double dLat) {
  for (ObjectRec& object : project.Objects) {
    if (!object.Selected) continue;
    object.Lat += dLat;
    object.Lon += dLon;
    MoveBox(object.Box, dLon, dLat);
  }
  for (ExcludeRec& exclude : project.Excludes) {
    if (exclude.Selected) MoveBox(exclude.Box, dLon, dLat);
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

void SelectEverything(ProjectState& project, const ViewState& view, bool state, ToolState& tool) {
  for (std::size_t i = 0; i < LayerKindCount; ++i) {
    const auto kind = static_cast<LayerKind>(i);
    if (kind == LayerKind::Maps || kind == LayerKind::Grid || !view.Shows(kind)) continue;
    if (tool.Mode == ModeId::Line && kind != LayerKind::Lines) continue;
    MarkKind(project, kind, state, tool.Selected);
  }
  RecountSelection(project, tool.Selected);
}

void InvertShownSelection(ProjectState& project, const ViewState& view, Selection& selection) {
  if (view.Shows(LayerKind::Lines)) InvertLineSelection(project, selection);
  if (view.Shows(LayerKind::Polys)) {
    for (PolyRec& poly : project.Polys) {
      if (poly.Selected || CountMarked(poly.Points) == 0) poly.Selected = !poly.Selected;
    }
  }
  if (view.Shows(LayerKind::Objects)) InvertAll(project.Objects);
  if (view.Shows(LayerKind::Photos)) InvertAll(project.Photos);
  if (view.Shows(LayerKind::Fills)) InvertAll(project.Fills);
  RecountSelection(project, selection);
}

void SelectInBox(ProjectState& project, const ViewState& view, const GeoBox& box, ToolState& tool) {
  if (view.Shows(LayerKind::Lines)) SelectLinesInBox(project, box, tool.Selected);
  if (tool.Mode != ModeId::Line) {
    if (view.Shows(LayerKind::Polys)) MarkPolysInside(project.Polys, box);
    if (view.Shows(LayerKind::Fills)) MarkInside(project.Fills, box);
    if (view.Shows(LayerKind::Excludes)) MarkInside(project.Excludes, box);
    if (view.Shows(LayerKind::Photos)) MarkInside(project.Photos, box);
    if (view.Shows(LayerKind::Lands)) MarkCellsInside(project.Lands, view.Classes, box);
    if (view.Shows(LayerKind::Waters)) MarkCellsInside(project.Waters, view.Classes, box);
    if (view.Shows(LayerKind::Meshes)) MarkInside(project.Meshes, box);
    if (view.Shows(LayerKind::Objects)) MarkInside(project.Objects, box);
  }
  RecountSelection(project, tool.Selected);
}

bool HitSelect(ProjectState& project, const ViewState& view, PixelOffset at, Selection& selection) {
  if (!view.Shows(LayerKind::Lines)) return false;
  const WorldPixel place = ToWorldPixel(view, at);
  return HitLinePoint(project, place, view.Scale, selection).has_value() ||
         HitLine(project, place, view.Scale, selection).has_value();
}

void DeleteSelectedItems(ProjectState& project, Selection& selection) {
  DeleteSelectedLines(project, selection);
  DeleteSelectedPoints(project, selection);
  DeleteMarkedPolys(project.Polys);
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

void MoveSelection(ProjectState& project, const ViewState& view, ModeId mode, double dx, double dy) {
  const double dLon = dx / view.Scale.PixelsPerDegLon, dLat = -dy / view.Scale.PixelsPerDegLat;
  const bool known = view.LinesDrawn.size() == project.Lines.size();
  MoveSelectedLines(project, dLon, dLat,
                    known ? std::span<const std::uint8_t>(view.LinesDrawn) : std::span<const std::uint8_t>());
  if (mode == ModeId::Line) return;
  MoveBoxes(project, dLon, dLat);
  MovePolys(project.Polys, dLon, dLat, view.PolysDrawn);
}

}  // namespace landsmith
