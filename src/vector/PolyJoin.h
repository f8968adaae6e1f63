// Polygons with a common border become one.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "vector/Selection.h"

#include <cstddef>
#include <string>

namespace landsmith {

struct AppSettings;

/// The "Join" button: the first two selected polygons, joined along the border that they share. Empty when
/// joined: the first keeps name, type and colour, the second is deleted, and `selection` follows. Otherwise
/// the message for the user, and nothing has changed.
std::string JoinPolys(ProjectState& project, const AppSettings& settings, const ViewScale& scale,
                      Selection& selection);

/// A new polygon meets the first earlier one of its type with which it shares a border. True when joined; the
/// joined polygon is then selected, and the caller counts anew.
bool TryAutoJoinPoly(ProjectState& project, std::size_t newPoly, const AppSettings& settings,
                     const ViewScale& scale);

}  // namespace landsmith
