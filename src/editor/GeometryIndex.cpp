#include "editor/GeometryIndex.h"

#include <algorithm>

namespace landsmith {

namespace {

constexpr std::uint32_t SegmentsPerPiece = 64;
/// When more than this part of all records are others, a new index is cheaper than mending the old one.
constexpr std::size_t ManyDivisor = 8;

/// The vertex behind the last segment; in a ring it stands for the first one again.
template <class Path>
std::uint32_t EndOf(const Path& path) {
  const auto count = static_cast<std::uint32_t>(path.Points.size());
  return PathTraits<Path>::IsRing || count == 0 ? count : count - 1;
}

template <class Path>
GeoBox PieceBox(const Path& path, std::uint32_t first, std::uint32_t last) {
  GeoBox box;
  for (std::uint32_t k = first; k <= last; ++k) {
    const auto& point = path.Points[k % path.Points.size()];
    box.Add(point.Lat, point.Lon);
  }
  return box;
}

template <class Path>
std::vector<GeoBox> PieceBoxes(const Path& path) {
  std::vector<GeoBox> boxes;
  const std::uint32_t end = EndOf(path);
  for (std::uint32_t first = 0; first < end; first += SegmentsPerPiece)
    boxes.push_back(PieceBox(path, first, std::min(first + SegmentsPerPiece, end)));
  return boxes;
}

}  // namespace

/// What is kept of one path beside its box.
template <class Path>
void PathIndex<Path>::Describe(std::uint32_t item) {
  const Path& path = m_paths[item];
  m_marked[item] = path.Selected || HasSelectedPoint(path) ? 1 : 0;
  if (EndOf(path) > SegmentsPerPiece)
    m_longBoxes[item] = PieceBoxes(path);
  else
    m_longBoxes.erase(item);
}

template <class Path>
void PathIndex<Path>::Rebuild() {
  m_longBoxes.clear();
  m_marked.assign(m_paths.size(), 0);
  std::vector<GeoBox> boxes;
  boxes.reserve(m_paths.size());
  for (const Path& path : m_paths) {
    boxes.push_back(path.Box);
    Describe(static_cast<std::uint32_t>(boxes.size() - 1));
  }
  m_boxes = BoxGrid(std::move(boxes));
}

/// False when the boxes have moved about so much that the grid is better made anew.
template <class Path>
bool PathIndex<Path>::Update(const std::vector<std::uint32_t>& items) {
  m_marked.resize(m_paths.size());
  for (const std::uint32_t item : items) {
    Describe(item);
    m_boxes.Put(item, m_paths[item].Box);
  }
  return !m_boxes.IsWorn();
}

template <class Path>
bool PathIndex<Path>::Follow(const RecordList<Path>& paths) {
  std::vector<std::uint32_t> others;
  ForEachDifference(m_paths, paths, [&](std::size_t i) { others.push_back(static_cast<std::uint32_t>(i)); });
  const std::size_t before = m_paths.size();
  if (others.empty() && paths.size() == before) return false;
  for (std::size_t i = before; i < paths.size(); ++i)
    others.push_back(static_cast<std::uint32_t>(i));
  m_paths = paths;
  const bool many = others.size() > paths.size() / ManyDivisor;
  if (paths.size() < before || many || !Update(others)) Rebuild();
  return true;
}

template <class Path>
std::vector<PathPiece> PathIndex<Path>::PiecesMeeting(const GeoBox& area) const {
  std::vector<PathPiece> pieces;
  for (const std::uint32_t item : m_boxes.Meeting(area)) {
    const Path& path = m_paths[item];
    if (path.Points.empty()) continue;
    const std::uint32_t end = EndOf(path);
    const auto boxes = m_longBoxes.find(item);
    if (boxes == m_longBoxes.end()) {
      pieces.push_back({item, 0, end});
      continue;
    }
    for (std::uint32_t number = 0; number < boxes->second.size(); ++number) {
      const std::uint32_t first = number * SegmentsPerPiece;
      if (boxes->second[number].Meets(area))
        pieces.push_back({item, first, std::min(first + SegmentsPerPiece, end)});
    }
  }
  return pieces;
}

template class PathIndex<LineRec>;
template class PathIndex<PolyRec>;

}  // namespace landsmith
