// Area fills: square blocks of Areas inside one Cell, painted as water, land or flatten. The world is a grid
// of blocks for each size, so a fill is told by its Cell, its size and its place among the Cell's blocks; the
// box in degrees follows (FillBox in core/Project.h).
#pragma once

#include "core/GeoTypes.h"
#include "core/RecordList.h"
#include "core/Records.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace landsmith {

/// As the record's Type counts them.
enum class FillType : std::uint8_t { Water = 0, Land = 1, Flatten = 2 };
/// What the simulator takes a stored type for; unknown ones are flattens.
FillType TypeOfFill(const FillRec& fill);
/// Land has no height: it gets 0. Metres.
void SetFillType(FillRec& fill, FillType type, float heightMetres);

/// The fill of the block that holds the position, not selected. `size`: 1, 2, 4, 8, 16 or 32 Areas a side. A
/// position on a border belongs to the block south or east of it. Nothing outside the world, to which its
/// east and south ends do not belong.
std::optional<FillRec> MakeFill(LatLon at, std::uint8_t size, FillType type, float heightMetres);

/// Whether `inner` lies wholly in `outer`; equal blocks lie in each other. Blocks never overlap by halves.
bool ContainsFill(const FillRec& outer, const FillRec& inner);

/// Puts the fill on top of the others and takes out those that it covers. How many these were.
std::size_t AddNewFill(RecordList<FillRec>& fills, const FillRec& fill);

/// The middles of the blocks on the straight way from one position to another: without the first block, with
/// the last; each touches the one before it, at a corner at least. Empty within one block.
std::vector<LatLon> BlocksOnTheWay(LatLon from, LatLon to, std::uint8_t size);

}  // namespace landsmith
