// The index list of a file of cells: for each cell, in the order of their labels, its place in the world and
// more numbers.
#pragma once

#include "simtools/ScmParser.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace landsmith::simtools {

struct CellPlace {
  std::uint32_t X = 0, Y = 0;
  bool operator==(const CellPlace&) const = default;
};

/// `statement`: the count, then `numbers` numbers a cell, column and row first. `cells`: the labels of the
/// file. A place that is out of range is nothing; all is empty when the counts do not agree. What is wrong, a
/// place that stands twice too, goes to `errors`.
std::vector<std::optional<CellPlace>> ReadCellPlaces(const Statement& statement, std::size_t numbers,
                                                     std::size_t cells, std::vector<ScmError>& errors);

}  // namespace landsmith::simtools
