#include "compile/LwmTree.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace landsmith {
namespace {

/// Opens a Cell when it is first named. Pieces and fills mostly come many to a Cell in a row, so the last one
/// is kept at hand.
class OpenCells {
public:
  LwmCell& At(std::int32_t cellX, std::int32_t cellY) {
    if (m_last == m_cells.size() || m_cells[m_last].CellX != cellX || m_cells[m_last].CellY != cellY)
      m_last = Find(cellX, cellY);
    return m_cells[m_last];
  }
  std::vector<LwmCell> Take() { return std::move(m_cells); }

private:
  std::size_t Find(std::int32_t cellX, std::int32_t cellY) {
    const std::uint64_t key =
        (std::uint64_t{static_cast<std::uint32_t>(cellY)} << 32U) | static_cast<std::uint32_t>(cellX);
    const auto [entry, isNew] = m_places.try_emplace(key, m_cells.size());
    if (isNew) m_cells.push_back({cellX, cellY, {}, {}});
    return entry->second;
  }

  std::vector<LwmCell> m_cells;
  std::unordered_map<std::uint64_t, std::size_t> m_places;
  std::size_t m_last = 0;
};

}  // namespace

std::vector<LwmCell> GroupByCell(std::span<const LwmCutPoly> polys, const FillList& fills) {
  OpenCells open;
  for (const LwmCutPoly& poly : polys)
    for (const PolyPiece& piece : poly.Cut.Pieces)
      open.At(piece.CellX, piece.CellY)
          .Polys.push_back({&poly, piece.AreaX, piece.AreaY, poly.Cut.PointsOf(piece)});
  for (const FillRec* fill : fills)
    open.At(fill->CellX, fill->CellY).Fills.push_back(fill);

  std::vector<LwmCell> cells = open.Take();
  std::sort(cells.begin(), cells.end(), [](const LwmCell& a, const LwmCell& b) {
    return std::tie(a.CellY, a.CellX) < std::tie(b.CellY, b.CellX);
  });
  return cells;
}

}  // namespace landsmith
