#include "editor/BoxGrid.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace landsmith {

namespace {

constexpr std::uint32_t MaxSide = 512;
constexpr std::uint32_t MaxCellsOfBox = 16;
/// Up to this part of all boxes, sorting the finds is cheaper than marking them among all.
constexpr std::size_t FewDivisor = 16;

/// About as many cells as there are boxes, but none smaller than half a usual box: a box over many cells
/// would stand in the list that every search looks through.
std::uint32_t SideFor(const std::vector<GeoBox>& boxes, const GeoBox& bounds) {
  double width = 0, height = 0, counted = 0;
  for (const GeoBox& box : boxes) {
    if (!(box.NLat >= box.SLat)) continue;
    width += box.ELon - box.WLon;
    height += box.NLat - box.SLat;
    ++counted;
  }
  double side = std::sqrt(static_cast<double>(boxes.size()));
  if (width > 0) side = std::min(side, 2 * (bounds.ELon - bounds.WLon) * counted / width);
  if (height > 0) side = std::min(side, 2 * (bounds.NLat - bounds.SLat) * counted / height);
  return static_cast<std::uint32_t>(std::clamp<double>(side, 1, MaxSide));
}

std::uint32_t CellAt(double offset, double cellsPerDeg, std::uint32_t side) {
  const double cell = offset * cellsPerDeg;
  if (!(cell > 0)) return 0;  // a damaged file may hold numbers that are none
  return cell >= side ? side - 1 : static_cast<std::uint32_t>(cell);
}

bool HoldsBox(const GeoBox& outer, const GeoBox& inner) {
  return inner.NLat <= outer.NLat && inner.SLat >= outer.SLat && inner.WLon >= outer.WLon &&
         inner.ELon <= outer.ELon;
}

void SortUnique(std::vector<std::uint32_t>& numbers, std::size_t limit) {
  if (numbers.size() <= limit / FewDivisor) {
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return;
  }
  std::vector<std::uint8_t> found(limit);
  for (const std::uint32_t number : numbers)
    found[number] = 1;
  numbers.clear();
  for (std::uint32_t number = 0; number < limit; ++number) {
    if (found[number] != 0) numbers.push_back(number);
  }
}

}  // namespace

BoxGrid::BoxGrid(std::vector<GeoBox> boxes) : m_boxes(std::move(boxes)) {
  for (const GeoBox& box : m_boxes) {
    if (box.NLat < box.SLat) continue;  // of an item without points
    m_bounds.Add(box.NLat, box.WLon);
    m_bounds.Add(box.SLat, box.ELon);
  }
  m_frame = m_bounds;
  m_side = SideFor(m_boxes, m_bounds);
  const double width = m_frame.ELon - m_frame.WLon, height = m_frame.NLat - m_frame.SLat;
  m_columnsPerDeg = width > 0 ? m_side / width : 0;
  m_rowsPerDeg = height > 0 ? m_side / height : 0;

  m_cellStart.assign(std::size_t{m_side} * m_side + 1, 0);
  for (const GeoBox& box : m_boxes)
    ForEachCell(box, [this](std::size_t cell) { ++m_cellStart[cell + 1]; });
  std::partial_sum(m_cellStart.begin(), m_cellStart.end(), m_cellStart.begin());

  m_entries.resize(m_cellStart.back());
  std::vector<std::uint32_t> next(m_cellStart.begin(), m_cellStart.end() - 1);
  for (std::uint32_t number = 0; number < m_boxes.size(); ++number) {
    if (IsLarge(m_boxes[number])) m_loose.push_back(number);
    ForEachCell(m_boxes[number], [&](std::size_t cell) { m_entries[next[cell]++] = number; });
  }
}

void BoxGrid::Put(std::uint32_t number, const GeoBox& box) {
  if (number == m_boxes.size()) m_boxes.emplace_back();
  m_boxes[number] = box;
  m_isLoose.resize(m_boxes.size());
  if (std::exchange(m_isLoose[number], std::uint8_t{1}) == 0) {
    m_loose.push_back(number);
    ++m_put;
  }
  if (box.NLat < box.SLat) return;
  m_bounds.Add(box.NLat, box.WLon);
  m_bounds.Add(box.SLat, box.ELon);
}

bool BoxGrid::IsWorn() const {
  constexpr std::size_t leastPut = 256, manyDivisor = 8;
  return m_put > std::max(leastPut, m_boxes.size() / manyDivisor);
}

BoxGrid::CellRange BoxGrid::CellsOf(const GeoBox& box) const {
  return {CellAt(box.WLon - m_frame.WLon, m_columnsPerDeg, m_side),
          CellAt(box.ELon - m_frame.WLon, m_columnsPerDeg, m_side),
          CellAt(m_frame.NLat - box.NLat, m_rowsPerDeg, m_side),
          CellAt(m_frame.NLat - box.SLat, m_rowsPerDeg, m_side)};
}

bool BoxGrid::IsLarge(const GeoBox& box) const {
  const CellRange cells = CellsOf(box);
  return (cells.right - cells.left + 1) * (cells.bottom - cells.top + 1) > MaxCellsOfBox;
}

/// No cell for a large box.
template <class Visit>
void BoxGrid::ForEachCell(const GeoBox& box, Visit visit) const {
  const CellRange cells = CellsOf(box);
  if ((cells.right - cells.left + 1) * (cells.bottom - cells.top + 1) > MaxCellsOfBox) return;
  for (std::uint32_t row = cells.top; row <= cells.bottom; ++row)
    for (std::uint32_t column = cells.left; column <= cells.right; ++column)
      visit(std::size_t{row} * m_side + column);
}

std::vector<std::uint32_t> BoxGrid::Candidates(const GeoBox& area) const {
  std::vector<std::uint32_t> numbers = m_loose;
  if (m_entries.empty()) return numbers;
  const CellRange cells = CellsOf(area);
  for (std::uint32_t row = cells.top; row <= cells.bottom; ++row) {
    const auto* starts = &m_cellStart[std::size_t{row} * m_side];
    numbers.insert(numbers.end(), m_entries.begin() + starts[cells.left],
                   m_entries.begin() + starts[cells.right + 1]);
  }
  return numbers;
}

std::vector<std::uint32_t> BoxGrid::Meeting(const GeoBox& area) const {
  std::vector<std::uint32_t> numbers;
  if (m_boxes.empty() || !m_bounds.Meets(area)) return numbers;
  if (HoldsBox(area, m_bounds)) {
    numbers.resize(m_boxes.size());
    std::iota(numbers.begin(), numbers.end(), std::uint32_t{0});
    return numbers;
  }
  numbers = Candidates(area);
  std::erase_if(numbers, [&](std::uint32_t number) { return !m_boxes[number].Meets(area); });
  SortUnique(numbers, m_boxes.size());
  return numbers;
}

}  // namespace landsmith
