// Area fills as the land and water file names them: the selected ones, and their statements. Fills have a
// file of their own or share that of the level polygons.
#pragma once

#include "compile/ScmWriter.h"
#include "core/Project.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace landsmith {

/// The fills of one file or of one Cell; the project keeps the records.
using FillList = std::vector<const FillRec*>;

/// The type of a fill that has no height.
inline constexpr std::uint8_t LandFill = 1;

/// What is wrong with a size or a type that no statement has.
std::optional<std::string> FaultOfFill(const FillRec& fill);

/// The selected fills in the project's order. Throws RuntimeError that names the fill for a size or a type
/// that no statement has.
FillList CollectFills(const ProjectState& project);

/// Whether the fills of a Cell are a single one that covers it, which the index of Cells tells and no
/// statement. Never with `fillAsPoly`, where each fill is a macro.
bool IsCellFilled(const FillList& fills, bool fillAsPoly);

/// One line a fill, in their order; nothing for a Cell that is filled. `fillAsPoly`: calls of the macros that
/// draw a fill as a polygon.
void WriteFills(ScmWriter& out, const FillList& fills, bool fillAsPoly);

}  // namespace landsmith
