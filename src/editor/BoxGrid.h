// Finds the boxes that meet a view without looking at all of them.
//
// The boxes lie in a grid of about as many cells as there are boxes; each cell lists the boxes that reach
// into it. A box over many cells stands in a list of its own that every search looks through, and so does one
// that was put in later: the cells are made once.
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
  /// Another box for `number`, or one more when `number` is Size().
  void Put(std::uint32_t number, const GeoBox& box);
  /// So many boxes were put in that searches suffer; a new grid is due.
  bool IsWorn() const;
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
  GeoBox m_frame;   ///< what the cells cover
  GeoBox m_bounds;  ///< of all boxes, also of those put in later
  std::uint32_t m_side = 1;
  double m_columnsPerDeg = 0, m_rowsPerDeg = 0;
  std::vector<std::uint32_t> m_cellStart;  ///< into m_entries, one more than there are cells
  std::vector<std::uint32_t> m_entries;
  std::vector<std::uint32_t> m_loose;  ///< large boxes, and those put in later
  std::vector<std::uint8_t> m_isLoose;
  std::size_t m_put = 0;
};

}  // namespace landsmith
