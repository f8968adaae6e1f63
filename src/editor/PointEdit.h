// One vertex of a line or polygon as something to read and to store.
#pragma once

#include "core/Project.h"
#include "editor/VertexRef.h"

#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace landsmith {

template <class Path>
inline constexpr PathKind KindOfPath = std::is_same_v<Path, LineRec> ? PathKind::Line : PathKind::Poly;

/// Calls `use` with the lines or the polygons of a project, which may be constant.
template <class Project, class Use>
decltype(auto) WithPaths(Project& project, PathKind kind, Use&& use) {
  return kind == PathKind::Line ? std::forward<Use>(use)(project.Lines)
                                : std::forward<Use>(use)(project.Polys);
}

/// "Coast road  LINE # 3", or "POLY # 3" without a name.
std::string PathTitle(const ProjectState& project, PathKind kind, std::size_t item);
/// "POINT # 2 from Coast road  LINE # 3"
std::string PointTitle(const ProjectState& project, const VertexRef& vertex);

struct PointValues {
  LatLon At;
  float Third = 0;  ///< width of a line, altitude of a polygon, in metres
  bool operator==(const PointValues&) const = default;
};

/// Nothing when the vertex does not exist.
std::optional<PointValues> ReadPoint(const ProjectState& project, const VertexRef& vertex);
/// Stores the values in a vertex that exists. The box of its path follows, and what else follows from its
/// vertices. Values that are the same already change nothing.
void StorePoint(ProjectState& project, const VertexRef& vertex, const PointValues& values);

/// A vertex that a form shows while the project goes on changing beside it.
class WatchedPoint {
public:
  /// A vertex that exists.
  WatchedPoint(const ProjectState& project, const VertexRef& vertex);

  const VertexRef& Vertex() const { return m_vertex; }
  const PointValues& Shown() const { return m_values; }
  /// Whether the vertex is still there. Numbers are all that names a vertex, so where vertices or whole paths
  /// have come or gone, only one of the same values in a path of the same name and size is taken for it.
  bool IsThere(const ProjectState& project) const;
  /// Takes over what has become of a vertex that is there. True when its values have changed.
  bool Update(const ProjectState& project);

private:
  struct Place {
    std::size_t Paths = 0, Points = 0;
    std::string Name;
    bool operator==(const Place&) const = default;
  };
  static Place PlaceOf(const ProjectState& project, const VertexRef& vertex);

  VertexRef m_vertex;
  PointValues m_values;
  Place m_place;
};

}  // namespace landsmith
