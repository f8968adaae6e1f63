#include "editor/GeometryIndex.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr std::size_t SegmentsPerRun = 64;

GeoBox RunBox(const LineRec& line, std::size_t first, std::size_t last) {
  GeoBox box;
  for (std::size_t point = first; point <= last; ++point)
    box.Add(line.Points[point].Lat, line.Points[point].Lon);
  return box;
}

BoxGrid BoxesOfPolys(const std::vector<PolyRec>& polys) {
  std::vector<GeoBox> boxes;
  boxes.reserve(polys.size());
  for (const PolyRec& poly : polys)
    boxes.push_back(poly.Box);
  return BoxGrid(std::move(boxes));
}

template <class Path>
std::vector<std::uint8_t> SelectionFlags(const std::vector<Path>& paths) {
  std::vector<std::uint8_t> flags;
  flags.reserve(paths.size());
  for (const Path& path : paths)
    flags.push_back(HasSelectedPoint(path) ? 1 : 0);
  return flags;
}

}  // namespace

GeometryIndex::GeometryIndex(const ProjectState& project)
    : m_polyBoxes(BoxesOfPolys(project.Polys)),
      m_lineHadSelection(SelectionFlags(project.Lines)),
      m_polyHadSelection(SelectionFlags(project.Polys)) {
  std::vector<GeoBox> boxes;
  for (std::size_t number = 0; number < project.Lines.size(); ++number) {
    const LineRec& line = project.Lines[number];
    const std::size_t points = line.Points.size();
    for (std::size_t first = 0; first + 1 < points || (first == 0 && points == 1); first += SegmentsPerRun) {
      const std::size_t last = std::min(first + SegmentsPerRun, points - 1);
      m_runs.push_back({static_cast<std::uint32_t>(number), static_cast<std::uint32_t>(first),
                        static_cast<std::uint32_t>(last)});
      const bool whole = first == 0 && last + 1 == points;
      boxes.push_back(whole ? line.Box : RunBox(line, first, last));
    }
  }
  m_runBoxes = BoxGrid(std::move(boxes));
}

}  // namespace landsmith
