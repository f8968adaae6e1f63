// A project as JSON, fields named and ordered as in the records.
#pragma once

#include "core/Project.h"

#include <string>

namespace landsmith {

/// Header fields and the eleven counters.
std::string InfoJson(const ProjectState& project);

/// The whole project; `Lands` and `Waters` as [column, row, value] of the nonzero samples, by row.
std::string DumpJson(const ProjectState& project);

}  // namespace landsmith
