#include "simtools/IndexList.h"

#include "simtools/BglLayout.h"
#include "simtools/StatementCheck.h"

#include <set>
#include <string>
#include <utility>

namespace landsmith::simtools {

namespace {

bool CountsAgree(const Statement& statement, std::size_t numbers, std::size_t cells,
                 std::vector<ScmError>& errors) {
  const auto count =
      NumberArgument(statement, 0, {"the number of cells", 0, std::int64_t{1023} * 1023}, errors);
  if (!count) return false;
  const std::size_t follow = statement.Arguments.size() - 1;
  std::string reason;
  if (follow != static_cast<std::size_t>(*count) * numbers)
    reason = " announces " + std::to_string(*count) + " cells of " + std::to_string(numbers) + " numbers, " +
             std::to_string(follow) + " numbers follow";
  else if (static_cast<std::size_t>(*count) != cells)
    reason = " holds " + std::to_string(*count) + " cells, the file has " + std::to_string(cells);
  else
    return true;
  errors.push_back({statement.Line, statement.Name + reason});
  return false;
}

}  // namespace

std::vector<std::optional<CellPlace>> ReadCellPlaces(const Statement& statement, std::size_t numbers,
                                                     std::size_t cells, std::vector<ScmError>& errors) {
  std::vector<std::optional<CellPlace>> places;
  if (!CountsAgree(statement, numbers, cells, errors)) return places;
  std::set<std::pair<std::int64_t, std::int64_t>> seen;
  for (std::size_t cell = 0; cell < cells; ++cell) {
    const std::size_t first = 1 + numbers * cell;
    const auto x = NumberArgument(statement, first, {"the cell's column", 0, bgl::LastColumn}, errors);
    const auto y = NumberArgument(statement, first + 1, {"the cell's row", 0, bgl::LastRow}, errors);
    if (!x || !y) {
      places.emplace_back();
      continue;
    }
    places.push_back(CellPlace{static_cast<std::uint32_t>(*x), static_cast<std::uint32_t>(*y)});
    if (!seen.emplace(*x, *y).second)
      errors.push_back({statement.ArgumentLines[first], statement.Name + ": the cell " + std::to_string(*x) +
                                                            " " + std::to_string(*y) + " stands twice"});
  }
  return places;
}

}  // namespace landsmith::simtools
