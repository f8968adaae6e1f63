#include "raster/AreaFill.h"

#include "core/Grid.h"
#include "core/Numbers.h"
#include "core/Project.h"

#include <algorithm>
#include <cstdlib>

namespace landsmith {

namespace {

/// By the sums that the grid is counted from, which round up just before the ends.
bool IsInWorld(LatLon at) {
  const double x = at.lon + 180, y = 90 - at.lat;
  return x >= 0 && x < 360 && y >= 0 && y < 180;
}

/// Whether a block of `outerSize` at `outer` spans one of `innerSize` at `inner`, along one side of a Cell.
bool Spans(int outer, int outerSize, int inner, int innerSize) {
  return inner * innerSize >= outer * outerSize && (inner + 1) * innerSize <= (outer + 1) * outerSize;
}

/// A block counted from the north-west corner of the world.
struct WorldBlock {
  std::int32_t column = 0, row = 0;
};

WorldBlock BlockOf(LatLon at, std::uint8_t size) {
  return {Floor((at.lon + 180) / (size * AreaWidth)), Floor((90 - at.lat) / (size * AreaHeight))};
}

LatLon MiddleOf(WorldBlock block, std::uint8_t size) {
  return {90 - (block.row + 0.5) * size * AreaHeight, (block.column + 0.5) * size * AreaWidth - 180};
}

}  // namespace

FillType TypeOfFill(const FillRec& fill) {
  return fill.Type < 2 ? static_cast<FillType>(fill.Type) : FillType::Flatten;
}

void SetFillType(FillRec& fill, FillType type, float heightMetres) {
  fill.Type = static_cast<std::uint8_t>(type);
  fill.Height = type == FillType::Land ? 0 : heightMetres;
}

std::optional<FillRec> MakeFill(LatLon at, std::uint8_t size, FillType type, float heightMetres) {
  if (!IsInWorld(at)) return {};
  const GridPosition place = ComputeGridPosition(at.lat, at.lon);
  FillRec fill;
  fill.Size = size;
  fill.Col = static_cast<std::uint8_t>(place.AreaX / size);
  fill.Row = static_cast<std::uint8_t>(place.AreaY / size);
  fill.CellX = place.CellX;
  fill.CellY = place.CellY;
  SetFillType(fill, type, heightMetres);
  fill.Box = FillBox(fill);
  return fill;
}

bool ContainsFill(const FillRec& outer, const FillRec& inner) {
  return outer.CellX == inner.CellX && outer.CellY == inner.CellY &&
         Spans(outer.Col, outer.Size, inner.Col, inner.Size) &&
         Spans(outer.Row, outer.Size, inner.Row, inner.Size);
}

std::size_t AddNewFill(RecordList<FillRec>& fills, const FillRec& fill) {
  const std::size_t covered =
      fills.EraseIf([&fill](const FillRec& other) { return ContainsFill(fill, other); });
  fills.push_back(fill);
  return covered;
}

std::vector<LatLon> BlocksOnTheWay(LatLon from, LatLon to, std::uint8_t size) {
  const WorldBlock first = BlockOf(from, size), last = BlockOf(to, size);
  const std::int32_t columns = last.column - first.column, rows = last.row - first.row;
  const std::int32_t steps = std::max(std::abs(columns), std::abs(rows));
  std::vector<LatLon> middles;
  for (std::int32_t step = 1; step <= steps; ++step) {
    const double part = static_cast<double>(step) / steps;
    middles.push_back(MiddleOf(
        {first.column + RoundHalfEven(columns * part), first.row + RoundHalfEven(rows * part)}, size));
  }
  return middles;
}

}  // namespace landsmith
