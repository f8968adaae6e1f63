#include "raster/ClassCells.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace landsmith {
namespace {

constexpr std::size_t TileCount = 5;     // in each direction
constexpr std::size_t TileStride = 256;  // a tile has one sample more, which it shares with its neighbour

/// 128 is the mark of selection alone: an empty cell.
bool IsSelectedCell(std::uint8_t sample) {
  return sample > 128;
}

}  // namespace

std::array<bool, 25> SelectedTiles(const ClassGrid& grid) {
  std::array<bool, TileCount * TileCount> flags{};
  if (!grid.IsAllocated()) return flags;
  const std::vector<std::uint8_t> samples = grid.Samples();
  for (std::size_t row = 0; row < ClassGridSide; ++row) {
    const auto rowBegin = samples.begin() + static_cast<std::ptrdiff_t>(row * ClassGridSide);
    for (std::size_t i = 0; i < TileCount; ++i) {
      const auto begin = rowBegin + static_cast<std::ptrdiff_t>(i * TileStride);
      if (!std::any_of(begin, begin + TileStride + 1, IsSelectedCell)) continue;
      const std::size_t j = std::min(row / TileStride, TileCount - 1);
      flags[i * TileCount + j] = true;
      const bool isSharedRow = row % TileStride == 0 && row > 0;
      if (isSharedRow) flags[i * TileCount + row / TileStride - 1] = true;
    }
  }
  return flags;
}

bool HasSelectedTile(const ClassGrid& grid) {
  return grid.CountSet(IsSelectedCell) > 0;
}

}  // namespace landsmith
