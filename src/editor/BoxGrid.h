// Finds the boxes that meet a view without looking at all of them.
//
// The boxes lie in a grid of about as many cells as there are boxes; each cell lists the boxes that reach
// into it. A box over many cells stands in a list of its own that every search looks through.
#pragma once

#include "core/GeoTypes.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

class BoxGrid {
public:
  BoxGrid() = default;
  explicit BoxGrid(std::vector<GeoBox> boxes);

  std::size_t Size() const { return m_boxes.size(); }
  const GeoBox& Box(std::uint32_t number) const { return m_boxes[number]; }
  /// Numbers of the boxes that meet `area`, ascending; touching counts.
  std::vector<std::uint32_t> Meeting(const GeoBox& area) const;

private:
  struct CellRange {
    std::uint32_t left, right, top, bottom;
  };
  CellRange CellsOf(const GeoBox& box) const;
  std::vector<std::uint32_t> Candidates(const GeoBox& area) const;
  template <class Visit>
  void ForEachCell(const GeoBox& box, Visit visit) const;
  bool IsLarge(const GeoBox& box) const;

  std::vector<GeoBox> m_boxes;
  GeoBox m_bounds;
  std::uint32_t m_side = 1;
  double m_columnsPerDeg = 0, m_rowsPerDeg = 0;
  std::vector<std::uint32_t> m_cellStart;  ///< into m_entries, one more than there are cells
  std::vector<std::uint32_t> m_entries;
  std::vector<std::uint32_t> m_large;
};

}  // namespace landsmith
