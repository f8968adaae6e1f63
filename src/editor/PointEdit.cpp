#include "editor/PointEdit.h"

#include "vector/PathOperations.h"

namespace landsmith {

std::string PathTitle(const ProjectState& project, PathKind kind, std::size_t item) {
  const std::string number = (kind == PathKind::Line ? "LINE # " : "POLY # ") + std::to_string(item + 1);
  return WithPaths(project, kind, [&](const auto& paths) {
    return paths[item].Name.empty() ? number : paths[item].Name + "  " + number;
  });
}

std::string PointTitle(const ProjectState& project, const VertexRef& vertex) {
  return "POINT # " + std::to_string(vertex.Point + 1) + " from " +
         PathTitle(project, vertex.Kind, vertex.Item);
}

std::optional<PointValues> ReadPoint(const ProjectState& project, const VertexRef& vertex) {
  return WithPaths(project, vertex.Kind,
                   [&]<class Path>(const RecordList<Path>& paths) -> std::optional<PointValues> {
                     if (vertex.Item >= paths.size()) return {};
                     const Path& path = paths[vertex.Item];
                     if (vertex.Point >= path.Points.size()) return {};
                     const auto& point = path.Points[vertex.Point];
                     return PointValues{{point.Lat, point.Lon}, point.*PathTraits<Path>::Third};
                   });
}

void StorePoint(ProjectState& project, const VertexRef& vertex, const PointValues& values) {
  const std::optional<PointValues> present = ReadPoint(project, vertex);
  if (!present || *present == values) return;
  WithPaths(project, vertex.Kind, [&]<class Path>(RecordList<Path>& paths) {
    Path& path = paths.Edit(vertex.Item);
    auto& point = path.Points[vertex.Point];
    point.Lat = values.At.lat;
    point.Lon = values.At.lon;
    point.*PathTraits<Path>::Third = values.Third;
    SetPathBounds(path);
    // A slope laid anew would take a typed altitude away again.
    if (values.Third != present->Third)
      PointsChanged(path);
    else
      PointsMoved(path);
  });
}

WatchedPoint::WatchedPoint(const ProjectState& project, const VertexRef& vertex) : m_vertex(vertex) {
  Update(project);
}

WatchedPoint::Place WatchedPoint::PlaceOf(const ProjectState& project, const VertexRef& vertex) {
  return WithPaths(project, vertex.Kind, [&](const auto& paths) {
    return Place{paths.size(), paths[vertex.Item].Points.size(), paths[vertex.Item].Name};
  });
}

bool WatchedPoint::IsThere(const ProjectState& project) const {
  const std::optional<PointValues> present = ReadPoint(project, m_vertex);
  if (!present) return false;
  const Place place = PlaceOf(project, m_vertex);
  const bool sameNumbers = place.Paths == m_place.Paths && place.Points == m_place.Points;
  return sameNumbers ||
         (*present == m_values && place.Points == m_place.Points && place.Name == m_place.Name);
}

bool WatchedPoint::Update(const ProjectState& project) {
  const PointValues before = m_values;
  m_values = ReadPoint(project, m_vertex).value_or(m_values);
  m_place = PlaceOf(project, m_vertex);
  return m_values != before;
}

}  // namespace landsmith
