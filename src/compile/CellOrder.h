// Pieces in the order in which files hold their Cells.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>
#include <vector>

namespace landsmith {

struct CellPlace {
  std::int32_t CellY = 0, CellX = 0;
  std::size_t Place = 0;  ///< in the list that was ordered
  bool InCell(std::int32_t cellX, std::int32_t cellY) const { return CellX == cellX && CellY == cellY; }
};

/// By Cell row, then column, then as they stand in `pieces`.
template <class Piece>
std::vector<CellPlace> InCellOrder(const std::vector<Piece>& pieces) {
  std::vector<CellPlace> order;
  order.reserve(pieces.size());
  for (std::size_t i = 0; i < pieces.size(); ++i)
    order.push_back({pieces[i].CellY, pieces[i].CellX, i});
  std::sort(order.begin(), order.end(), [](const CellPlace& a, const CellPlace& b) {
    return std::tie(a.CellY, a.CellX, a.Place) < std::tie(b.CellY, b.CellX, b.Place);
  });
  return order;
}

}  // namespace landsmith
