// Where the lines and polygons of a project lie: what a painter asks so that a repaint costs what is in view,
// not what the project holds.
#pragma once

#include "core/Project.h"
#include "editor/BoxGrid.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace landsmith {

/// A piece of a line: its vertices `first` to `last`, both included. Neighbours share a vertex; a line of one
/// point is one run.
struct VertexRun {
  std::uint32_t line = 0;
  std::uint32_t first = 0, last = 0;
};

template <class Path>
bool HasSelectedPoint(const Path& path) {
  return std::any_of(path.Points.begin(), path.Points.end(),
                     [](const auto& point) { return point.Selected; });
}

/// A snapshot of one state of the project; it holds no references into it.
class GeometryIndex {
public:
  GeometryIndex() = default;
  explicit GeometryIndex(const ProjectState& project);

  /// In drawing order, each line's runs one after the other.
  const std::vector<VertexRun>& LineRuns() const { return m_runs; }
  const BoxGrid& LineRunBoxes() const { return m_runBoxes; }
  const BoxGrid& PolyBoxes() const { return m_polyBoxes; }
  /// Whether the line or polygon had a selected vertex when the index was made. Selecting makes no new index,
  /// so this is a hint for how to look, not an answer.
  bool LineHadSelection(std::size_t line) const { return m_lineHadSelection[line] != 0; }
  bool PolyHadSelection(std::size_t poly) const { return m_polyHadSelection[poly] != 0; }

private:
  std::vector<VertexRun> m_runs;
  BoxGrid m_runBoxes;
  BoxGrid m_polyBoxes;
  std::vector<std::uint8_t> m_lineHadSelection, m_polyHadSelection;
};

}  // namespace landsmith
