#include "editor/MovingItems.h"

#include "editor/MapView.h"
#include "vector/PathOperations.h"

namespace landsmith {

namespace {

/// `drawn` has a byte for each record; where it does not fit the list, all count as drawn.
std::vector<std::uint32_t> TakeMarked(const std::vector<std::uint8_t>& marked,
                                      const std::vector<std::uint8_t>& drawn,
                                      std::vector<std::uint8_t>& flags) {
  std::vector<std::uint32_t> items;
  const bool known = drawn.size() == marked.size();
  for (std::uint32_t i = 0; i < marked.size(); ++i) {
    if (marked[i] == 0 || (known && drawn[i] == 0)) continue;
    flags[i] = 1;
    items.push_back(i);
  }
  return items;
}

template <class Records>
std::vector<std::uint32_t> TakeSelected(const Records& records) {
  std::vector<std::uint32_t> items;
  for (std::uint32_t i = 0; i < records.size(); ++i)
    if (records[i].Selected) items.push_back(i);
  return items;
}

void MoveBox(GeoBox& box, double dLon, double dLat) {
  box.NLat += dLat;
  box.SLat += dLat;
  box.WLon += dLon;
  box.ELon += dLon;
}

void MoveLevel(MapLevel& level, double dLon, double dLat) {
  level.NLat += dLat;
  level.SLat += dLat;
  level.WLon += dLon;
  level.ELon += dLon;
}

/// The bitmap that is seen moves; those of other views keep the place that they were calibrated to.
void MoveMap(MapRec& map, std::string_view mapView, double dLon, double dLat) {
  MoveLevel(map.Level[0], dLon, dLat);
  MoveLevel(map.Level[LevelOfView(mapView)], dLon, dLat);
}

}  // namespace

MovingItems CollectMoving(const ProjectState& project, const GeometryIndex& index, const ViewState& view,
                          ModeId mode) {
  MovingItems moving;
  moving.LineFlags.assign(project.Lines.size(), 0);
  moving.PolyFlags.assign(project.Polys.size(), 0);
  if (mode != ModeId::Poly)
    moving.Lines = TakeMarked(index.Lines.Marked(), view.LinesDrawn, moving.LineFlags);
  if (mode != ModeId::Line)
    moving.Polys = TakeMarked(index.Polys.Marked(), view.PolysDrawn, moving.PolyFlags);
  if (mode == ModeId::Line || mode == ModeId::Poly) return moving;
  moving.Objects = TakeSelected(project.Objects);
  moving.Maps = TakeSelected(project.Maps);
  moving.Excludes = TakeSelected(project.Excludes);
  return moving;
}

void MoveSelection(ProjectState& project, const MovingItems& moving, const ViewState& view, double dx,
                   double dy) {
  const double dLon = dx / view.Scale.PixelsPerDegLon, dLat = -dy / view.Scale.PixelsPerDegLat;
  for (const std::uint32_t i : moving.Objects) {
    ObjectRec& object = project.Objects.Edit(i);
    object.Lat += dLat;
    object.Lon += dLon;
    MoveBox(object.Box, dLon, dLat);
  }
  for (const std::uint32_t i : moving.Maps)
    MoveMap(project.Maps.Edit(i), view.MapView, dLon, dLat);
  for (const std::uint32_t i : moving.Excludes)
    MoveBox(project.Excludes.Edit(i).Box, dLon, dLat);
  for (const std::uint32_t i : moving.Lines)
    MovePath(project.Lines.Edit(i), dLon, dLat);
  for (const std::uint32_t i : moving.Polys)
    MovePath(project.Polys.Edit(i), dLon, dLat);
}

}  // namespace landsmith
