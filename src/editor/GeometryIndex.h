// Where the lines and polygons of a project lie: what painting and picking ask, so that they cost what is in
// view or under the mouse, not what the project holds.
//
// An index keeps a copy of the list that it describes. Copies share what has not changed, so following a
// project takes a glance at each 256 records and work only for those that are others than before.
#pragma once

#include "core/Project.h"
#include "editor/BoxGrid.h"
#include "vector/PathSelection.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace landsmith {

template <class Path>
class PathIndex {
public:
  /// Describes `paths` from now on. True when anything differed from what was described before.
  bool Follow(const RecordList<Path>& paths);

  /// Numbers of the paths whose box meets `area`, ascending; touching counts.
  std::vector<std::uint32_t> Meeting(const GeoBox& area) const { return m_boxes.Meeting(area); }
  /// The pieces of those paths that meet `area`, in drawing order and along each path. Short paths come
  /// whole.
  std::vector<PathPiece> PiecesMeeting(const GeoBox& area) const;
  /// Whether the path, or one of its vertices, is selected.
  bool IsMarked(std::size_t item) const { return m_marked[item] != 0; }
  /// One byte a path, as IsMarked tells.
  const std::vector<std::uint8_t>& Marked() const { return m_marked; }

private:
  void Rebuild();
  void Describe(std::uint32_t item);
  bool Update(const std::vector<std::uint32_t>& items);

  RecordList<Path> m_paths;
  BoxGrid m_boxes;
  std::unordered_map<std::uint32_t, std::vector<GeoBox>> m_longBoxes;  ///< of the pieces of long paths
  std::vector<std::uint8_t> m_marked;
};

struct GeometryIndex {
  GeometryIndex() = default;
  explicit GeometryIndex(const ProjectState& project) { Follow(project); }
  bool Follow(const ProjectState& project) {
    const bool lines = Lines.Follow(project.Lines);
    return Polys.Follow(project.Polys) || lines;
  }

  PathIndex<LineRec> Lines;
  PathIndex<PolyRec> Polys;
};

}  // namespace landsmith
