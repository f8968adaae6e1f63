// Ends that meet become one line.
#pragma once

#include "core/Grid.h"
#include "core/Project.h"
#include "vector/Selection.h"

#include <cstddef>
#include <string>

namespace landsmith {

struct AppSettings;

/// a's vertices, then b's from the second on; a keeps name, type and colour and is selected; b is deleted.
/// `reverseA`, `reverseB` turn a record round first. `selection`, where given, follows the marks that come
/// and go.
void JoinLineRecords(ProjectState& project, std::size_t a, std::size_t b, bool reverseA, bool reverseB,
                     Selection* selection = nullptr);

/// The "Join" button: the first two selected lines, joined where the gap is shorter than an adjoining
/// segment. Empty when joined; otherwise the message for the user, and nothing has changed.
std::string JoinLines(ProjectState& project, Selection& selection);

/// A new line meets the first other line of its type whose end is close to one of its ends. True when joined;
/// the joined line is then selected.
bool TryAutoJoin(ProjectState& project, std::size_t newLine, const AppSettings& settings,
                 const ViewScale& scale, Selection* selection = nullptr);

}  // namespace landsmith
