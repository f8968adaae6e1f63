// What an author should know before compiling. Findings never keep anything from being compiled.
#pragma once

#include "core/Project.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// An error makes the compiler fail; a warning gives scenery that is not what was drawn.
enum class FindingSeverity { Warning, Error };

struct Finding {
  FindingSeverity Severity = FindingSeverity::Warning;
  std::string_view Kind;  ///< "Line", "Poly"
  std::size_t Item = 0;   ///< 0-based place in its collection
  LatLon At;              ///< where to look
  std::string Text;       ///< one sentence, without the item's number
};

/// All findings of the selected lines and polygons: lines first, by item.
std::vector<Finding> CheckSelectedItems(const ProjectState& project);

}  // namespace landsmith
