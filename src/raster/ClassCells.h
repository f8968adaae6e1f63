// Looking at the class grids as a whole.
#pragma once

#include "core/ClassGrid.h"

#include <array>

namespace landsmith {

/// Which of the 5 by 5 tiles hold a selected, filled cell: [column * 5 + row]. Neighbouring tiles share their
/// border samples, so one cell may mark several.
std::array<bool, 25> SelectedTiles(const ClassGrid& grid);
bool HasSelectedTile(const ClassGrid& grid);

}  // namespace landsmith
